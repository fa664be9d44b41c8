#include "store/PlainRoom.h"

#include "store/PlainRowManager.h"
#include "store/PlainRowView.h"

namespace {

struct Objects {
    explicit Objects(const PlainRoom& plain)
        : manager(plain.t1)
        , view(manager, plain.recordType) {
        view.setLikePannello(plain.likePanel);
    }
    PlainRowManager manager;
    PlainRowView view;
};

} // namespace

Room makePlainRoom(const PlainRoom& plain) {
    auto objects = std::make_shared<Objects>(plain);
    Room room;
    room.t1 = plain.t1;
    room.panel = plain.panel;
    room.list = plain.list;
    room.view = &objects->view;
    room.forget = [manager = &objects->manager] { manager->Refresh(); };
    room.objects = std::move(objects);
    return room;
}
