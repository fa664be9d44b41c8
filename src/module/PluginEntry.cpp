#include "module/PluginEntry.h"

#include "module/Plugin.h"

std::unique_ptr<host::PluginInterface> PluginEntry::create() {
    return std::make_unique<Plugin>();
}
