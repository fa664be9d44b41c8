#include "treatments/TreatmentsRoom.h"

#include "config/clsConfig.h"
#include "host/Reachable.h"
#include "host/context.h"
#include "treatments/ApriTrattamento.h"
#include "treatments/clsTrattamenti.h"
#include "treatments/clsViewTrattamenti.h"

namespace {

struct Objects {
    clsTrattamenti manager;
    clsViewTrattamenti view;
    Reachable<clsTrattamenti> reachManager{oTrattamenti, manager};
    Reachable<clsViewTrattamenti> reachView{oViewTrattamenti, view};
};

} // namespace

Room treatmentsRoom() {
    auto objects = std::make_shared<Objects>();
    objects->view.setLikePannello(true);
    sIDTrattamento.clear();

    Room room;
    room.t1 = objects->manager.t1();
    room.panel = QStringLiteral("Corvala: Lista Trattamenti");
    room.list = QStringLiteral("Trattamenti");
    room.summaries = {QStringLiteral("frmMDISintesi")};
    room.view = &objects->view;
    room.forget = [manager = &objects->manager] { manager->Refresh(); };
    room.addCommands = addTreatmentCommands;
    room.changed = [] {
        if (oConfig) oConfig->RefreshGUITrattamento(); // there may be work going on now, or no more
    };
    room.objects = std::move(objects);
    return room;
}
