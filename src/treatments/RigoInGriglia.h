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
    DENTE = 1,    ///< A tooth, or "+" with the list in the tag.
    SERVIZIO = 2, ///< Tag: the service of the catalogue that was applied last.
    DESCRIZIONE = 3,
    INIZIO = 4, ///< The tags of both dates keep the last good one, which is the one that counts and is stored.
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

/// The teeth of the row; none while the cell holds a text that could not be read.
ToothList denti(const platform::ReportRecord& record);
void metteDenti(platform::ReportRecord& record, const ToothList& denti);
/// Reads the teeth, or the date, that were typed into the cell; what is none stays in it as typed.
void leggiDenti(platform::ReportRecord& record);
void leggiData(platform::ReportRecord& record, int cella);

/// Why the teeth as typed, and as read, will not be stored, or not all of them; empty when they will.
QString avvisoDenti(const ToothList& denti, const QString& scritto);

/// Shows what the row editor changed. A text in the grid that could not be read stays where the editor left its value
/// as it was.
void aggiorna(const clsItemRigoTrattamento& rigo, platform::ReportRecord& record);

/// Colours of the dates by the state of the row, highlighted description, rows outside the estimate; and what the user
/// should know of a cell: several teeth, texts that are not stored, dates the wrong way round, unknown services.
void dipingi(platform::ReportRecord& record);

} // namespace rigogriglia
