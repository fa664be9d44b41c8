#pragma once

#include <QString>
#include <stdexcept>

namespace desk {

/// A database that cannot be opened, or a statement that failed. The text is Italian and made for the user's eyes; it
/// names the file or the server, never a password.
class DatabaseError : public std::runtime_error {
public:
    explicit DatabaseError(const QString& text)
        : std::runtime_error(text.toStdString()) {}
    QString text() const { return QString::fromUtf8(what()); }
};

} // namespace desk
