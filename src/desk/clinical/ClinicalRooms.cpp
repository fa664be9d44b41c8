#include "desk/clinical/ClinicalRooms.h"

#include "desk/data/PatientRecord.h"
#include "platform/ReportGrid.h"

#include <QVBoxLayout>

namespace desk {

namespace {

const ClinicalKind& kindOf(int tab) {
    return clinicalKinds()[static_cast<std::size_t>(tab)];
}

} // namespace

QObject* makeRoomEditor(RoomKind kind, PatientRecord& patient, const RoomServices& services, const QString& id) {
    const RoomContext context{std::shared_ptr<PatientRecord>(std::shared_ptr<void>(), &patient), services};
    return kindOf(static_cast<int>(kind)).form(context, id, nullptr);
}

ClinicalRooms::ClinicalRooms(const RoomServices& services, QWidget* parent)
    : QTabWidget(parent)
    , context_{nullptr, services}
    , pages_(static_cast<qsizetype>(clinicalKinds().size()), nullptr) {
    setObjectName(QStringLiteral("cartella"));
    setAccessibleName(QStringLiteral("Cartella clinica"));
    setDocumentMode(true);
    for (const ClinicalKind& kind : clinicalKinds()) {
        auto* place = new QWidget(this);
        auto* column = new QVBoxLayout(place);
        column->setContentsMargins(0, 0, 0, 0);
        addTab(place, QString::fromUtf16(kind.caption));
    }
    connect(this, &QTabWidget::currentChanged, this, &ClinicalRooms::showFront);
}

void ClinicalRooms::enter(std::unique_ptr<PatientRecord> patient) {
    context_.patient = std::move(patient);
    for (int tab = 0; tab < count(); ++tab)
        if (pages_[tab]) pages_[tab]->enter(kindOf(tab).list(context_));
}

// Who still works with the patient holds on to it.
void ClinicalRooms::leave() {
    for (platform::ListPage* page : std::as_const(pages_))
        if (page && context_.patient) page->leave();
    context_.patient.reset();
}

void ClinicalRooms::showFront() {
    if (isVisible() && context_.patient) page(static_cast<RoomKind>(currentIndex()));
}

void ClinicalRooms::showEvent(QShowEvent* event) {
    QTabWidget::showEvent(event);
    showFront();
}

platform::ListPage& ClinicalRooms::page(RoomKind kind) {
    const auto tab = static_cast<int>(kind);
    platform::ListPage*& page = pages_[tab];
    if (!page) {
        QWidget* place = widget(tab);
        page = new platform::ListPage(kindOf(tab).list(context_), platform::ListPage::Buttons::Above, place);
        place->layout()->addWidget(page);
        page->show();
        page->refresh();
    }
    return *page;
}

void ClinicalRooms::refresh() {
    for (platform::ListPage* page : std::as_const(pages_))
        if (page && context_.patient) page->refresh();
}

void ClinicalRooms::showRoom(RoomKind kind) {
    setCurrentIndex(static_cast<int>(kind));
    page(kind).grid().view()->setFocus();
}

} // namespace desk
