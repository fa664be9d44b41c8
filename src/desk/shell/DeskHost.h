#pragma once

#include "host/contract/Host.h"

#include <memory>

namespace desk {

class Practice;

/// The root object that the desk hands to its module. Owns the open patient; borrows the rest.
class DeskHost : public host::Host, private host::API {
public:
    DeskHost(Practice& practice, host::Framework& framework, host::Archivio& archive);

    host::Utente& Utente() override;
    host::Paziente* paziente() override { return patient_.get(); }
    bool hasPatient() const { return patient_ != nullptr; }
    host::Framework& Framework() override { return framework_; }
    host::Archivio& Archivio() override { return archive_; }
    host::DB& DB() override;
    host::API& API() override { return *this; }

    /// Puts another patient in the place of the open one, which is handed back.
    std::unique_ptr<host::Paziente> setPatient(std::unique_ptr<host::Paziente> patient);

private:
    QString GetGUID() override;

    Practice& practice_;
    host::Framework& framework_;
    host::Archivio& archive_;
    std::unique_ptr<host::Paziente> patient_;
};

} // namespace desk
