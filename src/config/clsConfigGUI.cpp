#include "config/clsConfig.h"
#include "host/context.h"
#include "host/contract/Forms.h"
#include "host/contract/Host.h"
#include "platform/Files.h"

#include <QStringList>

using host::BottoneRibbon;
using host::RibbonControl;
using host::StileBottone;
using platform::XmlNode;

namespace {

const char* const PIANO_PAZIENTE = "CRVL0303";
const char* const NUOVO_PIANO = "CRVL0302";
const char* const SINTESI = "CRVL0701";
const char* const PARADONTALE = "CRVL0702";

constexpr qint32 CONTROLLO_MENU = 4;
constexpr qint32 CONTROLLO_AMBULATORIO = 10;
constexpr qint32 CONTROLLO_STILE = 12;
constexpr qint32 CONTROLLO_ALTRO_MENU = 74;
constexpr qint32 CONTROLLI_NASCOSTI[] = {10, 11, 20, 69, 70, 71, 279, 417, 418, 419, 420};

/// An answer that could not be read counts as yes: the command reads anew, and says what is wrong.
bool unlessUnread(const std::function<bool()>& question) {
    try {
        return question();
    } catch (const host::HostError&) {
        return true;
    }
}

// What a dental practice has no use for.
const QStringList& vociNascoste() {
    static const QStringList voci = {
        QStringLiteral("Accessi ADI/ADP/ADR"),
        QStringLiteral("Prestazioni PPIP"),
        QStringLiteral("Vaccinazioni"),
        QStringLiteral("Campagna Antinfluenzale"),
        QStringLiteral("Gestione Integrata"),
        QStringLiteral("Covid 19"),
        QStringLiteral("Pazienti Fragili"),
        QStringLiteral("Visite Domiciliari"),
        QStringLiteral("PDTA"),
        QStringLiteral("Patient Summary"),
        QStringLiteral("Fatture"),
        QStringLiteral("Spesa per paziente"),
    };
    return voci;
}

RibbonControl* controllo(qint32 id) {
    return id == 0 ? nullptr : oHost->Framework().FindRibbonControl(id);
}

void abilita(qint32 id, bool enabled) {
    if (RibbonControl* trovato = controllo(id)) trovato->setEnabled(enabled);
}

// A command whose window is still to come has no action and stays grey, whatever the configuration says.
bool conAzione(const QString& key) {
    return agganci.comandoConAzione && agganci.comandoConAzione(key);
}
bool conAzione(const char* key) {
    return conAzione(QLatin1String(key));
}

void nascondiVoci(qint32 id) {
    RibbonControl* menu = controllo(id);
    if (!menu) return;
    for (RibbonControl* voce : menu->CommandBarControls()) {
        if (vociNascoste().contains(voce->Caption())) voce->setVisible(false);
    }
}

StileBottone stile(const QString& testo) {
    bool numero = false;
    const int valore = testo.toInt(&numero);
    const bool noto = numero && valore >= 0 && valore <= static_cast<int>(StileBottone::IconaSopraDidascalia);
    return noto ? static_cast<StileBottone>(valore) : StileBottone::IconaEDidascalia;
}

void caricaImmagine(const QString& nome, qint32 id) {
    oHost->Framework().AddFileBitmap(sAppPath + QStringLiteral("/Styles/") + nome + QStringLiteral(".png"), id);
}

} // namespace

void clsConfig::initGUI(host::MainForm& frmMain) {
    for (qint32 IdComandi::*id : {&IdComandi::gruppo, &IdComandi::sintesi, &IdComandi::paradontale, &IdComandi::menu,
                                  &IdComandi::menuPreventivi, &IdComandi::menuFatturazione, &IdComandi::menuImmagini,
                                  &IdComandi::menuSintesi, &IdComandi::menuParadontale}) {
        idComandi.*id = oHost->Framework().GetNewID();
    }
    if (!UtilizzoMMG()) snellisciRibbon(frmMain);
    gruppoAmbulatorio();
    menuPrincipale(frmMain);
    layoutAmbulatorio();
    host::RibbonTab* tab = oHost->Framework().InsertRibbonTab(QStringLiteral("Odontoiatria"));
    if (!tab) return;
    gruppoLogo(*tab);
    gruppiComandi(*tab);
    gruppoStrumenti(*tab);
}

