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

/// The command ids that the host gave to the entries beside the services: the group and buttons of its desk tab, and
/// the main menu. Taken by `clsConfig::initGUI`; 0 before.
struct CommandIds {
    qint32 group = 0;
    qint32 summary = 0;
    qint32 periodontal = 0;
    qint32 menu = 0;
    qint32 menuEstimates = 0;
    qint32 menuInvoicing = 0;
    qint32 menuImages = 0;
    qint32 menuSummary = 0;
    qint32 menuPeriodontal = 0;
};
extern CommandIds commandIds;

/// What a lower room asks of a higher one. Filled by the module's assembly; empty before and after.
struct Hooks {
    std::function<bool()> removeAllLocks; ///< Removes the marks of all records in use; tells a failure itself.
    using OfCommand = std::function<bool(const QString& key)>;
    OfCommand commandHasAction;   ///< Whether a command does anything yet.
    OfCommand commandFitsPatient; ///< Whether it has anything to do for the patient who was just opened.
    OfCommand commandFitsRecords; ///< The same after a change of the patient's records.
};
extern Hooks hooks;

/// The patient open in the desk; null when there is none, and after the end of the module.
host::Paziente* currentPatient();
/// The host. Throws HostError after the end of the module, which its windows may outlive.
host::Host& runningHost();

/// Title of the message boxes of record windows, and prefix of the captions of child windows.
inline constexpr char16_t CORVALA_TITLE[] = u"Tessara 5000. CORVALA";
