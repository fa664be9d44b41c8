#pragma once

#include "chart/ChartComposition.h"
#include "documents/RowTable.h"
#include "treatments/clsItemRigoTrattamento.h"

#include <QHash>

/// The names of people by their tax codes. Each is asked of the host once: a plan has many rows of few people.
using PeopleNames = QHash<QString, QString>;

/// One row of a plan as its editor works with it: the stored row with its teeth as a value and its people by name.
struct PlanRow : clsItemRigoTrattamento {
    PlanRow() = default;
    PlanRow(const clsItemRigoTrattamento& stored, PeopleNames& names);

    ToothList teeth; ///< `dente` and `denti` follow them.
    QString operatorName;
    QString assistantName;
    QString applied;      ///< The service of the catalogue that was applied last.
    bool isPriced = true; ///< False until it has a price of its own; the catalogue's counts until then.

    void setTeeth(const ToothList& given);
    ChartRow forChart() const { return {teeth, servizio, descrizione, inizio, fine}; }
};

/// How the rows of a plan stand in a grid rcRighi: which cell shows what, what its hidden tag keeps, how it looks.
namespace gridrow {

enum Cell {
    NUMBER = 0,
    TOOTH = 1,   ///< A tooth, or "+" with the list in the tag.
    SERVICE = 2, ///< Tag: the service of the catalogue that was applied last.
    DESCRIPTION = 3,
    START = 4, ///< The tags of both dates hold the one that is stored.
    END = 5,
    GROUP = 6,    ///< Tag: code.
    OPERATOR = 7, ///< Tag: tax code; the same for the assistant.
    ASSISTANT = 8,
    INVOICE = 9,           ///< Tag: price for one tooth.
    NOTES = 10,            ///< Tag: intermediate stages.
    OUTSIDE_ESTIMATE = 11, ///< A check box beyond the columns.
    CELL_COUNT = 12
};

/// With the lists that the practice has now.
RowColumns<PlanRow> columns();

} // namespace gridrow
