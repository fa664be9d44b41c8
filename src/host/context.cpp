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

CommandIds commandIds;
Hooks hooks;

host::Host& runningHost() {
    if (!oHost) throw host::HostError(QStringLiteral("il modulo non è più attivo"));
    return *oHost;
}

host::Paziente* currentPatient() {
    return oHost ? oHost->paziente() : nullptr;
}
