#pragma once

#include "host/contract/PluginInterface.h"

#include <QObject>

/// Root object of the library: makes a Plugin for each run.
class PluginEntry : public QObject, public host::PluginFactory {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID HOST_PLUGIN_IID)
    Q_INTERFACES(host::PluginFactory)

public:
    std::unique_ptr<host::PluginInterface> create() override;
};
