#include "store/modUtenti.h"

#include "host/context.h"
#include "host/contract/Host.h"

#include <optional>

namespace {

constexpr int TIPO_MEDICO = 0;

QString conTitolo(const host::VoceUtente& utente) {
    return utente.Cognome + QStringLiteral(" dott. ") + utente.Nome;
}
QString senzaTitolo(const host::VoceUtente& utente) {
    return utente.Cognome + QLatin1Char(' ') + utente.Nome;
}

/// Nothing where there is no host, or it cannot answer.
std::optional<QList<host::VoceUtente>> utenti() {
    if (!oHost) return std::nullopt;
    try {
        return oHost->Archivio().Utenti().Lista();
    } catch (const host::HostError&) {
        return std::nullopt;
    }
}

} // namespace

QString NomeUtente(const host::VoceUtente& utente) {
    return utente.tipo == TIPO_MEDICO ? conTitolo(utente) : senzaTitolo(utente);
}

QString DescrizioneUtente(const QString& codicefiscale) {
    const auto tutti = codicefiscale.isEmpty() ? std::nullopt : utenti();
    if (!tutti) return {};
    for (const host::VoceUtente& utente : *tutti)
        if (utente.codicefiscale == codicefiscale) return NomeUtente(utente);
    return codicefiscale;
}

QString CodiceFiscaleUtente(const QString& descrizione) {
    const auto tutti = descrizione.isEmpty() ? std::nullopt : utenti();
    if (!tutti) return {};
    for (const host::VoceUtente& utente : *tutti)
        if (descrizione == conTitolo(utente) || descrizione == senzaTitolo(utente)) return utente.codicefiscale;
    return {};
}

QList<host::VoceUtente> UtentiDaScegliere(int tipo) {
    QList<host::VoceUtente> scelti = utenti().value_or(QList<host::VoceUtente>());
    scelti.removeIf([tipo](const host::VoceUtente& utente) { return utente.tipo != tipo || !utente.attivo; });
    return scelti;
}
