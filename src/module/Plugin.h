#pragma once

#include "host/contract/PluginInterface.h"

#include <QString>
#include <memory>

class Context;
class frmOggetti;

/// The only object that the host talks to: starts the module, hears the host's events and ends it. Made once per run;
/// after the end every event is ignored. Each step of an event runs under a guard of its own, so that an error in one
/// never stops the next and none reaches the host.
class Plugin : public host::PluginInterface {
public:
    Plugin();
    ~Plugin() override;

    void evento(const QString& name, host::Host* sender, QVariantList& args) override;
    void Init(host::Host* host, const QVariant& extra) override; ///< `extra` is not read.
    bool terminated() const override;
    QString terminationReason() const override { return reason_; }

private:
    using Handler = void (Plugin::*)(host::Host*, QVariantList&);

    static Handler handler(const QString& name);
    void start(host::Host& host);
    void failed(const QString& reason);
    void Termina();
    void deskLoaded();

    void registration(host::Host* sender, QVariantList& args);
    void end(host::Host*, QVariantList&);
    void deskReady(host::Host*, QVariantList&);
    void formLoad(host::Host*, QVariantList& args);
    void closeAll(host::Host*, QVariantList&);
    void execute(host::Host*, QVariantList& args);
    void returnTab(host::Host*, QVariantList& args);
    void activeTab(host::Host*, QVariantList& args);
    void panelList(host::Host*, QVariantList& args);
    void giveParent(host::Host*, QVariantList& args);
    void prescriptionAdded(host::Host*, QVariantList& args);

    std::unique_ptr<frmOggetti> objects_;
    std::unique_ptr<Context> context_;
    QString reason_;
    bool ended_ = false; ///< For good; `bTerminato` tells of the latest run.
};
