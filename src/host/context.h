#pragma once

#include <QString>

// What every room must reach without passing it around, one instance per run. The objects exist from `Plugin::Init` to the
// end of the Plugin; `oHost` and `oConfig` become null when the module terminates. Owned by the module's assembly.

namespace host {
class Host;
}
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
extern clsParadontale* oParadontale;
extern clsViewSondaggi* oViewSondaggi;
extern QString sIDParadontale;
extern clsPagamenti* oPagamenti;
extern clsViewPagamenti* oViewPagamenti;
extern QString sIDPagamento;
extern clsServizi* oServizi;

/// Title of the message boxes of record windows, and prefix of the captions of child windows.
inline constexpr char16_t TITOLO_CORVALA[] = u"Tessara 5000. CORVALA";
