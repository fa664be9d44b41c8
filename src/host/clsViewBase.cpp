#include "host/clsViewBase.h"

#include "host/context.h"
#include "platform/Dialogs.h"
#include "platform/ReportGrid.h"

#include <QColor>

namespace {

// The entries with which the host opens the menu of every panel; the lists bring their own.
constexpr int VOCI_HOST[] = {80, 77, 78, 79};

} // namespace

QObject* clsViewBase::EditForm(const QString&) {
    return nullptr;
}

bool clsViewBase::Elimina(const QString& id) {
    platform::dialogs().message(QStringLiteral("Cancello ") + id, 0, QString::fromUtf16(TITOLO_CORVALA));
    return false;
}

void clsViewBase::RefreshPannello() {
    if (griglia_) refreshGrid(griglia_, QString());
}

void clsViewBase::refreshGrid(QObject* grid, const QString& idToSelect) {
    auto* report = qobject_cast<platform::ReportGrid*>(grid);
    if (!report) return;
    griglia_ = report;
    if (report->columnCount() == 0) preparaGriglia(*report);

    adattaColonne(*report);
    reading_.read(*report, [&] {
        if (PazienteAperto()) riempi(*report);
    });

    platform::ReportRecord* scelto = nullptr;
    for (int i = 0; i < report->recordCount() && !idToSelect.isEmpty() && !scelto; ++i) {
        if (report->record(i)->tag == idToSelect) scelto = report->record(i);
    }
    report->setFocusedRecord(scelto);
}

void clsViewBase::preparaGriglia(platform::ReportGrid& grid) {
    costruisciColonne(grid);
    grid.setColours(QColor(224, 233, 248), QColor(255, 255, 255), QColor(212, 208, 200));
    grid.setGroupBoxVisible(true);
    grid.setReadOnly(true);
    for (int i = 0; i < grid.columnCount(); ++i) {
        if (grid.column(i).caption == QLatin1String("Progressivo")) grid.setSort(i, Qt::DescendingOrder);
    }
}

void clsViewBase::Popup(host::PopupBar& bar, QObject* grid) {
    for (const int voce : VOCI_HOST)
        bar.RemoveItem(voce);
    if (auto* report = qobject_cast<platform::ReportGrid*>(grid)) aggiungiVoci(bar, *report);
}

void clsViewBase::PopupExecute(int command, QObject* grid) {
    auto* report = qobject_cast<platform::ReportGrid*>(grid);
    if (report && PazienteAperto()) esegui(command, *report);
}

void clsViewBase::adattaColonne(platform::ReportGrid&) {}
void clsViewBase::aggiungiVoci(host::PopupBar&, platform::ReportGrid&) {}
void clsViewBase::esegui(int, platform::ReportGrid&) {}

QString clsViewBase::tagSelezionato(const platform::ReportGrid& grid) {
    const platform::ReportRecord* record = grid.focusedRecord();
    return record ? record->tag : QString();
}
