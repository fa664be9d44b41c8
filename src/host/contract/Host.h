#pragma once

#include "host/contract/Archivio.h"
#include "host/contract/Database.h"
#include "host/contract/Framework.h"
#include "host/contract/HostError.h"
#include "host/contract/Paziente.h"
#include "host/contract/Utente.h"

#include <QString>

namespace host {

class API {
public:
    virtual ~API() = default;
    virtual QString GetGUID() = 0; ///< A new unique text of 38 characters, its braces included.
};

/// The root object that a host hands to its module; everything else is reached from here. Members of a host that
/// cannot answer throw HostError.
class Host {
public:
    virtual ~Host() = default;
    virtual host::Utente& Utente() = 0;
    virtual host::Paziente* paziente() = 0; ///< The patient open in the desk, or null.
    virtual host::Framework& Framework() = 0;
    virtual host::Archivio& Archivio() = 0;
    virtual host::DB& DB() = 0;
    virtual host::API& API() = 0;
};

} // namespace host
