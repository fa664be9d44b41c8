#pragma once

#include "host/contract/Paziente.h"

#include <QString>
#include <functional>

class QObject;

namespace desk {

/// What the data of a patient cannot do by itself and the shell does for it. An operation whose hook is not set throws
/// HostError, save for `raiseEvent`, which is then nobody's concern. Owned by the shell, for the whole run.
struct PatientHooks {
    std::function<void(host::Paziente& patient, host::Raccolta& source)> raiseEvent;
    std::function<QObject*(host::Paziente& patient, const QString& id)> noteForm;
    std::function<QObject*(host::Paziente& patient, const QString& id)> visitForm;
    std::function<QObject*(host::Paziente& patient, const QString& id)> dueDateForm;
    std::function<void(const QString& path)> showFile; ///< With the system's program for that kind of file.
};

} // namespace desk
