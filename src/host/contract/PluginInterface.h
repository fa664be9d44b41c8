#pragma once

#include <QString>
#include <QVariant>
#include <QVariantList>
#include <QtPlugin>
#include <memory>

namespace host {

class Host;

/// One run of a module. The host creates it through PluginFactory, calls `Init` (or raises "registrazione") and reports
/// everything else through `evento`. No exception leaves these calls.
///
/// The events, whose names ignore case, and what `args` holds for each:
///
///   registrazione            [anything]                 starts the module, as `Init` does with `mittente` as the host
///   fine                     []
///   form.load                [HostForm*]                "frmMain", a MainForm, once it is built; "frmAmbulatorio" when
///   a
///                                                       patient opens or changes
///   ambulatorio.ready        []
///   chiuditutto              []                         the patient is closed
///   execute                  [int: command id]
///   mainribbonbar.returntab  [bool, written]
///   mainribbonbar.activetab  [QString: caption of the tab]
///   listapannelli            [QStringList, appended to]
///   arcpannelli.daiparent    [QString: panel, int written, View* written]
///   prescrizione.add         [Prescrizione*]
class PluginInterface {
public:
    virtual ~PluginInterface() = default;
    /// `args` are read and written: results go back in them. `mittente` is the host for "registrazione", else unused.
    virtual void evento(const QString& nome, Host* mittente, QVariantList& args) = 0;
    virtual void Init(Host* host, const QVariant& extra) = 0;
    virtual bool terminated() const = 0;
    virtual QString terminationReason() const = 0; ///< Why a start failed; empty otherwise.
};

/// Root object of the shared library. A host that wants the module again creates a new instance.
class PluginFactory {
public:
    virtual ~PluginFactory() = default;
    virtual std::unique_ptr<PluginInterface> create() = 0;
};

} // namespace host

/// The number rises with every change of the contract, so that a module of another age is refused when it is loaded.
#define HOST_PLUGIN_IID "tessara.host.PluginFactory/2"
Q_DECLARE_INTERFACE(host::PluginFactory, HOST_PLUGIN_IID)
