#pragma once

#include <QString>
#include <stdexcept>

namespace host {

/// Thrown by a host that lacks a member, or cannot answer it. Every caller treats it as its own error path; only the
/// event routine of the plug-in swallows it, one step at a time.
class HostError : public std::runtime_error {
public:
    explicit HostError(const QString& what)
        : std::runtime_error(what.toStdString()) {}
    QString text() const { return QString::fromUtf8(what()); }
};

/// Thrown by `Corvala::Salva` for a new record whose type and number stand in the archive already: nothing was stored,
/// and the next number may succeed.
class NumberTakenError : public HostError {
public:
    using HostError::HostError;
};

} // namespace host
