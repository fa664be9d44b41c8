#include "store/modUtenti.h"

#include "host/context.h"
#include "host/contract/Host.h"

#include <optional>

namespace {

constexpr int DOCTOR_KIND = 0;

QString withTitle(const host::VoceUtente& user) {
    return user.Cognome + QStringLiteral(" dott. ") + user.Nome;
}
QString withoutTitle(const host::VoceUtente& user) {
    return user.Cognome + QLatin1Char(' ') + user.Nome;
}

/// Nothing where there is no host, or it cannot answer.
std::optional<QList<host::VoceUtente>> users() {
    if (!oHost) return std::nullopt;
    try {
        return oHost->Archivio().Utenti().Lista();
    } catch (const host::HostError&) {
        return std::nullopt;
    }
}

} // namespace

QString displayName(const host::VoceUtente& user) {
    return user.tipo == DOCTOR_KIND ? withTitle(user) : withoutTitle(user);
}

QString DescrizioneUtente(const QString& taxCode) {
    const auto all = taxCode.isEmpty() ? std::nullopt : users();
    if (!all) return {};
    for (const host::VoceUtente& user : *all)
        if (user.codicefiscale == taxCode) return displayName(user);
    return taxCode;
}

QString CodiceFiscaleUtente(const QString& description) {
    const auto all = description.isEmpty() ? std::nullopt : users();
    if (!all) return {};
    for (const host::VoceUtente& user : *all)
        if (description == withTitle(user) || description == withoutTitle(user)) return user.codicefiscale;
    return {};
}

QList<host::VoceUtente> usersToChooseFrom(int kind) {
    QList<host::VoceUtente> chosen = users().value_or(QList<host::VoceUtente>());
    chosen.removeIf([kind](const host::VoceUtente& user) { return user.tipo != kind || !user.attivo; });
    return chosen;
}
