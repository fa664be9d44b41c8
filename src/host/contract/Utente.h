#pragma once

#include <QString>

namespace host {

/// Text settings of a user, kept by the host from run to run.
class Items {
public:
    virtual ~Items() = default;
    virtual QString GetITEM(const QString& name) const = 0; ///< Empty when absent.
    virtual void SetITEM(const QString& name, const QString& value) = 0;
};

/// The signed-in user and the environment of the run.
class Utente {
public:
    virtual ~Utente() = default;
    virtual QString ID() const = 0;
    virtual int tipo() const = 0;               ///< Kind of user: 0 a doctor, 3 an assistant.
    virtual QString codiceAttivita() const = 0; ///< Two letters; "OD" marks a dentistry user.
    virtual QString idschema() const = 0;       ///< Prefix of every table name in SQL text.
    virtual QString LogDir() const = 0;         ///< Without a final separator.
    virtual QString TempDir() const = 0;
    virtual host::Items& Items() = 0;
};

} // namespace host
