#include "desk/shell/DeskArchive.h"

#include "desk/shell/Practice.h"

namespace desk {

DeskArchive::DeskArchive(Practice& practice, Hooks hooks)
    : practice_(practice)
    , hooks_(std::move(hooks)) {}

host::Dati& DeskArchive::Dati() {
    hooks_.beforeFreeData();
    return practice_.freeData();
}

host::Utenti& DeskArchive::Utenti() {
    return practice_.users();
}

std::unique_ptr<host::Paziente> DeskArchive::Show(const QString& value, const QString& column) {
    const QString id = hooks_.choosePatient(value, column);
    if (id.isEmpty()) return nullptr;
    std::unique_ptr<host::Paziente> patient = practice_.newPatient();
    if (!patient->Init(id)) return nullptr;
    return patient;
}

} // namespace desk
