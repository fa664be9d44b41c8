#pragma once

#include "documents/CellNotice.h"
#include "platform/ReportGrid.h"

#include <QMap>
#include <QStringList>
#include <vector>

/// One column of the rows of a document: its head, and what its cells have to do with a row. `Row` is the kind's own
/// value with its number in `progressivo`.
template <class Row>
struct RowColumn {
    platform::ReportColumn head;
    QString (*text)(const Row& row) = nullptr;
    QString (*tag)(const Row& row) = nullptr;
    /// What a typed text does to the row. False when it could not be read: it stays in the cell, and the row keeps what
    /// it must. Null where nothing is typed.
    bool (*read)(Row& row, const QString& typed) = nullptr;
    CellNotice (*notice)(const Row& row, const QString& unread) = nullptr;
    void (*look)(const Row& row, platform::ReportCell& cell) = nullptr;
    QStringList choices = {};
    bool hasButton = false;
    bool isBeyond = false; ///< A cell beyond the columns, never shown.
};

template <class Row>
using RowColumns = std::vector<RowColumn<Row>>;

/// A row as it stands in a grid.
template <class Row>
struct RowLine {
    Row row;
    QMap<int, QString> unread = {}; ///< Texts that could not be read, by their columns.
    bool highlighted = false;
};

/// The look of a grid of rows, whose order is the user's own.
void setUpRowsGrid(platform::ReportGrid& grid);
/// Counted from 0; -1 for what is no row of it any more.
int positionOf(const platform::ReportGrid& grid, const platform::ReportRecord* record);

template <class Row>
void addColumns(platform::ReportGrid& grid, const RowColumns<Row>& columns) {
    for (const RowColumn<Row>& column : columns) {
        if (column.isBeyond) continue;
        platform::ReportColumn head = column.head;
        head.editable = column.read != nullptr;
        head.sortable = false;
        grid.addColumn(head);
    }
}

/// Gives a new record its cells, to be read only.
template <class Row>
platform::ReportRecord* addRecord(platform::ReportGrid& grid, const RowColumns<Row>& columns) {
    platform::ReportRecord* record = grid.addRecord();
    while (record->cellCount() < static_cast<int>(columns.size()))
        record->addCell();
    return record;
}

/// Shows what the row says, or what was typed and could not be read.
template <class Row>
void paintLine(const RowColumns<Row>& columns, const RowLine<Row>& line, platform::ReportRecord& record) {
    for (int index = 0; index < static_cast<int>(columns.size()); ++index) {
        const RowColumn<Row>& column = columns[static_cast<std::size_t>(index)];
        platform::ReportCell& cell = record.cell(index);
        const QString unread = line.unread.value(index);
        if (column.text) cell.value = unread.isEmpty() ? column.text(line.row) : unread;
        if (column.tag) cell.tag = column.tag(line.row);
        cell.setBold(line.highlighted && !column.isBeyond);
        if (column.look) column.look(line.row, cell);
        if (!column.notice) continue;
        const CellNotice notice = column.notice(line.row, unread);
        cell.setNotice(notice.kind, notice.text);
    }
}