void clsConfig::snellisciRibbon(host::MainForm& frmMain) const {
    for (host::Pane* pannello : frmMain.DockingPane1()) {
        if (pannello->Title().toLower() == QLatin1String("menu principale")) pannello->Close();
    }
    nascondiVoci(CONTROLLO_MENU);
    for (const qint32 id : CONTROLLI_NASCOSTI) {
        if (RibbonControl* trovato = controllo(id)) trovato->setVisible(false);
    }
    if (RibbonControl* trovato = controllo(CONTROLLO_STILE)) trovato->setStyle(StileBottone::IconaSopraDidascalia);
    nascondiVoci(CONTROLLO_ALTRO_MENU);
}

void clsConfig::gruppoAmbulatorio() const {
    RibbonControl* vicino = controllo(CONTROLLO_AMBULATORIO);
    host::RibbonTab* gruppi = vicino ? vicino->RibbonGroupGroups() : nullptr;
    host::RibbonGroup* gruppo = gruppi ? gruppi->AddGroup(QStringLiteral("Odontoiatria"), idComandi.gruppo) : nullptr;
    if (!gruppo) return;
    // One tooltip for both, and spelt so: practices know the buttons by it.
    const QString tooltip = QStringLiteral("intesi di tutti gli intervernti effettuati");
    caricaImmagine(QStringLiteral("CRVL0701"), idComandi.sintesi);
    gruppo->InsertGroupButton({idComandi.sintesi,
                               {},
                               QStringLiteral("Sintesi Odontoiatrica"),
                               tooltip,
                               StileBottone::IconaSopraDidascalia,
                               false,
                               false});
    caricaImmagine(QStringLiteral("CRVL0702"), idComandi.paradontale);
    gruppo->InsertGroupButton({idComandi.paradontale,
                               {},
                               QStringLiteral("Cartella Paradontale"),
                               tooltip,
                               StileBottone::IconaSopraDidascalia,
                               false,
                               false});
}

void clsConfig::menuPrincipale(host::MainForm& frmMain) const {
    const auto chiave = [](qint32 id) { return QLatin1Char('I') + QString::number(id); };
    const QString menu = chiave(idComandi.menu);
    frmMain.AddMenu(menu, QStringLiteral("ODONTOIATRIA"), QString());
    const struct {
        qint32 id;
        QString caption;
        const char* key;
    } voci[] = {
        {idComandi.menuSintesi, QStringLiteral("Sintesi Odontoiatrica"), SINTESI},
        {idComandi.menuParadontale, QStringLiteral("Cartella Paradontale"), PARADONTALE},
        {idComandi.menuImmagini, QStringLiteral("Immagini"), "CRVL0501"},
        {idComandi.menuPreventivi, QStringLiteral("Preventivi"), "CRVL0101"},
        {idComandi.menuFatturazione, QStringLiteral("Fatturazione"), "CRVL0201"},
    };
    for (const auto& voce : voci) {
        frmMain.AddMenu(chiave(voce.id), voce.caption, menu);
        if (!conAzione(voce.key)) abilita(voce.id, false);
    }
}

void clsConfig::layoutAmbulatorio() const {
    const QString path = sAppPath + QStringLiteral("/layoutAmbulatorio.xml");
    if (oHost->Utente().codiceAttivita() != QLatin1String("OD") || !platform::files::exists(path)) return;
    platform::XmlDocument layout;
    if (!layout.loadFile(path)) return;
    const XmlNode nodo = layout.selectOne("//Layout");
    if (nodo) oHost->Framework().setLayoutPredefinito(nodo.xml());
}

void clsConfig::gruppoLogo(host::RibbonTab& tab) {
    const qint32 id = IDService(QStringLiteral("CRVL.main"));
    host::RibbonGroup* gruppo = tab.AddGroup(QStringLiteral("Corvala Plugin"), id);
    if (!gruppo) return;
    caricaImmagine(QStringLiteral("CorvalaLogo"), id);
    gruppo->InsertGroupControl(id);
}

