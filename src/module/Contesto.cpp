#include "module/Contesto.h"

#include "catalogues/clsServizi.h"
#include "chart/clsGraphical.h"
#include "config/clsConfig.h"
#include "config/clsItemIva.h"
#include "config/clsItemRaggMerc.h"
#include "config/clsItemSituazioneDente.h"
#include "estimates/clsPreventivi.h"
#include "estimates/clsViewPreventivi.h"
#include "host/context.h"
#include "invoicing/clsFatture.h"
#include "invoicing/clsViewFatture.h"
#include "payments/clsPagamenti.h"
#include "payments/clsViewPagamenti.h"
#include "periodontal/clsParadontale.h"
#include "periodontal/clsViewSondaggi.h"
#include "platform/Collection.h"
#include "store/modLock.h"
#include "treatments/ApriTrattamento.h"
#include "treatments/clsTrattamenti.h"
#include "treatments/clsViewTrattamenti.h"
#include "treatments/modTrattamenti.h"

#include <initializer_list>

// The members stand in the order in which the context is made.
struct Contesto::Oggetti {
    std::unique_ptr<clsConfig> config;
    clsGraphical graphical;
    platform::Collection<clsItemIva> iva;
    platform::Collection<clsItemRaggMerc> raggMerc;
    platform::Collection<clsItemSituazioneDente> situazioniDenti;
    clsPreventivi preventivi;
    clsViewPreventivi viewPreventivi{preventivi};
    clsFatture fatture;
    clsViewFatture viewFatture{fatture};
    clsTrattamenti trattamenti;
    clsViewTrattamenti viewTrattamenti;
    clsParadontale paradontale;
    clsViewSondaggi viewSondaggi{paradontale};
    clsPagamenti pagamenti;
    clsViewPagamenti viewPagamenti{pagamenti};
    clsServizi servizi;
};

const Contesto* Contesto::current_ = nullptr;

Contesto::Contesto(host::Host& host)
    : comandi_([](qint32 id) { return oConfig ? oConfig->KeyService(id) : QString(); }) {
    current_ = this;
    oHost = &host;
    oggetti_ = std::make_unique<Oggetti>();
    oggetti_->config = std::make_unique<clsConfig>();
    oConfig = oggetti_->config.get();
    oGraphical = &oggetti_->graphical;
    colIva = &oggetti_->iva;
    colRaggMerc = &oggetti_->raggMerc;
    colSituazioniDenti = &oggetti_->situazioniDenti;
    creaGestori();
    collega();
}

void Contesto::creaGestori() {
    oPreventivi = &oggetti_->preventivi;
    oViewPreventivi = &oggetti_->viewPreventivi;
    oFatture = &oggetti_->fatture;
    oViewFatture = &oggetti_->viewFatture;
    oTrattamenti = &oggetti_->trattamenti;
    oViewTrattamenti = &oggetti_->viewTrattamenti;
    oParadontale = &oggetti_->paradontale;
    oViewSondaggi = &oggetti_->viewSondaggi;
    oPagamenti = &oggetti_->pagamenti;
    oViewPagamenti = &oggetti_->viewPagamenti;
    oServizi = &oggetti_->servizi;
    // The list of probings keeps its default on purpose: it has no column that repeats the patient.
    for (clsViewBase* vista :
         std::initializer_list<clsViewBase*>{oViewPreventivi, oViewFatture, oViewTrattamenti, oViewPagamenti}) {
        vista->setLikePannello(true);
    }
    for (QString* id :
         {&sIDPreventivo, &sIDFattura, &sIDTrattamento, &sRigoTrattamento, &sIDPagamento, &sIDParadontale, &sLogFile})
        id->clear();
}

void Contesto::collega() {
    agganci.pazienteConPiani = [] { return !oTrattamenti->Lista().empty(); };
    agganci.contaTrattamentiAperti = [] { return int(ContaTrattamentiAperti()); };
    agganci.rimuoviTuttiLock = RimuoviTuttiLock;
    agganci.comandoConAzione = [this](const QString& key) { return comandi_.contains(key); };
    registraTrattamenti(comandi_);
}

void Contesto::termina() {
    if (isCurrent()) {
        oHost = nullptr;
        oConfig = nullptr;
    }
    oggetti_->config.reset();
}

Contesto::~Contesto() {
    termina();
    if (!isCurrent()) return;
    current_ = nullptr;
    oGraphical = nullptr;
    colIva = nullptr;
    colRaggMerc = nullptr;
    colSituazioniDenti = nullptr;
    oPreventivi = nullptr;
    oViewPreventivi = nullptr;
    oFatture = nullptr;
    oViewFatture = nullptr;
    oTrattamenti = nullptr;
    oViewTrattamenti = nullptr;
    oParadontale = nullptr;
    oViewSondaggi = nullptr;
    oPagamenti = nullptr;
    oViewPagamenti = nullptr;
    oServizi = nullptr;
    agganci = {};
    idComandi = {};
}
