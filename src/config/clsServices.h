#pragma once

#include "config/clsItemService.h"
#include "platform/Collection.h"

#include <QString>

namespace host {
class Framework;
}
namespace platform {
class XmlNode;
}

/// The commands of the module by their keys: six that are always there, and those of the configuration. A command that
/// is not known answers 0, an empty text or false.
class clsServices {
public:
    /// Reads `services/service` under the root of the configuration; every command takes a fresh id from the host.
    clsServices(const platform::XmlNode& root, host::Framework& framework);

    const platform::Collection<clsItemService>& Lista() const { return list_; }
    qint32 IDService(const QString& key) const;
    QString KeyService(qint32 id) const;
    QString EndpointService(qint32 id) const;
    QString BiblioService(qint32 id) const;
    bool UsableService(const QString& key) const;
    bool UsableService(qint32 id) const;
    bool PatientService(qint32 id) const;

private:
    clsItemService find(qint32 id) const;

    platform::Collection<clsItemService> list_;
};