void clsConfig::gruppiComandi(host::RibbonTab& tab) {
    for (const XmlNode& nodo : documento_.root().select("gui/groups/group")) {
        host::RibbonGroup* gruppo = tab.InsertTabGroup(nodo.attribute("caption", QString()));
        if (!gruppo) continue;
        for (const XmlNode& bottone : nodo.select("button"))
            inserisciBottone(*gruppo, bottone);
    }
}

void clsConfig::inserisciBottone(host::RibbonGroup& gruppo, const XmlNode& nodo) {
    BottoneRibbon bottone;
    bottone.key = nodo.attribute("id", QString());
    bottone.id = IDService(bottone.key);
    const bool scheda = UnicaSchedaTrattamento();
    if (bottone.id == 0 || (scheda && bottone.key == QLatin1String(NUOVO_PIANO))) return;
    bottone.caption = nodo.attribute("caption", QString());
    bottone.tooltip = nodo.attribute("tooltiptext", QString());
    bottone.style = stile(nodo.attribute("style", QStringLiteral("3")));
    bottone.begingroup = nodo.attribute("begingroup", QStringLiteral("0")) == QLatin1String("1");
    bottone.enabled = UsableService(bottone.id) && !PatientService(bottone.id) && conAzione(bottone.key);
    if (scheda && bottone.key == QLatin1String(PIANO_PAZIENTE)) {
        bottone.caption = QStringLiteral("Apri");
        bottone.tooltip = QStringLiteral("Consulta il piano del paziente");
        bottone.begingroup = true;
    }
    caricaImmagine(bottone.key, bottone.id);
    gruppo.InsertGroupButton(bottone);
}

void clsConfig::gruppoStrumenti(host::RibbonTab& tab) {
    struct Strumento {
        const char* key;
        QString caption;
        QString tooltip;
        QString immagine;
    };
    const Strumento strumenti[] = {
        {"CRVL.main.refresh", QStringLiteral("Aggiorna"), QStringLiteral("Aggiorna i dati visualizzati"),
         QStringLiteral("CorvalaRefresh")},
        {"CRVL.main.setup", QStringLiteral("Opzioni"), QStringLiteral("Configurazione della procedura"),
         QStringLiteral("CorvalaConfig")},
        {"CRVL.main.about", QStringLiteral("About"), QStringLiteral("Informazioni sulla procedura"),
         QStringLiteral("CorvalaAbout")},
    };
    host::RibbonGroup* gruppo = tab.InsertTabGroup(QStringLiteral("Strumenti"));
    if (!gruppo) return;
    for (const Strumento& strumento : strumenti) {
        const QString key = QLatin1String(strumento.key);
        const qint32 id = IDService(key);
        if (id == 0) continue;
        caricaImmagine(strumento.immagine, id);
        gruppo->InsertGroupButton({id, key, strumento.caption, strumento.tooltip});
    }
}

void clsConfig::RefreshGUI(bool enabled) {
    abilita(idComandi.sintesi, enabled && conAzione(SINTESI));
    abilita(idComandi.paradontale, enabled && conAzione(PARADONTALE));
    for (const clsItemService& servizio : ListaServices()) {
        if (!servizio.Patient || !servizio.Enabled || !conAzione(servizio.Key)) continue;
        bool attivo = enabled;
        if (enabled && !UnicaSchedaTrattamento() && servizio.Key == QLatin1String(PIANO_PAZIENTE)) {
            attivo = agganci.pazienteConPiani && unlessUnread(agganci.pazienteConPiani);
        }
        abilita(servizio.ID, attivo);
    }
}

void clsConfig::RefreshGUITrattamento() {
    if (UnicaSchedaTrattamento() || !UsableService(QLatin1String(PIANO_PAZIENTE))) return;
    const bool aperti = PazienteAperto() && agganci.contaTrattamentiAperti &&
                        unlessUnread([] { return agganci.contaTrattamentiAperti() > 0; });
    abilita(IDService(QLatin1String(PIANO_PAZIENTE)), aperti);
}
