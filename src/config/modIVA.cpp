#include "config/modIVA.h"

#include "config/clsItemIva.h"
#include "host/context.h"
#include "platform/Collection.h"

#include <QComboBox>

void CaricaComboIVA(QComboBox& combo, const QString& codice) {
    combo.clear();
    combo.addItem(QString(), QString());
    if (colIva) {
        for (const clsItemIva& iva : *colIva)
            combo.addItem(iva.codice + QLatin1Char(' ') + iva.descrizione, iva.codice);
    }
    combo.setCurrentIndex(combo.findData(codice, Qt::UserRole, Qt::MatchExactly | Qt::MatchCaseSensitive));
}
