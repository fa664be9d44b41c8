#include "store/modUtenti.h"

#include "host/context.h"
#include "host/contract/Host.h"

namespace {

constexpr int TIPO_MEDICO = 0;

QString conTitolo(const host::VoceUtente& utente) {
    return utente.Cognome + QStringLiteral(" dott. ") + utente.Nome;
}
QString senzaTitolo(const host::VoceUtente& utente) {
    return utente.Cognome + QLatin1Char(' ') + utente.Nome;
}

} // namespace

QString DescrizioneUtente(const QString& codicefiscale) {
    if (codicefiscale.isEmpty() || !oHost) return codicefiscale;
    for (const host::VoceUtente& utente : oHost->Archivio().Utenti().Lista()) {
        if (utente.codicefiscale != codicefiscale) continue;
        return utente.tipo == TIPO_MEDICO ? conTitolo(utente) : senzaTitolo(utente);
    }
    return codicefiscale;
}

QString CodiceFiscaleUtente(const QString& descrizione) {
    if (descrizione.isEmpty() || !oHost) return {};
    for (const host::VoceUtente& utente : oHost->Archivio().Utenti().Lista()) {
        if (descrizione == conTitolo(utente) || descrizione == senzaTitolo(utente)) return utente.codicefiscale;
    }
    return {};
}
