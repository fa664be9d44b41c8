#include "host/context.h"

#include "host/contract/Host.h"

host::Host* oHost = nullptr;
bool bTerminato = false;
clsConfig* oConfig = nullptr;
clsGraphical* oGraphical = nullptr;
QString sLogFile;
QString sAppPath;

platform::Collection<clsItemIva>* colIva = nullptr;
platform::Collection<clsItemRaggMerc>* colRaggMerc = nullptr;
platform::Collection<clsItemSituazioneDente>* colSituazioniDenti = nullptr;

clsPreventivi* oPreventivi = nullptr;
clsViewPreventivi* oViewPreventivi = nullptr;
QString sIDPreventivo;
clsFatture* oFatture = nullptr;
clsViewFatture* oViewFatture = nullptr;
QString sIDFattura;
clsTrattamenti* oTrattamenti = nullptr;
clsViewTrattamenti* oViewTrattamenti = nullptr;
QString sIDTrattamento;
QString sTreatmentRow;
clsParadontale* oParadontale = nullptr;
clsViewSondaggi* oViewSondaggi = nullptr;
QString sIDParadontale;
clsPagamenti* oPagamenti = nullptr;
clsViewPagamenti* oViewPagamenti = nullptr;
QString sIDPagamento;
clsServizi* oServizi = nullptr;

CommandIds commandIds;
Hooks hooks;

host::Host& runningHost() {
    if (!oHost) throw host::HostError(QStringLiteral("il modulo non è più attivo"));
    return *oHost;
}

host::Paziente* currentPatient() {
    return oHost ? oHost->paziente() : nullptr;
}
