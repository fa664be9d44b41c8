#include "desk/clinical/ClinicalRooms.h"

#include "desk/clinical/DueDateRoom.h"
#include "desk/clinical/EventRoom.h"
#include "desk/clinical/FileRoom.h"
#include "desk/clinical/NoteRoom.h"
#include "desk/clinical/RoomEditor.h"
#include "desk/clinical/RoomPage.h"
#include "desk/clinical/VisitRoom.h"
#include "desk/data/PatientRecord.h"
#include "platform/ReportGrid.h"

#include <QVBoxLayout>
#include <utility>
#include <vector>

namespace desk {

namespace {

constexpr RoomKind KINDS[] = {RoomKind::Events, RoomKind::Notes, RoomKind::Visits, RoomKind::DueDates, RoomKind::Files};

} // namespace

std::unique_ptr<Room> makeRoom(RoomKind kind, PatientRecord& patient, const RoomServices& services) {
    switch (kind) {
    case RoomKind::Events:
        return std::make_unique<EventRoom>(patient, services);
    case RoomKind::Notes:
        return std::make_unique<NoteRoom>(patient, services);
    case RoomKind::Visits:
        return std::make_unique<VisitRoom>(patient, services);
    case RoomKind::DueDates:
        return std::make_unique<DueDateRoom>(patient, services);
    case RoomKind::Files:
        break;
    }
    return std::make_unique<FileRoom>(patient, services);
}

QObject* makeRoomEditor(RoomKind kind, PatientRecord& patient, const RoomServices& services, const QString& id) {
    return makeRoom(kind, patient, services)->editor(id, nullptr);
}

/// A patient who left, with the rooms; they go when those who still work with them have returned.
struct ClinicalRooms::Former : QObject {
    std::unique_ptr<PatientRecord> patient;
    std::vector<std::unique_ptr<Room>> rooms; ///< Go before the patient on whom they hold.

    ~Former() override { rooms.clear(); }
};

ClinicalRooms::ClinicalRooms(const RoomServices& services, QWidget* parent)
    : QTabWidget(parent)
    , services_(services)
    , pages_(std::size(KINDS), nullptr) {
    setObjectName(QStringLiteral("cartella"));
    setAccessibleName(QStringLiteral("Cartella clinica"));
    setDocumentMode(true);
    PatientRecord nobody(services_.database, QString());
    for (const RoomKind kind : KINDS) {
        auto* place = new QWidget(this);
        auto* column = new QVBoxLayout(place);
        column->setContentsMargins(0, 0, 0, 0);
        addTab(place, makeRoom(kind, nobody, services_)->texts().caption);
    }
    connect(this, &QTabWidget::currentChanged, this, &ClinicalRooms::showFront);
}

// The pages go first, since their rooms hold on to the patient.
ClinicalRooms::~ClinicalRooms() {
    qDeleteAll(pages_);
}

void ClinicalRooms::enter(std::unique_ptr<PatientRecord> patient) {
    patient_ = std::move(patient);
    for (const RoomKind kind : KINDS) {
        if (RoomPage* page = pages_[static_cast<int>(kind)]) page->setRoom(makeRoom(kind, *patient_, services_));
    }
}

void ClinicalRooms::leave() {
    if (!patient_) return;
    auto* former = new Former;
    former->setParent(this);
    former->patient = std::move(patient_);
    for (RoomPage* page : std::as_const(pages_))
        if (page) former->rooms.push_back(page->takeRoom());
    former->deleteLater();
}

void ClinicalRooms::showFront() {
    if (isVisible() && patient_) page(KINDS[currentIndex()]);
}

void ClinicalRooms::showEvent(QShowEvent* event) {
    QTabWidget::showEvent(event);
    showFront();
}

RoomPage& ClinicalRooms::page(RoomKind kind) {
    const auto tab = static_cast<int>(kind);
    RoomPage*& page = pages_[tab];
    if (!page) {
        QWidget* place = widget(tab);
        page = new RoomPage(makeRoom(kind, *patient_, services_), services_.database, place);
        place->layout()->addWidget(page);
        page->show();
        page->refresh();
    }
    return *page;
}

void ClinicalRooms::refresh() {
    for (RoomPage* page : std::as_const(pages_))
        if (page && patient_) page->refresh();
}

void ClinicalRooms::showRoom(RoomKind kind) {
    setCurrentIndex(static_cast<int>(kind));
    page(kind).grid().view()->setFocus();
}

} // namespace desk
