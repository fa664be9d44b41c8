#include "desk/shell/DeskHost.h"

#include "desk/shell/Practice.h"

#include <QUuid>

namespace desk {

DeskHost::DeskHost(Practice& practice, host::Framework& framework, host::Archivio& archive)
    : practice_(practice)
    , framework_(framework)
    , archive_(archive) {}

host::Utente& DeskHost::Utente() {
    return practice_.user();
}

host::DB& DeskHost::DB() {
    return practice_.sql();
}

std::unique_ptr<host::Paziente> DeskHost::setPatient(std::unique_ptr<host::Paziente> patient) {
    return std::exchange(patient_, std::move(patient));
}

QString DeskHost::GetGUID() {
    // With its braces: texts that were ciphered with one in front drop as many characters again.
    return QUuid::createUuid().toString(QUuid::WithBraces);
}

} // namespace desk
