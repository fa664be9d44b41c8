#include "chart/modSceltaDenti.h"

#include "chart/ToothList.h"
#include "chart/frmSceltaDente.h"

#include <QApplication>

bool ScegliDenti(QString& selezione, qint16& quanti) {
    frmSceltaDente window(QApplication::activeWindow());
    window.setSelezione(selezione);
    window.exec();
    if (!window.confirmed()) return false;
    const QStringList teeth = window.teeth();
    selezione = ToothList(teeth).selection();
    quanti = static_cast<qint16>(teeth.size());
    return true;
}
