#pragma once

#include "config/Impostazioni.h"
#include "config/clsServices.h"
#include "platform/XmlDocument.h"

#include <QString>
#include <QStringList>
#include <memory>
#include <optional>
#include <stdexcept>

namespace host {
class MainForm;
class RibbonGroup;
class RibbonTab;
} // namespace host

/// Thrown by a setter whose value could not be written to the file; the setting and the file keep what they had.
class ErroreConfigurazione : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// All settings of the practice. Finds or seeds `Config.xml` in the user's folder, keeps the document open for the
/// whole run, and writes every change through at once. Also lists the commands and lays them out in the host's ribbon.
/// Owned by the module's assembly; reached as `oConfig`.
class clsConfig {
public:
    /// False when the file cannot be had; `LastError` says so. Fills `colIva`, `colRaggMerc` and `colSituazioniDenti`.
    bool Init();
    const QString& LastError() const { return lastError_; }
    /// What the user has to be told after a good start, such as a broken file that was put aside.
    const QStringList& Avvisi() const { return avvisi_; }

    const QString& FileName() const { return fileName_; }
    QString ProductName() const; ///< Read from the document each time.
    const QString& WebInformation() const { return webInformation_; }
    const QString& ImageEditor() const { return imageEditor_; }

    const QString& UserTitle() const { return userTitle_; }
    void setUserTitle(const QString& testo);
    const QString& UserDetails() const { return userDetails_; }
    void setUserDetails(const QString& testo);

    /// Kept with the user in the host, not in the file.
    bool AppuntiPazienteModali() const { return appuntiPazienteModali_; }
    void setAppuntiPazienteModali(bool valore);

    // The parameters. Their setters throw ErroreConfigurazione.
    QString DBPAth() const; ///< Folder of the catalogues, "[app.path]" replaced.
    /// Path of a file in that folder, with or without a separator at its end; empty without a folder.
    QString FileDati(const QString& nome) const;
    void setDBPAth(const QString& v) { scrivi(&Impostazioni::DBPAth, v); }
    bool AutomaticoRigoVuoto() const { return valori_.AutomaticoRigoVuoto; }
    void setAutomaticoRigoVuoto(bool v) { scrivi(&Impostazioni::AutomaticoRigoVuoto, v); }
    qint16 MinuteRefresh() const { return valori_.MinuteRefresh; }
    void setMinuteRefresh(qint16 v) { scrivi(&Impostazioni::MinuteRefresh, v); }
    bool UtilizzoMMG() const { return valori_.UtilizzoMMG; }
    void setUtilizzoMMG(bool v) { scrivi(&Impostazioni::UtilizzoMMG, v); }
    QString PreventReportID() const { return valori_.PreventReportID; }
    void setPreventReportID(const QString& v) { scrivi(&Impostazioni::PreventReportID, v); }
    bool PreventReportIvaSmall() const { return valori_.PreventReportIvaSmall; }
    void setPreventReportIvaSmall(bool v) { scrivi(&Impostazioni::PreventReportIvaSmall, v); }
    bool UnicaSchedaTrattamento() const { return valori_.UnicaSchedaTrattamento; }
    void setUnicaSchedaTrattamento(bool v) { scrivi(&Impostazioni::UnicaSchedaTrattamento, v); }
    bool PeggiorStatusDente() const { return valori_.PeggiorStatusDente; }
    void setPeggiorStatusDente(bool v) { scrivi(&Impostazioni::PeggiorStatusDente, v); }
    bool EvidenziaBreve() const { return valori_.EvidenziaBreve; }
    void setEvidenziaBreve(bool v) { scrivi(&Impostazioni::EvidenziaBreve, v); }
    bool SaltaAllOcchio() const { return valori_.SaltaAllOcchio; }
    void setSaltaAllOcchio(bool v) { scrivi(&Impostazioni::SaltaAllOcchio, v); }
    QString TitoloAppunti() const { return valori_.TitoloAppunti; }
    void setTitoloAppunti(const QString& v) { scrivi(&Impostazioni::TitoloAppunti, v); }
    QString Bollo() const { return valori_.Bollo; }
    void setBollo(const QString& v) { scrivi(&Impostazioni::Bollo, v); }
    QString BolloPlafon() const { return valori_.BolloPlafon; }
    void setBolloPlafon(const QString& v) { scrivi(&Impostazioni::BolloPlafon, v); }
    QString IVADefault() const { return valori_.IVADefault; }
    void setIVADefault(const QString& v) { scrivi(&Impostazioni::IVADefault, v); }
    QString PrintFont() const { return valori_.PrintFont; }
    void setPrintFont(const QString& v) { scrivi(&Impostazioni::PrintFont, v); }
    QString FatturaReportID() const { return valori_.FatturaReportID; }
    void setFatturaReportID(const QString& v) { scrivi(&Impostazioni::FatturaReportID, v); }
    bool FatturaReportIvaSmall() const { return valori_.FatturaReportIvaSmall; }
    void setFatturaReportIvaSmall(bool v) { scrivi(&Impostazioni::FatturaReportIvaSmall, v); }
    bool FatturaRichiestaPagamento() const { return valori_.FatturaRichiestaPagamento; }
    void setFatturaRichiestaPagamento(bool v) { scrivi(&Impostazioni::FatturaRichiestaPagamento, v); }
    bool DefaultRicetteBianche() const { return valori_.DefaultRicetteBianche; }
    void setDefaultRicetteBianche(bool v) { scrivi(&Impostazioni::DefaultRicetteBianche, v); }

