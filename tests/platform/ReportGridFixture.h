#pragma once

#include "platform/ReportGrid.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QTest>
#include <gtest/gtest.h>

/// A report grid on screen, worked with mouse and keys, with the model tester watching every change.
class GridTest : public testing::Test {
protected:
    static QStringList list(std::initializer_list<const char*> texts) {
        QStringList made;
        for (const char* text : texts)
            made << QString::fromUtf8(text);
        return made;
    }

    void show(const QStringList& captions, bool editable = false) {
        for (const QString& caption : captions) {
            platform::ReportColumn column;
            column.caption = caption;
            column.editable = editable;
            grid.addColumn(column);
        }
        grid.setObjectName(QStringLiteral("rcProva"));
        grid.resize(640, 320);
        grid.show();
        grid.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&grid));
        view()->setFocus();
    }

    platform::ReportRecord* add(const QStringList& values) {
        platform::ReportRecord* record = grid.addRecord();
        for (int i = 0; i < values.size(); ++i)
            record->cell(i).value = values.at(i);
        return record;
    }

    QTreeView* view() const { return grid.view(); }
    QPoint cellCentre(platform::ReportRecord* record, int column) const {
        return view()->visualRect(indexOf(record, column)).center();
    }
    QModelIndex indexOf(platform::ReportRecord* record, int column) const {
        const QPoint middle(view()->columnViewportPosition(column) + view()->columnWidth(column) / 2, 0);
        for (int y = 2; y < view()->viewport()->height(); y += 4) {
            const QModelIndex at = view()->indexAt({middle.x(), y});
            if (at.isValid() && grid.rowRecord(rowAt(y)) == record) return at;
        }
        return {};
    }
    int rowAt(int y) const {
        return (y + view()->verticalScrollBar()->value()) / view()->visualRect(view()->model()->index(0, 0)).height();
    }

    void click(platform::ReportRecord* record, int column, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers keys = {}) {
        QTest::mouseClick(view()->viewport(), button, keys, cellCentre(record, column));
    }
    void clickHead(int column) {
        const QHeaderView* header = view()->header();
        QTest::mouseClick(
            header->viewport(), Qt::LeftButton, {},
            {header->sectionViewportPosition(column) + header->sectionSize(column) / 2, header->height() / 2});
    }
    QStringList shown(int column) const {
        QStringList values;
        for (int row = 0; row < grid.rowCount(); ++row) {
            const platform::ReportRecord* record = grid.rowRecord(row);
            values << (record ? record->cell(column).value : grid.rowCaption(row));
        }
        return values;
    }

    platform::ReportGrid grid;
    QAbstractItemModelTester tester{grid.view()->model(), QAbstractItemModelTester::FailureReportingMode::Fatal};
};
