#pragma once

#include "documents/DocumentRows.h"
#include "documents/RowTable.h"

#include <algorithm>
#include <utility>
#include <vector>

/// The rows of one kind of document: the values themselves, in their order, and the grid that shows them by a table of
/// columns. The first column is that of the number.
template <class Row>
class RowsOf : public DocumentRows {
public:
    int rowCount() const { return static_cast<int>(lines_.size()); }
    const Row& row(int at) const { return lines_[static_cast<std::size_t>(at)].row; }
    const std::vector<RowLine<Row>>& lines() const { return lines_; }

protected:
    RowsOf(RowColumns<Row> columns, const QString& ownCommand, QWidget* parent = nullptr)
        : DocumentRows(ownCommand, parent)
        , columns_(std::move(columns)) {
        addColumns(grid(), columns_);
    }

    /// Puts these in the place of all rows.
    void setRows(std::vector<Row> rows) {
        lines_.clear();
        grid().beginUpdate();
        grid().clear();
        for (Row& row : rows)
            append(std::move(row));
        grid().endUpdate();
    }
    /// Adds a row at the end, numbered, and begins the edit in one of its cells.
    void addNewRow(Row row, int cellToEdit) {
        row.progressivo = rowNumber(rowCount() + 1);
        append(std::move(row));
        grid().populate();
        emit changed();
        editCell(rowCount() - 1, cellToEdit);
    }
    Row& changeRow(int at) { return line(at).row; } ///< To be followed by `paint`.
    /// Another value in the place of a row. A text that could not be read stays where the new value says the same.
    void replaceRow(int at, Row row) {
        QMap<int, QString>& unread = line(at).unread;
        for (const int column : unread.keys()) {
            const auto text = columns_[static_cast<std::size_t>(column)].text;
            if (text(line(at).row) != text(row)) unread.remove(column);
        }
        line(at).row = std::move(row);
        paint(at);
    }
    /// What was typed into a cell gives way to what the row says.
    void forgetUnread(int at, int column) { line(at).unread.remove(column); }
    void paint(int at) {
        platform::ReportRecord* record = grid().record(at);
        paintLine(columns_, line(at), *record);
        grid().refreshRecord(record);
    }
    /// Shows in bold the rows that are meant, and no others.
    template <class IsMeant>
    void highlightRows(IsMeant isMeant) {
        for (int at = 0; at < rowCount(); ++at) {
            const bool wasMeant = std::exchange(line(at).highlighted, isMeant(row(at)));
            if (wasMeant != line(at).highlighted) paint(at);
        }
    }

    /// What else follows from a text typed into a cell: the service is applied, amounts are computed anew. The row is
    /// painted after it.
    virtual void afterCell(int at, int column) = 0;

    void cellTyped(int at, int column) override {
        const auto read = columns_[static_cast<std::size_t>(column)].read;
        if (at < 0 || !read) return;
        const QString typed = grid().record(at)->cell(column).value;
        if (read(line(at).row, typed))
            line(at).unread.remove(column);
        else
            line(at).unread.insert(column, typed);
        afterCell(at, column);
        paint(at);
        emit changed();
    }
    void removeRow(int at) override {
        lines_.erase(lines_.begin() + at);
        grid().removeRecord(grid().record(at));
        renumber();
        emit changed();
    }
    void moveRow(int from, int to) override {
        platform::ReportRecord* record = grid().record(from);
        std::swap(line(from), line(to)); // neighbours
        grid().moveRecord(from, to);
        renumber();
        grid().setFocusedRecord(record);
        emit changed();
    }

private:
    RowLine<Row>& line(int at) { return lines_[static_cast<std::size_t>(at)]; }
    void append(Row row) {
        lines_.push_back({std::move(row)});
        platform::ReportRecord* record = addRecord(grid(), columns_);
        for (std::size_t column = 0; column < columns_.size(); ++column) {
            platform::ReportCell& cell = record->cell(static_cast<int>(column));
            if (columns_[column].hasButton) cell.changeStyle().button = true;
            if (!columns_[column].choices.isEmpty()) cell.changeStyle().choices = columns_[column].choices;
        }
        paintLine(columns_, lines_.back(), *record);
    }
    void renumber() {
        for (int at = 0; at < rowCount(); ++at) {
            changeRow(at).progressivo = rowNumber(at + 1);
            grid().record(at)->cell(0).value = row(at).progressivo;
        }
        grid().populate();
    }

    RowColumns<Row> columns_;
    std::vector<RowLine<Row>> lines_;
};
