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

ClinicalRooms::ClinicalRooms(std::unique_ptr<PatientRecord> patient, const RoomServices& services, QWidget* parent)
    : QTabWidget(parent)
    , patient_(std::move(patient)) {
    setObjectName(QStringLiteral("cartella"));
    setAccessibleName(QStringLiteral("Cartella clinica"));
    setDocumentMode(true);
    for (const RoomKind kind : KINDS) {
        auto* page = new RoomPage(makeRoom(kind, *patient_, services), services.database, this);
        addTab(page, page->room().texts().caption);
        pages_.append(page);
    }
    refresh();
}

// The pages go first, since their rooms hold on to the patient.
ClinicalRooms::~ClinicalRooms() {
    qDeleteAll(pages_);
}

void ClinicalRooms::refresh() {
    for (RoomPage* page : std::as_const(pages_))
        page->refresh();
}

void ClinicalRooms::showRoom(RoomKind kind) {
    setCurrentWidget(&page(kind));
    page(kind).grid().view()->setFocus();
}

} // namespace desk
