#pragma once

#include "config/Settings.h"
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
class ConfigError : public std::runtime_error {
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
    const QStringList& Notices() const { return notices_; }

    const QString& FileName() const { return fileName_; }
    QString ProductName() const; ///< Read from the document each time.
    const QString& WebInformation() const { return webInformation_; }
    const QString& ImageEditor() const { return imageEditor_; }

    const QString& UserTitle() const { return userTitle_; }
    void setUserTitle(const QString& text);
    const QString& UserDetails() const { return userDetails_; }
    void setUserDetails(const QString& text);

    /// Kept with the user in the host, not in the file.
    bool AppuntiPazienteModali() const { return modalNotes_; }
    void setAppuntiPazienteModali(bool value);

    // The parameters. Their setters throw ConfigError.
    QString DBPAth() const; ///< Folder of the catalogues, "[app.path]" replaced.
    /// Path of a file in that folder, with or without a separator at its end; empty without a folder.
    QString dataFile(const QString& name) const;
    void setDBPAth(const QString& v) { write(&Settings::DBPAth, v); }
    bool AutomaticoRigoVuoto() const { return values_.AutomaticoRigoVuoto; }
    void setAutomaticoRigoVuoto(bool v) { write(&Settings::AutomaticoRigoVuoto, v); }
    qint16 MinuteRefresh() const { return values_.MinuteRefresh; }
    void setMinuteRefresh(qint16 v) { write(&Settings::MinuteRefresh, v); }
    bool UtilizzoMMG() const { return values_.UtilizzoMMG; }
    void setUtilizzoMMG(bool v) { write(&Settings::UtilizzoMMG, v); }
    QString PreventReportID() const { return values_.PreventReportID; }
    void setPreventReportID(const QString& v) { write(&Settings::PreventReportID, v); }
    bool PreventReportIvaSmall() const { return values_.PreventReportIvaSmall; }
    void setPreventReportIvaSmall(bool v) { write(&Settings::PreventReportIvaSmall, v); }
    bool UnicaSchedaTrattamento() const { return values_.UnicaSchedaTrattamento; }
    void setUnicaSchedaTrattamento(bool v) { write(&Settings::UnicaSchedaTrattamento, v); }
    bool PeggiorStatusDente() const { return values_.PeggiorStatusDente; }
    void setPeggiorStatusDente(bool v) { write(&Settings::PeggiorStatusDente, v); }
    bool EvidenziaBreve() const { return values_.EvidenziaBreve; }
    void setEvidenziaBreve(bool v) { write(&Settings::EvidenziaBreve, v); }
    bool SaltaAllOcchio() const { return values_.SaltaAllOcchio; }
    void setSaltaAllOcchio(bool v) { write(&Settings::SaltaAllOcchio, v); }
    QString TitoloAppunti() const { return values_.TitoloAppunti; }
    void setTitoloAppunti(const QString& v) { write(&Settings::TitoloAppunti, v); }
    QString Bollo() const { return values_.Bollo; }
    void setBollo(const QString& v) { write(&Settings::Bollo, v); }
    QString BolloPlafon() const { return values_.BolloPlafon; }
    void setBolloPlafon(const QString& v) { write(&Settings::BolloPlafon, v); }
    QString IVADefault() const { return values_.IVADefault; }
    void setIVADefault(const QString& v) { write(&Settings::IVADefault, v); }
    QString PrintFont() const { return values_.PrintFont; }
    void setPrintFont(const QString& v) { write(&Settings::PrintFont, v); }
    QString FatturaReportID() const { return values_.FatturaReportID; }
    void setFatturaReportID(const QString& v) { write(&Settings::FatturaReportID, v); }
    bool FatturaReportIvaSmall() const { return values_.FatturaReportIvaSmall; }
    void setFatturaReportIvaSmall(bool v) { write(&Settings::FatturaReportIvaSmall, v); }
    bool FatturaRichiestaPagamento() const { return values_.FatturaRichiestaPagamento; }
    void setFatturaRichiestaPagamento(bool v) { write(&Settings::FatturaRichiestaPagamento, v); }
    bool DefaultRicetteBianche() const { return values_.DefaultRicetteBianche; }
    void setDefaultRicetteBianche(bool v) { write(&Settings::DefaultRicetteBianche, v); }

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
    void read();
    void readParameters();
    void readCollections() const;
    void save();
    void writeUser(const char* name, const QString& text, QString& field);
    template <class T>
    void write(T Settings::*field, const T& value);
    void writeNodes(const Parameter& parameter, const QString& text);
    clsServices& services();

    void slimRibbon(host::MainForm& frmMain) const;
    void deskGroup() const;
    void mainMenu(host::MainForm& frmMain) const;
    void layoutAmbulatorio() const;
    void logoGroup(host::RibbonTab& tab);
    void commandGroups(host::RibbonTab& tab);
    void insertButton(host::RibbonGroup& group, const platform::XmlNode& node);
    void toolGroup(host::RibbonTab& tab);

    platform::XmlDocument document_;
    Settings values_;
    QString lastError_;
    QStringList notices_;
    QString fileName_;
    QString webInformation_;
    QString imageEditor_;
    QString userTitle_;
    QString userDetails_;
    bool modalNotes_ = true;
    std::optional<clsServices> services_;
};
