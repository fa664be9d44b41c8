#include "config/modIVA.h"

#include "config/clsItemIva.h"
#include "host/context.h"
#include "platform/Collection.h"

#include <QComboBox>

void CaricaComboIVA(QComboBox& combo, const QString& code) {
    combo.clear();
    combo.addItem(QString(), QString());
    if (colIva) {
        for (const clsItemIva& vat : *colIva)
            combo.addItem(vat.codice + QLatin1Char(' ') + vat.descrizione, vat.codice);
    }
    combo.setCurrentIndex(combo.findData(code, Qt::UserRole, Qt::MatchExactly | Qt::MatchCaseSensitive));
}
