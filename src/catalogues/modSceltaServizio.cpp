#include "catalogues/modSceltaServizio.h"

#include "catalogues/clsServizi.h"
#include "catalogues/frmSceltaServizio.h"
#include "config/clsItemRaggMerc.h"
#include "host/context.h"

#include <QApplication>
#include <QComboBox>

bool ScegliServizio(bool soloTrattamenti, QString& codice, QString& descrizione) {
    if (oServizi == nullptr || oServizi->Lista().empty()) return false;
    frmSceltaServizio window(soloTrattamenti, QApplication::activeWindow());
    window.filtra(codice, descrizione);
    window.exec();
    if (!window.confirmed()) return false;
    codice = window.codice();
    descrizione = window.descrizione();
    return !codice.isEmpty();
}

void CaricaComboRaggrMerc(QComboBox* combo, const QString& codice) {
    combo->clear();
    combo->setProperty("tag", QString());
    combo->addItem(QString());
    int selected = -1;
    if (colRaggMerc != nullptr) {
        for (const clsItemRaggMerc& group : *colRaggMerc) {
            combo->addItem(group.codice + u' ' + group.descrizione, group.codice);
            if (group.codice == codice) selected = combo->count() - 1;
        }
    }
    combo->setCurrentIndex(selected);
}
