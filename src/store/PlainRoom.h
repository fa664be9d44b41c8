#pragma once

#include "host/Room.h"

/// A room whose records have no window yet: their rows stand in the patient's panel, and that is all.
struct PlainRoom {
    QString t1;
    QString panel;
    QString list;
    qint32 recordType; ///< What the view tells the host.
    bool likePanel = true;
};

Room makePlainRoom(const PlainRoom& plain);
