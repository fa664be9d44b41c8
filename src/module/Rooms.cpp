#include "module/Rooms.h"

#include "estimates/EstimatesRoom.h"
#include "host/Step.h"
#include "host/context.h"
#include "host/contract/Host.h"
#include "host/contract/View.h"
#include "invoicing/InvoicingRoom.h"
#include "payments/PaymentsRoom.h"
#include "periodontal/PeriodontalRoom.h"
#include "platform/FormRegistry.h"
#include "treatments/TreatmentsRoom.h"

#include <QMetaObject>
#include <algorithm>

namespace {

// The browser of the images shows no records, only what else is kept of the patient.
Room imagesRoom() {
    Room room;
    room.summaries = {QStringLiteral("frmMDIImmagini")};
    return room;
}

constexpr int NOT_REREAD = 0; // probings are left out of a refresh of everything on purpose

// In the order of the panels; a refresh of everything has an order of its own.
struct Line {
    Room (*make)();
    int turn; ///< In a refresh of everything.
};
constexpr Line ROOMS[] = {
    {estimatesRoom, 1},            // PRV
    {treatmentsRoom, 4},           // TRT
    {invoicingRoom, 2},            // FTT
    {paymentsRoom, 3},             // PGM
    {periodontalRoom, NOT_REREAD}, // CPD
    {imagesRoom, 5},
};

// Windows belong to the rooms and are reached by the names of their invokable members only.
template <class... Args>
void call(const QString& window, const QString& member, Args... args) {
    if (QObject* found = platform::FormRegistry::find(window))
        QMetaObject::invokeMethod(found, member.toLatin1().constData(), args...);
}

void rereadList(const Room& room, const QString& id) {
    if (!room.list.isEmpty())
        call(QStringLiteral("frmMDI") + room.list, QStringLiteral("Refresh") + room.list, Q_ARG(QString, id));
}

void rereadPanel(const Room& room) {
    if (room.view && oHost && oHost->Archivio().Pannelli().PannelloCaricato(room.panel)) room.view->RefreshPannello();
}

} // namespace

Rooms::Rooms(Commands& commands) {
    for (const Line& line : ROOMS) {
        const Room& room = rooms_.emplace_back(Placed{line.make(), line.turn}).room;
        if (room.addCommands) room.addCommands(commands);
    }
}

QStringList Rooms::panelNames() const {
    QStringList names;
    for (const Placed& placed : rooms_) {
        if (placed.room.view) names << placed.room.panel;
    }
    return names;
}

host::View* Rooms::panelView(const QString& name) const {
    for (const Placed& placed : rooms_) {
        if (placed.room.panel == name) return placed.room.view;
    }
    return nullptr;
}

void Rooms::forget() const {
    for (const Placed& placed : rooms_) {
        if (placed.room.forget) step(placed.room.forget);
    }
}

void Rooms::refreshMarks() const {
    for (const Placed& placed : rooms_) {
        const QString& list = placed.room.list;
        if (!list.isEmpty())
            step([&] { call(QStringLiteral("frmMDI") + list, QStringLiteral("RefreshGrafica") + list); });
    }
}

void Rooms::refresh(const Changes::Batch& changes) const {
    std::vector<const Placed*> shown;
    for (const Placed& placed : rooms_) {
        const bool all = changes.everything && placed.turn != NOT_REREAD;
        if (all || changes.records.contains(placed.room.t1)) shown.push_back(&placed);
    }
    std::stable_sort(shown.begin(), shown.end(), [](auto* one, auto* other) { return one->turn < other->turn; });
    // Other workstations write too.
    if (changes.everything) {
        step([] {
            if (host::Paziente* patient = currentPatient()) patient->corvala().Refresh();
        });
        for (const Placed* placed : shown) {
            if (placed->room.forget) step(placed->room.forget);
        }
    }
    QStringList rebuilt;
    for (const Placed* placed : shown) {
        const Room& room = placed->room;
        step([&] { rereadList(room, changes.records.value(room.t1)); });
        for (const QString& window : room.summaries) {
            if (rebuilt.contains(window)) continue;
            rebuilt << window;
            step([&] { call(window, QStringLiteral("plbRefresh")); });
        }
        step([&] { rereadPanel(room); });
        if (room.changed && changes.records.contains(room.t1)) step(room.changed);
    }
}
