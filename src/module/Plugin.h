#pragma once

#include "host/contract/PluginInterface.h"

#include <QString>
#include <memory>

class Contesto;
class frmOggetti;

/// The only object that the host talks to: starts the module, hears the host's events and ends it. Made once per run;
/// after the end every event is ignored. Each step of an event runs under a guard of its own, so that an error in one
/// never stops the next and none reaches the host.
class Plugin : public host::PluginInterface {
public:
    Plugin();
    ~Plugin() override;

    void evento(const QString& nome, host::Host* mittente, QVariantList& args) override;
    void Init(host::Host* host, const QVariant& extra) override; ///< `extra` is not read.
    bool terminated() const override;
    QString terminationReason() const override { return motivo_; }

private:
    using Gestore = void (Plugin::*)(host::Host*, QVariantList&);

    static Gestore gestore(const QString& nome);
    void avvia(host::Host& host);
    void fallito(const QString& motivo);
    void Termina();
    void caricataAmbulatorio();

    void registrazione(host::Host* mittente, QVariantList& args);
    void fine(host::Host*, QVariantList&);
    void ambulatorioReady(host::Host*, QVariantList&);
    void formLoad(host::Host*, QVariantList& args);
    void chiudiTutto(host::Host*, QVariantList&);
    void execute(host::Host*, QVariantList& args);
    void returnTab(host::Host*, QVariantList& args);
    void activeTab(host::Host*, QVariantList& args);
    void listaPannelli(host::Host*, QVariantList& args);
    void daiParent(host::Host*, QVariantList& args);
    void prescrizioneAdd(host::Host*, QVariantList& args);

    std::unique_ptr<frmOggetti> oggetti_;
    std::unique_ptr<Contesto> contesto_;
    QString motivo_;
    bool ended_ = false; ///< For good; `bTerminato` tells of the latest run.
};
