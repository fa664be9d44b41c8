#include "config/modConfig.h"

#include "config/frmConfig.h"
#include "host/context.h"

#include <QApplication>

void ApriConfigurazione() {
    if (!oHost || !oConfig) return;
    frmConfig finestra(QApplication::activeWindow());
    finestra.exec();
}