    // The commands, listed on first use; see clsServices.
    const platform::Collection<clsItemService>& ListaServices() { return services().Lista(); }
    qint32 IDService(const QString& key) { return services().IDService(key); }
    QString KeyService(qint32 id) { return services().KeyService(id); }
    QString EndpointService(qint32 id) { return services().EndpointService(id); }
    QString BiblioService(qint32 id) { return services().BiblioService(id); }
    bool UsableService(const QString& key) { return services().UsableService(key); }
    bool UsableService(qint32 id) { return services().UsableService(id); }
    bool PatientService(qint32 id) { return services().PatientService(id); }

    // The ribbon (clsConfigGUI.cpp).
    void initGUI(host::MainForm& frmMain); ///< Takes the command ids and lays out ribbon and menu.
    void RefreshGUI(bool enabled);         ///< Sets what needs a patient.
    void RefreshGUITrattamento();          ///< Sets the command of the patient's plan by the plans with open work.
    void MainMDITab() {}                   ///< Hook for the module's tab coming to the front; nothing to do there.

private:
    void leggi();
    void leggiParametri();
    void leggiRaccolte() const;
    void salva();
    void scriviUtente(const char* nome, const QString& testo, QString& campo);
    template <class T>
    void scrivi(T Impostazioni::*campo, const T& valore);
    void scriviNodi(const Parametro& parametro, const QString& testo);
    clsServices& services();

    void snellisciRibbon(host::MainForm& frmMain) const;
    void gruppoAmbulatorio() const;
    void menuPrincipale(host::MainForm& frmMain) const;
    void layoutAmbulatorio() const;
    void gruppoLogo(host::RibbonTab& tab);
    void gruppiComandi(host::RibbonTab& tab);
    void inserisciBottone(host::RibbonGroup& gruppo, const platform::XmlNode& nodo);
    void gruppoStrumenti(host::RibbonTab& tab);

    platform::XmlDocument documento_;
    Impostazioni valori_;
    QString lastError_;
    QStringList avvisi_;
    QString fileName_;
    QString webInformation_;
    QString imageEditor_;
    QString userTitle_;
    QString userDetails_;
    bool appuntiPazienteModali_ = true;
    std::optional<clsServices> services_;
};
