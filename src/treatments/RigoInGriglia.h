#pragma once

#include "chart/ComposizioneDenti.h"
#include "treatments/clsItemRigoTrattamento.h"

#include <QString>

namespace platform {
class ReportRecord;
struct ReportColumn;
} // namespace platform

/// How one row of a plan stands in the grid rcRighi: which cell shows what, what its hidden tag keeps, how it is
/// painted. The grid is the working copy of the rows; the record's rows are built from it anew at each save.
namespace rigogriglia {

enum Cella {
    NUMERO = 0,
    DENTE = 1, ///< A tooth, or "+" with the list in the tag.
    SERVIZIO = 2,
    DESCRIZIONE = 3,
    INIZIO = 4, ///< The tags of both dates keep the last good one.
    FINE = 5,
    RAGGRUPPAMENTO = 6, ///< Tag: code.
    OPERATORE = 7,      ///< Tag: tax code; the same for the assistant.
    ASSISTENTE = 8,
    FATTURA = 9,           ///< Tag: price for one tooth.
    NOTE = 10,             ///< Tag: intermediate stages.
    FUORI_PREVENTIVO = 11, ///< A check box beyond the columns.
    NUMERO_CELLE = 12
};

/// The columns of the rows, wherever they are shown.
QList<platform::ReportColumn> colonne();

/// The row number as shown and stored.
QString numeroRigo(int posizione);

void mostra(const clsItemRigoTrattamento& rigo, platform::ReportRecord& record);
/// The row as it will be stored at that position, counted from 1; the number of the plan is left to the caller.
clsItemRigoTrattamento leggi(const platform::ReportRecord& record, int posizione);
RigoGrafico perIlDisegno(const platform::ReportRecord& record);

/// The teeth of the row as a selection: "1.1" or "+1.1;1.2".
QString denti(const platform::ReportRecord& record);
void metteDenti(platform::ReportRecord& record, const QString& selezione);
bool tocca(const platform::ReportRecord& record, const QString& dente);

/// Colours of the dates by the state of the row, highlighted description, rows outside the estimate.
void dipingi(platform::ReportRecord& record);

} // namespace rigogriglia
