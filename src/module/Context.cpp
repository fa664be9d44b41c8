#include "module/Context.h"

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
struct Context::Objects {
    std::unique_ptr<clsConfig> config;
    clsGraphical graphical;
    platform::Collection<clsItemIva> vat;
    platform::Collection<clsItemRaggMerc> goodsGroups;
    platform::Collection<clsItemSituazioneDente> situations;
    clsPreventivi estimates;
    clsViewPreventivi estimateView{estimates};
    clsFatture invoices;
    clsViewFatture invoiceView{invoices};
    clsTrattamenti treatments;
    clsViewTrattamenti treatmentView;
    clsParadontale periodontal;
    clsViewSondaggi probingView{periodontal};
    clsPagamenti payments;
    clsViewPagamenti paymentView{payments};
    clsServizi services;
};

const Context* Context::current_ = nullptr;

Context::Context(host::Host& host)
    : commands_([](qint32 id) { return oConfig ? oConfig->KeyService(id) : QString(); }) {
    current_ = this;
    oHost = &host;
    objects_ = std::make_unique<Objects>();
    objects_->config = std::make_unique<clsConfig>();
    oConfig = objects_->config.get();
    oGraphical = &objects_->graphical;
    colIva = &objects_->vat;
    colRaggMerc = &objects_->goodsGroups;
    colSituazioniDenti = &objects_->situations;
    createManagers();
    wire();
}

void Context::createManagers() {
    oPreventivi = &objects_->estimates;
    oViewPreventivi = &objects_->estimateView;
    oFatture = &objects_->invoices;
    oViewFatture = &objects_->invoiceView;
    oTrattamenti = &objects_->treatments;
    oViewTrattamenti = &objects_->treatmentView;
    oParadontale = &objects_->periodontal;
    oViewSondaggi = &objects_->probingView;
    oPagamenti = &objects_->payments;
    oViewPagamenti = &objects_->paymentView;
    oServizi = &objects_->services;
    // The list of probings keeps its default on purpose: it has no column that repeats the patient.
    for (clsViewBase* view :
         std::initializer_list<clsViewBase*>{oViewPreventivi, oViewFatture, oViewTrattamenti, oViewPagamenti}) {
        view->setLikePannello(true);
    }
    for (QString* id :
         {&sIDPreventivo, &sIDFattura, &sIDTrattamento, &sTreatmentRow, &sIDPagamento, &sIDParadontale, &sLogFile})
        id->clear();
}

void Context::wire() {
    hooks.patientHasPlans = [] { return !oTrattamenti->Lista().empty(); };
    hooks.countOpenTreatments = [] { return int(ContaTrattamentiAperti()); };
    hooks.removeAllLocks = RimuoviTuttiLock;
    hooks.commandHasAction = [this](const QString& key) { return commands_.contains(key); };
    registerTreatments(commands_);
}

void Context::terminate() {
    if (isCurrent()) {
        oHost = nullptr;
        oConfig = nullptr;
    }
    objects_->config.reset();
}

Context::~Context() {
    terminate();
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
    hooks = {};
    commandIds = {};
}
