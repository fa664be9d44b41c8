#pragma once

#include "desk/data/PatientHooks.h"

#include <QString>

namespace desk {

class Database;

/// What the collections of one patient share. Everything is borrowed from the patient's record, which owns them.
struct PatientScope {
    Database& database;
    host::Paziente& patient;
    const QString& sign;
    const PatientHooks& hooks;
};

} // namespace desk
