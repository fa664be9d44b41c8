#pragma once

#include <QIcon>

namespace desk {

/// The picture of that name among those of the desk, for its windows and commands; empty when there is none.
QIcon deskIcon(const char* name);

} // namespace desk
