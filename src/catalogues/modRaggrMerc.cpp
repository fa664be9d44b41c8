#include "catalogues/modRaggrMerc.h"

#include "config/clsItemRaggMerc.h"
#include "host/context.h"
#include "platform/Collection.h"

QString DescrizioneRaggrMerc(const QString& code) {
    QString found;
    if (code.isEmpty() || colRaggMerc == nullptr) return found;
    for (const clsItemRaggMerc& group : *colRaggMerc)
        if (group.codice == code) found = group.descrizione;
    return found;
}

QString CodiceRaggrMerc(const QString& description) {
    QString found;
    if (description.isEmpty() || colRaggMerc == nullptr) return found;
    for (const clsItemRaggMerc& group : *colRaggMerc)
        if (group.descrizione == description) found = group.codice;
    return found;
}
