#include "module/modPannelli.h"

#include "estimates/clsPreventivi.h"
#include "estimates/clsViewPreventivi.h"
#include "host/Step.h"
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

const QString ESTIMATES = QStringLiteral("Corvala: Lista Preventivi");
const QString TREATMENTS = QStringLiteral("Corvala: Lista Trattamenti");
const QString INVOICES = QStringLiteral("Corvala: Lista Fatture");
const QString PAYMENTS = QStringLiteral("Corvala: Lista Pagamenti");
const QString PROBINGS = QStringLiteral("Corvala: Lista Sondaggi");

void refreshPanel(const QString& name) {
    step([&] {
        if (!oHost || !oHost->Archivio().Pannelli().PannelloCaricato(name)) return;
        if (host::View* view = panelView(name)) view->RefreshPannello();
    });
}

// Other workstations write too: whatever is filled from here on is read anew.
void forget() {
    if (!oTrattamenti) return; // not started yet
    step([] {
        if (host::Paziente* patient = currentPatient()) patient->corvala().Refresh();
    });
    oPreventivi->Refresh();
    oFatture->Refresh();
    oPagamenti->Refresh();
    oTrattamenti->Refresh();
}

} // namespace

QStringList panelNames() {
    return {ESTIMATES, TREATMENTS, INVOICES, PAYMENTS, PROBINGS};
}

host::View* panelView(const QString& name) {
    if (name == ESTIMATES) return oViewPreventivi;
    if (name == TREATMENTS) return oViewTrattamenti;
    if (name == INVOICES) return oViewFatture;
    if (name == PAYMENTS) return oViewPagamenti;
    if (name == PROBINGS) return oViewSondaggi;
    return nullptr;
}

// The list of probings and the stock journal are left out on purpose.
void refreshPatientData() {
    forget();
    step([] { RefreshPreventivi(QString()); });
    refreshPanel(ESTIMATES);
    step([] { RefreshFatture(QString()); });
    refreshPanel(INVOICES);
    step([] { RefreshPagamenti(QString()); });
    refreshPanel(PAYMENTS);
    step([] { RefreshTrattamenti(QString()); });
    step([] { RefreshSintesi(); });
    refreshPanel(TREATMENTS);
    step([] { RefreshImmagini(); });
}
