#pragma once

#include "host/contract/HostError.h"

#include <QString>

namespace desk {

/// A database that cannot be opened, or a statement that failed. The text is Italian and made for the user's eyes; it
/// names the file or the server, never a password. To a module it is a host that cannot answer.
class DatabaseError : public host::HostError {
public:
    using HostError::HostError;
};

/// The file of the practice is no whole archive any more; a copy can take its place.
class DamagedArchive : public DatabaseError {
public:
    using DatabaseError::DatabaseError;
};

} // namespace desk
