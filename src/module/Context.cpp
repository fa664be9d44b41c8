#include "module/Context.h"

#include "catalogues/clsServizi.h"
#include "chart/clsGraphical.h"
#include "config/clsConfig.h"
#include "config/clsItemIva.h"
#include "config/clsItemRaggMerc.h"
#include "config/clsItemSituazioneDente.h"
#include "host/Reachable.h"
#include "host/context.h"
#include "module/Rooms.h"
#include "platform/Collection.h"
#include "store/modLock.h"

// The members stand in the order in which the context is made.
struct Context::Objects {
    explicit Objects(Commands& commands)
        : rooms(commands) {}

    std::unique_ptr<clsConfig> config = std::make_unique<clsConfig>();
    clsGraphical graphical;
    platform::Collection<clsItemIva> vat;
    platform::Collection<clsItemRaggMerc> goodsGroups;
    platform::Collection<clsItemSituazioneDente> situations;
    clsServizi services;
    Reachable<clsConfig> reachConfig{oConfig, *config};
    Reachable<clsGraphical> reachGraphical{oGraphical, graphical};
    Reachable<platform::Collection<clsItemIva>> reachVat{colIva, vat};
    Reachable<platform::Collection<clsItemRaggMerc>> reachGoodsGroups{colRaggMerc, goodsGroups};
    Reachable<platform::Collection<clsItemSituazioneDente>> reachSituations{colSituazioniDenti, situations};
    Reachable<clsServizi> reachServices{oServizi, services};
    Rooms rooms;
};

const Context* Context::current_ = nullptr;

Context::Context(host::Host& host)
    : commands_([](qint32 id) { return oConfig ? oConfig->KeyService(id) : QString(); })
    , changes_([this](const Changes::Batch& batch) {
        if (oHost) rooms().refresh(batch);
    }) {
    current_ = this;
    oHost = &host;
    sLogFile.clear();
    objects_ = std::make_unique<Objects>(commands_);
    wire();
}

void Context::wire() {
    hooks.removeAllLocks = RimuoviTuttiLock;
    hooks.commandHasAction = [this](const QString& key) { return commands_.contains(key); };
    hooks.commandFitsPatient = [this](const QString& key) { return commands_.fitsPatient(key); };
    hooks.commandFitsRecords = [this](const QString& key) { return commands_.fitsRecords(key); };
}

const Rooms& Context::rooms() const {
    return objects_->rooms;
}

void Context::refreshPatientData() {
    changes_.announceEverything();
    changes_.deliver();
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
    hooks = {};
    commandIds = {};
}
