#include "store/modPazienti.h"

#include "host/context.h"
#include "host/contract/Host.h"

#include <QCoreApplication>

namespace {

constexpr int DOCTOR_KIND = 0;
constexpr int WAIT_ROUNDS = 30;

bool isOpen(const QString& id) {
    const host::Paziente* patient = currentPatient();
    return patient && patient->ID() == id;
}

} // namespace

std::unique_ptr<host::Paziente> CercaPaziente(const QString& fullName, const QString& taxCode) {
    if (!oHost) return nullptr;
    const bool byCode = !taxCode.isEmpty() && fullName.isEmpty();
    try {
        host::Pazienti& patients = oHost->Archivio().Pazienti();
        return byCode ? patients.Show(taxCode, QStringLiteral("Codice Fiscale"))
                      : patients.Show(fullName, QStringLiteral("Cognome e Nome"));
    } catch (const host::HostError&) {
        return nullptr;
    }
}

bool SelezionaPaziente(const QString& fullName, const QString& taxCode) {
    const std::unique_ptr<host::Paziente> chosen = CercaPaziente(fullName, taxCode);
    return ApriPaziente(chosen.get());
}

bool ApriPaziente(const host::Paziente* patient) {
    if (!patient || !oHost) return false;
    // Opening a patient may end the object that was passed in.
    const QString id = patient->ID();
    if (isOpen(id)) return true;
    const bool doctor = oHost->Utente().tipo() == DOCTOR_KIND;
    try {
        // Other users work for several doctors, and a patient may lie in the schema of another.
        oHost->Framework().RichiamaPaziente(id, doctor ? QString() : patient->idschema());
    } catch (const host::HostError&) {
        return false;
    }
    for (int round = 0; round < WAIT_ROUNDS && !isOpen(id); ++round)
        QCoreApplication::processEvents();
    return true;
}
