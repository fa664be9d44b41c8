#include "desk/scenario/ControlText.h"
#include "desk/scenario/GridGestures.h"
#include "desk/scenario/ScenarioCommand.h"
#include "desk/scenario/ScenarioFault.h"
#include "desk/scenario/ScenarioStage.h"
#include "platform/ReportGrid.h"

namespace desk {
namespace {

QString cellName(const QStringList& arguments) {
    return QStringLiteral("%1 %2 %3").arg(arguments[0], arguments[1], arguments[2]);
}

/// The record of the row; a row or column that is not there fails.
platform::ReportRecord* requireCell(const platform::ReportGrid& grid, const QStringList& arguments) {
    const int row = arguments[1].toInt();
    platform::ReportRecord* record = row < grid.rowCount() ? grid.rowRecord(row) : nullptr;
    if (!record || arguments[2].toInt() >= record->cellCount()) {
        failUnlessItPasses(QStringLiteral("la cella %1 non c'è: righe %2, colonne %3")
                               .arg(cellName(arguments))
                               .arg(grid.rowCount())
                               .arg(grid.columnCount()));
    }
    return record;
}

void selectRow(ScenarioStage& stage, const QStringList& arguments) {
    gestures::clickRow(*stage.usableGrid(arguments[0]), arguments[1].toInt());
}

void editCell(ScenarioStage& stage, const QStringList& arguments) {
    platform::ReportGrid* grid = stage.usableGrid(arguments[0]);
    requireCell(*grid, arguments);
    if (!grid->enterText(arguments[1].toInt(), arguments[2].toInt(), arguments[3]))
        failUnlessItPasses(QStringLiteral("la cella %1 non accetta «%2»").arg(cellName(arguments), arguments[3]));
}

void checkCell(ScenarioStage& stage, const QStringList& arguments) {
    platform::ReportGrid* grid = stage.usableGrid(arguments[0]);
    requireCell(*grid, arguments);
    if (!grid->setChecked(arguments[1].toInt(), arguments[2].toInt(), arguments[3] == QLatin1String("on")))
        failUnlessItPasses(QStringLiteral("la cella %1 non si può spuntare").arg(cellName(arguments)));
}

void expectCell(ScenarioStage& stage, const QStringList& arguments) {
    const platform::ReportRecord* record = requireCell(*stage.grid(arguments[0]), arguments);
    const QString& text = record->cell(arguments[2].toInt()).value;
    if (withPlainLineEnds(text) != withPlainLineEnds(arguments[3]))
        failUnlessItPasses(
            QStringLiteral("la cella %1 mostra «%2», atteso «%3»").arg(cellName(arguments), text, arguments[3]));
}

void expectRows(ScenarioStage& stage, const QStringList& arguments) {
    const int rows = stage.grid(arguments[0])->rowCount();
    if (rows != arguments[1].toInt())
        failUnlessItPasses(
            QStringLiteral("la griglia «%1» ha %2 righe, attese %3").arg(arguments[0]).arg(rows).arg(arguments[1]));
}

} // namespace

QList<ScenarioCommand> gridCommands() {
    return {
        {QStringLiteral("select"), QStringLiteral("GRID ROW"), selectRow},
        {QStringLiteral("edit"), QStringLiteral("GRID ROW COL TEXT"), editCell},
        {QStringLiteral("check"), QStringLiteral("GRID ROW COL on|off"), checkCell},
        {QStringLiteral("expect-cell"), QStringLiteral("GRID ROW COL TEXT"), expectCell},
        {QStringLiteral("expect-rows"), QStringLiteral("GRID N"), expectRows},
    };
}

} // namespace desk
