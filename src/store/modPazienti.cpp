#include "store/modPazienti.h"

#include "host/context.h"
#include "host/contract/Host.h"

#include <QCoreApplication>

namespace {

constexpr int TIPO_MEDICO = 0;
constexpr int GIRI_ATTESA = 30;

bool aperto(const QString& id) {
    const host::Paziente* paziente = PazienteAperto();
    return paziente && paziente->ID() == id;
}

} // namespace

std::unique_ptr<host::Paziente> CercaPaziente(const QString& nominativo, const QString& codicefiscale) {
    if (!oHost) return nullptr;
    const bool perCodice = !codicefiscale.isEmpty() && nominativo.isEmpty();
    try {
        host::Pazienti& pazienti = oHost->Archivio().Pazienti();
        return perCodice ? pazienti.Show(codicefiscale, QStringLiteral("Codice Fiscale"))
                         : pazienti.Show(nominativo, QStringLiteral("Cognome e Nome"));
    } catch (const host::HostError&) {
        return nullptr;
    }
}

bool SelezionaPaziente(const QString& nominativo, const QString& codicefiscale) {
    const std::unique_ptr<host::Paziente> scelto = CercaPaziente(nominativo, codicefiscale);
    return ApriPaziente(scelto.get());
}

bool ApriPaziente(const host::Paziente* paziente) {
    if (!paziente || !oHost) return false;
    // Opening a patient may end the object that was passed in.
    const QString id = paziente->ID();
    if (aperto(id)) return true;
    const bool medico = oHost->Utente().tipo() == TIPO_MEDICO;
    try {
        // Other users work for several doctors, and a patient may lie in the schema of another.
        oHost->Framework().RichiamaPaziente(id, medico ? QString() : paziente->idschema());
    } catch (const host::HostError&) {
        return false;
    }
    for (int giro = 0; giro < GIRI_ATTESA && !aperto(id); ++giro)
        QCoreApplication::processEvents();
    return true;
}
