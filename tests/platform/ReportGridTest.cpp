#include "ReportGridFixture.h"

#include "platform/CellFont.h"

#include <QHelpEvent>
#include <QTextDocumentFragment>
#include <QToolTip>

using platform::ReportGrid;
using platform::ReportRecord;

TEST_F(GridTest, SortsNumbersDatesAndTextsByWhatTheyMean) {
    show(list({"Valore"}));
    const struct {
        QStringList given, sorted;
    } cases[] = {
        {list({"2026-0010", "2026-9", "2025-0100"}), list({"2025-0100", "2026-9", "2026-0010"})},
        {list({"22/11/2026", "01/12/2025", "05/01/2027"}), list({"01/12/2025", "22/11/2026", "05/01/2027"})},
        {list({"1.234,50", "99,00", "1000", "-3"}), list({"-3", "99,00", "1000", "1.234,50"})},
        {list({"zeta", "Età", "alfa", ""}), list({"", "alfa", "Età", "zeta"})},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.given.join(QLatin1Char(' ')).toStdString());
        grid.clear();
        for (const QString& value : one.given)
            add({value});
        grid.setSort(0, Qt::AscendingOrder);
        grid.populate();
        EXPECT_EQ(shown(0), one.sorted);
    }
}

TEST_F(GridTest, HeaderClickSortsStablyThenReverses) {
    show(list({"Cliente", "Ordine"}));
    for (const auto& row : {list({"b", "1"}), list({"a", "2"}), list({"b", "3"}), list({"a", "4"})})
        add(row);
    grid.populate();
    clickHead(0);
    EXPECT_EQ(shown(1), list({"2", "4", "1", "3"}));
    clickHead(0);
    EXPECT_EQ(shown(1), list({"1", "3", "2", "4"}));
    EXPECT_EQ(grid.record(0)->cell(1).value, QStringLiteral("1")) << "the order of adding is not to be lost";
}

TEST_F(GridTest, DraggedHeadGroupsAndDraggingElsewhereDoesNot) {
    show(list({"Cliente", "Piano"}));
    grid.setGroupBoxVisible(true);
    QCoreApplication::processEvents();
    for (const auto& row : {list({"Rossi", "1"}), list({"Bianchi", "2"}), list({"Rossi", "3"})})
        add(row);
    grid.populate();
    QWidget* head = view()->header()->viewport();
    const auto drag = [&](const QPoint& to) {
        QTest::mousePress(head, Qt::LeftButton, {}, {30, 8});
        QTest::mouseMove(head, {30, -8});
        QTest::mouseMove(head, to);
        QTest::mouseRelease(head, Qt::LeftButton, {}, to);
    };
    drag({30, 100});
    EXPECT_TRUE(grid.groups().isEmpty());
    EXPECT_EQ(shown(1), list({"1", "2", "3"})) << "the drag must not count as a click on the head";
    drag({30, -14});
    EXPECT_EQ(shown(1), list({"Cliente: Bianchi (1)", "2", "Cliente: Rossi (2)", "1", "3"}));
    EXPECT_EQ(grid.rowRecord(0), nullptr);

    QTest::mouseClick(view()->viewport(), Qt::LeftButton, {},
                      view()->visualRect(view()->model()->index(1, 0)).center());
    EXPECT_EQ(shown(1), list({"Cliente: Bianchi (1)", "2", "Cliente: Rossi (2)"}));
    grid.removeRecord(grid.record(1));
    EXPECT_EQ(shown(1), list({"Cliente: Rossi (2)"})) << "an empty group goes, a folded one stays folded";
    grid.setGroups({});
    EXPECT_EQ(shown(1), list({"1", "3"}));
}

TEST_F(GridTest, TellsInATooltipWhatTheCellCannotShow) {
    show(list({"Nome"}));
    for (const char* text : {"breve", "un testo che in una colonna di cento punti non si legge tutto", "17"})
        add({QString::fromUtf8(text)});
    grid.record(2)->cell(0).changeStyle().tooltip = QStringLiteral("Non è <b>un dente</b>");
    grid.populate();
    QStringList told;
    for (int row = 0; row < 3; ++row) {
        const QPoint at = view()->visualRect(view()->model()->index(row, 0)).center();
        QHelpEvent asks(QEvent::ToolTip, at, view()->viewport()->mapToGlobal(at));
        QCoreApplication::sendEvent(view()->viewport(), &asks);
        told << QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText();
    }
    EXPECT_EQ(told, (QStringList{QString(), grid.record(1)->cell(0).value, QStringLiteral("Non è <b>un dente</b>")}));
}

TEST_F(GridTest, ShortensTextsAsTheSystemDoes) {
    QFont bold = QGuiApplication::font();
    bold.setBold(true);
    const platform::CellFont cells(bold);
    const QFontMetrics measured(bold);
    for (const char* text : {"Corona", "AVAVAV ffi", "€ 12,50 – \u4E2D\u6587"})
        for (int width = 0; width <= measured.horizontalAdvance(QString::fromUtf8(text)) + 12; ++width)
            EXPECT_EQ(cells.fitting(QString::fromUtf8(text), width),
                      measured.elidedText(QString::fromUtf8(text), Qt::ElideRight, width));
}

