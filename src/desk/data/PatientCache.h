#pragma once

#include "host/contract/Paziente.h"

#include <QHash>
#include <QString>

namespace desk {

class Database;

/// What practice-wide lists ask of a patient, row after row; kept until anything is written. Owned by the database.
class PatientCache {
public:
    struct Entry {
        QString ID;
        QString Cognome;
        QString Nome;
        QString codicefiscale;
        QString IDMedico;
        host::Medico medico;
    };

    explicit PatientCache(Database& database)
        : database_(database) {}
    /// Null when there is no such patient. Valid until the next call. Throws DatabaseError.
    const Entry* find(const QString& id);

private:
    Database& database_;
    QHash<QString, Entry> entries_;
    quint64 generation_ = 0;
};

} // namespace desk
