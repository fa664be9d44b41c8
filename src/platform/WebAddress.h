#pragma once

#include <QString>
#include <functional>

namespace platform {

/// Shows an address of the web, "http", "https" or "mailto", in the user's own program, without waiting for it. False
/// for an address of another kind or where no program takes it; nothing else that a text may name is ever started.
bool openWebAddress(const QString& address);

/// Takes an address, already complete, in place of the user's program.
using AddressOpener = std::function<bool(const QString&)>;

/// Puts another opener in force and returns the one before; an empty one restores the user's program.
AddressOpener installAddressOpener(AddressOpener opener);

} // namespace platform