TEST_F(GridTest, KeepsModelSoundThroughChangesInEveryArrangement) {
    show(list({"Gruppo", "Nome"}));
    for (const QList<int>& groups : {QList<int>{}, QList<int>{0}, QList<int>{0, 1}}) {
        for (int sort : {-1, 1}) {
            SCOPED_TRACE(testing::Message() << groups.size() << " groups, sort " << sort);
            grid.clear();
            grid.setGroups(groups);
            grid.setSort(sort, Qt::DescendingOrder);
            grid.beginUpdate();
            for (int i = 0; i < 8; ++i)
                add({QString::number(i % 3), QString::number(i)});
            EXPECT_EQ(grid.rowCount(), 0) << "records of a batch show at its end";
            grid.endUpdate();
            ReportRecord* parent = grid.record(2);
            parent->addChild(2)->cell(1).value = QStringLiteral("figlio");
            add({QStringLiteral("1"), QStringLiteral("tardi")});
            ReportRecord* early = grid.insertRecord(0);
            grid.populate();
            EXPECT_GE(grid.rowOf(parent->children().front().get()), 0);
            grid.moveRecord(0, 5);
            EXPECT_EQ(grid.record(5), early);
            grid.removeRecord(parent->children().front().get());
            EXPECT_TRUE(parent->children().empty());
            grid.removeRecord(parent);
            grid.removeRecord(grid.record(0));
            grid.populate();
            int records = 0;
            for (int row = 0; row < grid.rowCount(); ++row)
                records += grid.rowRecord(row) ? 1 : 0;
            EXPECT_EQ(records, 8);
        }
    }
}

TEST_F(GridTest, FocusIsToldOncePerChangeAndFollowsARemoval) {
    show(list({"A"}));
    ReportRecord* first = add(list({"1"}));
    ReportRecord* second = add(list({"2"}));
    ReportRecord* third = add(list({"3"}));
    QList<ReportRecord*> told;
    QObject::connect(&grid, &ReportGrid::focusedRecordChanged, &grid, [&](ReportRecord* record) { told << record; });
    EXPECT_EQ(grid.focusedRecord(), nullptr);
    click(first, 0);
    grid.setFocusedRecord(first);
    QTest::keyClick(view(), Qt::Key_Down);
    click(third, 0, Qt::LeftButton, Qt::ControlModifier);
    EXPECT_EQ(grid.selectedRecords(), (QList<ReportRecord*>{second, third}));
    grid.setFocusedRecord(second);
    grid.removeRecord(second);
    EXPECT_EQ(grid.focusedRecord(), third);
    grid.setFocusedRecord(nullptr);
    EXPECT_EQ(told, (QList<ReportRecord*>{first, second, third, second, third, nullptr}));
}

TEST_F(GridTest, RightClickTellsTheRowAndTheEmptyArea) {
    show(list({"A"}));
    ReportRecord* record = add(list({"1"}));
    QList<ReportRecord*> told;
    QObject::connect(&grid, &ReportGrid::rowRightClicked, &grid, [&](ReportRecord* at, int) { told << at; });
    click(record, 0, Qt::RightButton);
    EXPECT_EQ(grid.focusedRecord(), record);
    QTest::mouseClick(view()->viewport(), Qt::RightButton, {}, {20, view()->viewport()->height() - 5});
    EXPECT_EQ(told, (QList<ReportRecord*>{record, nullptr}));
}

TEST_F(GridTest, ResizableColumnsShareTheRoomThatIsLeft) {
    const auto column = [](const char* caption, int width, bool resizable, bool visible = true) {
        platform::ReportColumn made;
        made.caption = QString::fromLatin1(caption);
        made.width = width;
        made.resizable = resizable;
        made.visible = visible;
        return made;
    };
    grid.addColumn(column("Progressivo", 80, false));
    grid.addColumn(column("cdfCliente", 0, false, false));
    grid.addColumn(column("Descrizione", 100, true));
    grid.addColumn(column("Note", 300, true));
    show({});
    const int fixed = view()->columnWidth(0);
    const int room = view()->viewport()->width() - fixed;
    EXPECT_GE(fixed, 80);
    EXPECT_GE(fixed * 64 / 80, view()->fontMetrics().horizontalAdvance(QStringLiteral("00/00/0000")))
        << "a date column must hold a date in whatever font";
    EXPECT_TRUE(view()->isColumnHidden(1));
    EXPECT_NEAR(view()->columnWidth(2), room / 4, 1);
    EXPECT_EQ(view()->columnWidth(2) + view()->columnWidth(3), room);
    grid.setColumnVisible(3, false);
    EXPECT_EQ(view()->columnWidth(2), room);
}

TEST_F(GridTest, CopiedCellsDoNotShareLaterChangesOfTheirLook) {
    show(list({"A"}));
    ReportRecord* first = add(list({"1"}));
    first->cell(0).setBold(true);
    ReportRecord* second = add({});
    second->cell(0) = first->cell(0);
    second->cell(0).setBold(false);
    EXPECT_TRUE(first->cell(0).style().bold);
    EXPECT_EQ(view()->accessibleName(), QStringLiteral("rcProva"));
}
