#include "treatments/clsViewTrattamenti.h"

#include "config/clsConfig.h"
#include "host/context.h"
#include "host/contract/Host.h"
#include "platform/ReportGrid.h"
#include "treatments/ApriTrattamento.h"
#include "treatments/TreatmentColumns.h"
#include "treatments/clsTrattamenti.h"
#include "treatments/frmEditTrattamento.h"

clsViewTrattamenti* oViewTrattamenti = nullptr;

QObject* clsViewTrattamenti::EditForm(const QString& id) {
    sIDTrattamento = id;
    return new frmEditTrattamento(id);
}

void clsViewTrattamenti::buildColumns(platform::ReportGrid& grid) {
    treatmentcolumns::addForPanel(grid);
}

void clsViewTrattamenti::fill(platform::ReportGrid& grid) {
    for (const clsItemTrattamento& item : oTrattamenti->Lista()) {
        platform::ReportRecord* record = grid.addRecord();
        record->tag = item.ID;
        treatmentcolumns::fillRecord(item, *record);
    }
}

void clsViewTrattamenti::adaptColumns(platform::ReportGrid& grid) {
    grid.setColumnVisible(treatmentcolumns::PATIENT, !LikePannello());
}

void clsViewTrattamenti::addEntries(host::PopupBar& bar, platform::ReportGrid& grid) {
    const bool singleSheet = oConfig && oConfig->UnicaSchedaTrattamento();
    // The single sheet must stay single.
    if (!singleSheet || grid.recordCount() == 0) bar.AddItem(COMMAND_NEW, QStringLiteral("Nuovo"));
    if (!grid.focusedRecord()) return;
    bar.AddItem(COMMAND_EDIT, QStringLiteral("Modifica"));
    bar.AddItem(COMMAND_REMOVE, QStringLiteral("Elimina"));
    bar.AddItem(COMMAND_PRINT, QStringLiteral("Stampa"));
}

void clsViewTrattamenti::run(int command, platform::ReportGrid& grid) {
    // COMMAND_PRINT does nothing, on purpose: plans have no print of their own.
    if (command == COMMAND_NEW) {
        ApriTrattamento(QString());
        return;
    }
    platform::ReportRecord* chosen = grid.focusedRecord();
    if (!chosen) return;
    if (command == COMMAND_EDIT) ApriTrattamento(chosen->tag);
    if (command != COMMAND_REMOVE) return;
    const QString id = chosen->tag;
    if (!deleteTreatment(*currentPatient(), id)) return;
    if (grid.focusedRecord() == chosen) grid.removeRecord(chosen);
}
