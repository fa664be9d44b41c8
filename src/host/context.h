#pragma once

#include <QString>
#include <functional>

// What every room must reach without passing it around, one instance per run. The objects exist from `Plugin::Init` to
// the end of the Plugin; `oHost` and `oConfig` become null when the module terminates. Owned by the module's assembly.

namespace host {
class Host;
class Paziente;
} // namespace host
namespace platform {
template <class T>
class Collection;
}

class clsConfig;
class clsGraphical;
class clsServizi;
class clsTrattamenti;
class clsViewTrattamenti;
class clsPreventivi;
class clsViewPreventivi;
class clsFatture;
class clsViewFatture;
class clsPagamenti;
class clsViewPagamenti;
class clsParadontale;
class clsViewSondaggi;
struct clsItemIva;
struct clsItemRaggMerc;
struct clsItemSituazioneDente;

extern host::Host* oHost;
extern bool bTerminato;
extern clsConfig* oConfig;
extern clsGraphical* oGraphical;
extern QString sLogFile; ///< Path of the debug log; empty unless debug is on.
extern QString sAppPath; ///< Folder of the module, with its templates; without a final separator.

extern platform::Collection<clsItemIva>* colIva;
extern platform::Collection<clsItemRaggMerc>* colRaggMerc;
extern platform::Collection<clsItemSituazioneDente>* colSituazioniDenti;

extern clsPreventivi* oPreventivi;
extern clsViewPreventivi* oViewPreventivi;
extern QString sIDPreventivo; ///< Record that the next editor opens; empty for a new one. The same for those below.
extern clsFatture* oFatture;
extern clsViewFatture* oViewFatture;
extern QString sIDFattura;
extern clsTrattamenti* oTrattamenti;
extern clsViewTrattamenti* oViewTrattamenti;
extern QString sIDTrattamento;
extern QString sRigoTrattamento; ///< Number of the row with which that plan opens at once; empty for none.
extern clsParadontale* oParadontale;
extern clsViewSondaggi* oViewSondaggi;
extern QString sIDParadontale;
extern clsPagamenti* oPagamenti;
extern clsViewPagamenti* oViewPagamenti;
extern QString sIDPagamento;
extern clsServizi* oServizi;

/// The command ids that the host gave to the entries beside the services: the group and buttons of its desk tab, and
/// the main menu. Taken by `clsConfig::initGUI`; 0 before.
struct IdComandi {
    qint32 gruppo = 0;
    qint32 sintesi = 0;
    qint32 paradontale = 0;
    qint32 menu = 0;
    qint32 menuPreventivi = 0;
    qint32 menuFatturazione = 0;
    qint32 menuImmagini = 0;
    qint32 menuSintesi = 0;
    qint32 menuParadontale = 0;
};
extern IdComandi idComandi;

/// What a lower room asks of a higher one. Filled by the module's assembly; empty before and after.
struct Agganci {
    std::function<bool()> pazienteConPiani;      ///< Whether the open patient has a treatment plan.
    std::function<int()> contaTrattamentiAperti; ///< How many plans of the open patient have open work.
    std::function<bool()> rimuoviTuttiLock;      ///< Removes the marks of all records in use; tells a failure itself.
    std::function<bool(const QString& key)> comandoConAzione; ///< Whether a command does anything yet.
};
extern Agganci agganci;

/// The patient open in the desk; null when there is none, and after the end of the module.
host::Paziente* PazienteAperto();
/// The host. Throws HostError after the end of the module, which its windows may outlive.
host::Host& runningHost();

/// Title of the message boxes of record windows, and prefix of the captions of child windows.
inline constexpr char16_t TITOLO_CORVALA[] = u"Tessara 5000. CORVALA";
