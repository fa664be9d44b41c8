#include "chart/modSceltaDenti.h"

#include "chart/ToothList.h"
#include "chart/frmSceltaDente.h"

#include <QApplication>

bool ScegliDenti(QString& selection, qint16& count) {
    frmSceltaDente window(QApplication::activeWindow());
    window.setSelection(selection);
    window.exec();
    if (!window.confirmed()) return false;
    const QStringList teeth = window.teeth();
    selection = ToothList(teeth).selection();
    count = static_cast<qint16>(teeth.size());
    return true;
}
