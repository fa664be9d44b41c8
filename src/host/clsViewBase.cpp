#include "host/clsViewBase.h"

#include "host/context.h"
#include "platform/Dialogs.h"
#include "platform/ReportGrid.h"

namespace {

// The entries with which the host opens the menu of every panel; the lists bring their own.
constexpr int HOST_ENTRIES[] = {80, 77, 78, 79};

} // namespace

QObject* clsViewBase::EditForm(const QString&) {
    return nullptr;
}

bool clsViewBase::Elimina(const QString& id) {
    platform::dialogs().message(QStringLiteral("Cancello ") + id, 0, QString::fromUtf16(CORVALA_TITLE));
    return false;
}

void clsViewBase::RefreshPannello() {
    if (grid_) refreshGrid(grid_, QString());
}

void clsViewBase::refreshGrid(QObject* grid, const QString& idToSelect) {
    auto* report = qobject_cast<platform::ReportGrid*>(grid);
    if (!report) return;
    grid_ = report;
    if (report->columnCount() == 0) {
        buildColumns(*report);
        dressList(*report);
    }

    adaptColumns(*report);
    reading_.read(*report, [&] {
        if (currentPatient()) fill(*report);
    });

    platform::ReportRecord* chosen = nullptr;
    for (int i = 0; i < report->recordCount() && !idToSelect.isEmpty() && !chosen; ++i) {
        if (report->record(i)->tag == idToSelect) chosen = report->record(i);
    }
    report->setFocusedRecord(chosen);
}

void clsViewBase::Popup(host::PopupBar& bar, QObject* grid) {
    for (const int entry : HOST_ENTRIES)
        bar.RemoveItem(entry);
    if (auto* report = qobject_cast<platform::ReportGrid*>(grid)) addEntries(bar, *report);
}

void clsViewBase::PopupExecute(int command, QObject* grid) {
    auto* report = qobject_cast<platform::ReportGrid*>(grid);
    if (report && currentPatient()) run(command, *report);
}

void clsViewBase::adaptColumns(platform::ReportGrid&) {}
void clsViewBase::addEntries(host::PopupBar&, platform::ReportGrid&) {}
void clsViewBase::run(int, platform::ReportGrid&) {}
