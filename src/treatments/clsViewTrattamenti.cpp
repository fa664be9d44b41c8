#include "treatments/clsViewTrattamenti.h"

#include "config/clsConfig.h"
#include "host/context.h"
#include "host/contract/Host.h"
#include "platform/ReportGrid.h"
#include "treatments/ApriTrattamento.h"
#include "treatments/ColonneTrattamenti.h"
#include "treatments/clsTrattamenti.h"
#include "treatments/frmEditTrattamento.h"

QObject* clsViewTrattamenti::EditForm(const QString& id) {
    sIDTrattamento = id;
    return new frmEditTrattamento;
}

void clsViewTrattamenti::costruisciColonne(platform::ReportGrid& grid) {
    colonnetrattamenti::aggiungiPerPannello(grid);
}

void clsViewTrattamenti::riempi(platform::ReportGrid& grid) {
    for (const clsItemTrattamento& item : oTrattamenti->Lista()) {
        platform::ReportRecord* record = grid.addRecord();
        record->tag = item.ID;
        colonnetrattamenti::mostra(item, *record);
    }
}

void clsViewTrattamenti::adattaColonne(platform::ReportGrid& grid) {
    grid.setColumnVisible(colonnetrattamenti::CLIENTE, !LikePannello());
}

void clsViewTrattamenti::aggiungiVoci(host::PopupBar& bar, platform::ReportGrid& grid) {
    const bool schedaUnica = oConfig && oConfig->UnicaSchedaTrattamento();
    // The single sheet must stay single.
    if (!schedaUnica || grid.recordCount() == 0) bar.AddItem(COMANDO_NUOVO, QStringLiteral("Nuovo"));
    if (!grid.focusedRecord()) return;
    bar.AddItem(COMANDO_MODIFICA, QStringLiteral("Modifica"));
    bar.AddItem(COMANDO_ELIMINA, QStringLiteral("Elimina"));
    bar.AddItem(COMANDO_STAMPA, QStringLiteral("Stampa"));
}

void clsViewTrattamenti::esegui(int command, platform::ReportGrid& grid) {
    // COMANDO_STAMPA does nothing, on purpose: plans have no print of their own.
    if (command == COMANDO_NUOVO) {
        ApriTrattamento(QString());
        return;
    }
    platform::ReportRecord* scelto = grid.focusedRecord();
    if (!scelto) return;
    if (command == COMANDO_MODIFICA) ApriTrattamento(scelto->tag);
    if (command != COMANDO_ELIMINA) return;
    const QString id = scelto->tag;
    if (!EliminaTrattamento(*PazienteAperto(), id)) return;
    if (grid.focusedRecord() == scelto) grid.removeRecord(scelto);
}
