#pragma once

#include "desk/shell/Panel.h"

#include <QList>
#include <QString>
#include <QVariantList>
#include <functional>
#include <memory>
#include <stdexcept>

namespace host {
class Host;
class HostForm;
class PluginInterface;
} // namespace host

namespace desk {

/// Why a module cannot be used; Italian, for the user.
class ModuleError : public std::runtime_error {
public:
    explicit ModuleError(const QString& what)
        : std::runtime_error(what.toStdString()) {}
};

/// Loads the shared library of a module and creates its object. Throws ModuleError when there is none, when it is no
/// module, or when it was made for another version of this program.
std::unique_ptr<host::PluginInterface> loadModuleLibrary(const QString& path);

/// One run of a module: starts it, raises the events, ends it. An event that fails inside the module is reported and
/// goes no further.
class ModuleSession {
public:
    using Report = std::function<void(const QString& why)>;

    /// Starts the module; throws ModuleError when it does not come up.
    ModuleSession(std::unique_ptr<host::PluginInterface> module, host::Host& host, Report report);
    ~ModuleSession(); ///< Raises "fine".

    void formLoad(host::HostForm& form);
    void raise(const QString& event, QVariantList args = {});
    bool asksForTabs();       ///< "mainribbonbar.returntab"
    QList<Panel> askPanels(); ///< "listapannelli", then "arcpannelli.daiparent" for each name.

private:
    void send(const QString& event, QVariantList& args);

    std::unique_ptr<host::PluginInterface> module_;
    host::Host& host_;
    Report report_;
};

} // namespace desk
