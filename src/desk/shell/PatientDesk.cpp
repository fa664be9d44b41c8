#include "desk/shell/PatientDesk.h"

#include "desk/clinical/ClinicalRooms.h"
#include "desk/data/PatientData.h"
#include "desk/data/PatientRecord.h"
#include "desk/icons/DeskIcon.h"
#include "desk/shell/PanelPage.h"
#include "desk/shell/PatientHeader.h"
#include "platform/FormRegistry.h"
#include "platform/ReportGrid.h"

#include <QCloseEvent>
#include <QSplitter>
#include <QTabWidget>
#include <QVBoxLayout>
#include <utility>

namespace desk {

PatientDesk::PatientDesk(const QList<Panel>& panels, host::Framework& framework, const RoomServices& services)
    : panels_(panels) {
    setObjectName(QStringLiteral("frmAmbulatorio"));
    setWindowIcon(deskIcon("paziente"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    header_ = new PatientHeader(windowIcon(), this);
    column->addWidget(header_);
    auto* stack = new QSplitter(Qt::Vertical, this);
    stack->setChildrenCollapsible(false);
    column->addWidget(stack, 1);

    if (!panels.isEmpty()) {
        auto* splitter = new QSplitter(stack);
        splitter->setChildrenCollapsible(false);
        QList<Panel> left;
        QList<Panel> right;
        for (const Panel& panel : panels)
            (panel.onTheRight ? right : left).append(panel);
        addSide(left, framework, *splitter);
        addSide(right, framework, *splitter);
    }
    rooms_ = new ClinicalRooms(services, stack);
    // Their lists are not built yet and cannot say how much room they need.
    stack->setStretchFactor(0, 3);
    stack->setStretchFactor(1, 2);
    stack->setSizes({540, 460});
}

void PatientDesk::addSide(const QList<Panel>& panels, host::Framework& framework, QSplitter& splitter) {
    if (panels.isEmpty()) return;
    const int side = splitter.count();
    auto* tabs = new QTabWidget(&splitter);
    tabs->setObjectName(QStringLiteral("schede(%1)").arg(side));
    tabs->setDocumentMode(true);
    for (const Panel& panel : panels) {
        auto* page = new PanelPage(panel, framework, tabs);
        connect(page, &PanelPage::failed, this, &PatientDesk::failed);
        tabs->addTab(page, panel.caption());
        pages_.append(page);
    }
    splitter.setStretchFactor(side, 1);
}

void PatientDesk::enter(const PatientData& patient, const QString& doctor) {
    platform::FormRegistry::add(this);
    header_->tell(patient, doctor);
    setWindowTitle(patient.Cognome + QLatin1Char(' ') + patient.Nome);
}

void PatientDesk::fill(std::unique_ptr<PatientRecord> patient) {
    rooms_->enter(std::move(patient));
    fillPanels();
}

void PatientDesk::leave() {
    platform::FormRegistry::remove(this);
    setWindowTitle(QString());
    header_->clear();
    for (PanelPage* page : std::as_const(pages_))
        page->leave();
    rooms_->leave();
}

void PatientDesk::focusPanel() {
    for (PanelPage* page : std::as_const(pages_)) {
        if (page->isVisible()) return page->grid().setFocus();
    }
}

void PatientDesk::fillPanels() {
    for (PanelPage* page : std::as_const(pages_)) {
        const platform::ReportRecord* focused = page->grid().focusedRecord();
        page->refresh(focused ? focused->tag : QString());
    }
}

void PatientDesk::refreshPanels() {
    fillPanels();
    rooms_->refresh();
}

void PatientDesk::closeEvent(QCloseEvent* event) {
    event->ignore();
    emit closeRequested();
}

} // namespace desk
