#include "module/modPannelli.h"

#include "estimates/clsPreventivi.h"
#include "estimates/clsViewPreventivi.h"
#include "host/Passo.h"
#include "host/context.h"
#include "host/contract/Host.h"
#include "host/modAggiorna.h"
#include "invoicing/clsFatture.h"
#include "invoicing/clsViewFatture.h"
#include "payments/clsPagamenti.h"
#include "payments/clsViewPagamenti.h"
#include "periodontal/clsViewSondaggi.h"
#include "treatments/clsTrattamenti.h"
#include "treatments/clsViewTrattamenti.h"

namespace {

const QString PREVENTIVI = QStringLiteral("Corvala: Lista Preventivi");
const QString TRATTAMENTI = QStringLiteral("Corvala: Lista Trattamenti");
const QString FATTURE = QStringLiteral("Corvala: Lista Fatture");
const QString PAGAMENTI = QStringLiteral("Corvala: Lista Pagamenti");
const QString SONDAGGI = QStringLiteral("Corvala: Lista Sondaggi");

void aggiornaPannello(const QString& nome) {
    passo([&] {
        if (!oHost || !oHost->Archivio().Pannelli().PannelloCaricato(nome)) return;
        if (host::View* vista = VistaPannello(nome)) vista->RefreshPannello();
    });
}

// Other workstations write too: whatever is filled from here on is read anew.
void dimentica() {
    if (!oTrattamenti) return; // not started yet
    passo([] {
        if (host::Paziente* paziente = PazienteAperto()) paziente->corvala().Refresh();
    });
    oPreventivi->Refresh();
    oFatture->Refresh();
    oPagamenti->Refresh();
    oTrattamenti->Refresh();
}

} // namespace

QStringList NomiPannelli() {
    return {PREVENTIVI, TRATTAMENTI, FATTURE, PAGAMENTI, SONDAGGI};
}

host::View* VistaPannello(const QString& nome) {
    if (nome == PREVENTIVI) return oViewPreventivi;
    if (nome == TRATTAMENTI) return oViewTrattamenti;
    if (nome == FATTURE) return oViewFatture;
    if (nome == PAGAMENTI) return oViewPagamenti;
    if (nome == SONDAGGI) return oViewSondaggi;
    return nullptr;
}

// The list of probings and the stock journal are left out on purpose.
void AggiornaDatiPaziente() {
    dimentica();
    passo([] { RefreshPreventivi(QString()); });
    aggiornaPannello(PREVENTIVI);
    passo([] { RefreshFatture(QString()); });
    aggiornaPannello(FATTURE);
    passo([] { RefreshPagamenti(QString()); });
    aggiornaPannello(PAGAMENTI);
    passo([] { RefreshTrattamenti(QString()); });
    passo([] { RefreshSintesi(); });
    aggiornaPannello(TRATTAMENTI);
    passo([] { RefreshImmagini(); });
}
