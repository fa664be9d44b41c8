#include "treatments/frmMDITrattamenti.h"

#include "host/contract/Host.h"
#include "platform/Regional.h"
#include "platform/ReportRecord.h"
#include "treatments/ApriTrattamento.h"
#include "treatments/ColonneTrattamenti.h"
#include "treatments/MemoTrattamento.h"
#include "treatments/clsTrattamenti.h"

namespace {

ElencoPeriodo::Impostazioni impostazioni() {
    return {
        QStringLiteral("frmMDITrattamenti"),   QStringLiteral("rcTrattamenti"), QStringLiteral("laTitoloTrattamenti"),
        QStringLiteral("ELENCO TRATTAMENTI "), QStringLiteral("TRT"),           colonnetrattamenti::PROGRESSIVO};
}

} // namespace

frmMDITrattamenti::frmMDITrattamenti(QWidget* parent)
    : ElencoPeriodo(impostazioni(), parent) {
    prepara();
}

void frmMDITrattamenti::RefreshTrattamenti(const QString& id) {
    ricarica(id);
}

void frmMDITrattamenti::RefreshGraficaTrattamenti() {
    aggiornaGrafica();
}

void frmMDITrattamenti::costruisciColonne(platform::ReportGrid& grid) {
    colonnetrattamenti::aggiungiPerElenco(grid);
}

void frmMDITrattamenti::riempi(platform::ReportRecord& record, const host::Recordset& riga, host::Paziente&) {
    clsItemTrattamento item;
    item.ID = record.tag;
    item.Data = platform::regional().shortDate(riga.value(QStringLiteral("data")).toDate());
    item.descrizione = riga.text(QStringLiteral("descrizione"));
    leggiMemoPerElenco(item, riga.text(QStringLiteral("m1")));
    colonnetrattamenti::mostra(item, record);
}

QList<int> frmMDITrattamenti::colonnePaziente() const {
    return {colonnetrattamenti::CODICE_FISCALE, colonnetrattamenti::CLIENTE};
}

void frmMDITrattamenti::apri(const QString& id) {
    ApriTrattamento(id);
}

bool frmMDITrattamenti::elimina(host::Paziente& paziente, const QString& id) {
    return EliminaTrattamento(paziente, id);
}
