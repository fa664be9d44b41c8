#include "catalogues/modSceltaServizio.h"

#include "catalogues/clsServizi.h"
#include "catalogues/frmSceltaServizio.h"
#include "config/clsItemRaggMerc.h"
#include "host/context.h"

#include <QApplication>
#include <QComboBox>

bool ScegliServizio(bool onlyTreatments, QString& code, QString& description) {
    if (oServizi == nullptr || oServizi->Lista().empty()) return false;
    frmSceltaServizio window(onlyTreatments, QApplication::activeWindow());
    window.filter(code, description);
    window.exec();
    if (!window.confirmed()) return false;
    code = window.code();
    description = window.description();
    return !code.isEmpty();
}

void CaricaComboRaggrMerc(QComboBox* combo, const QString& code) {
    combo->clear();
    combo->setProperty("tag", QString());
    combo->addItem(QString());
    int selected = -1;
    if (colRaggMerc != nullptr) {
        for (const clsItemRaggMerc& group : *colRaggMerc) {
            combo->addItem(group.codice + u' ' + group.descrizione, group.codice);
            if (group.codice == code) selected = combo->count() - 1;
        }
    }
    combo->setCurrentIndex(selected);
}
