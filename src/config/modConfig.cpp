#include "config/modConfig.h"

#include "config/frmConfig.h"
#include "host/context.h"

#include <QApplication>

void openConfiguration() {
    if (!oHost || !oConfig) return;
    frmConfig window(QApplication::activeWindow());
    window.exec();
}
