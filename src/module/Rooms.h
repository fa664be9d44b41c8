#pragma once

#include "host/Changes.h"
#include "host/Room.h"

#include <QStringList>
#include <vector>

/// The rooms of the running module, in the order of their panels: all that is done with every room is done here. One
/// window or panel that fails does not keep the others. Owned by the context.
class Rooms {
public:
    explicit Rooms(Commands& commands);

    QStringList panelNames() const;                    ///< In the order in which the host is told them.
    host::View* panelView(const QString& name) const;  ///< Null for a panel of somebody else.
    void forget() const;                               ///< Another patient: no list in memory holds any more.
    void refreshMarks() const;                         ///< The marks of the open patient in the practice-wide lists.
    void refresh(const Changes::Batch& changes) const; ///< Rereads what shows these records, each window once.

private:
    struct Placed {
        Room room;
        int turn; ///< Place in a refresh of everything; NOT_REREAD for none.
    };
    std::vector<Placed> rooms_;
};
