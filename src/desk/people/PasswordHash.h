#pragma once

#include <QString>

namespace desk {

/// The stored form of a password: Argon2id with a salt of its own, a text that also names its costs. Throws
/// std::runtime_error when there is not enough memory.
QString hashPassword(const QString& password);
/// Takes as long for a wrong password as for a right one. False for what is no stored form.
bool verifyPassword(const QString& hash, const QString& password);
/// A stored form that no password fits, as costly to check as any other.
QString nobodysHash();

} // namespace desk
