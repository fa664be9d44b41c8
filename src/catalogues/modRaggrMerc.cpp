#include "catalogues/modRaggrMerc.h"

#include "config/clsItemRaggMerc.h"
#include "host/context.h"
#include "platform/Collection.h"

QString DescrizioneRaggrMerc(const QString& codice) {
    QString found;
    if (codice.isEmpty() || colRaggMerc == nullptr) return found;
    for (const clsItemRaggMerc& group : *colRaggMerc)
        if (group.codice == codice) found = group.descrizione;
    return found;
}

QString CodiceRaggrMerc(const QString& descrizione) {
    QString found;
    if (descrizione.isEmpty() || colRaggMerc == nullptr) return found;
    for (const clsItemRaggMerc& group : *colRaggMerc)
        if (group.descrizione == descrizione) found = group.codice;
    return found;
}
