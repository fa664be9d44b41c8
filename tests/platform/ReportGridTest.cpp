#include "ReportGridFixture.h"

#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QPointer>
#include <QScrollBar>
#include <QSignalSpy>

using platform::ReportGrid;
using platform::ReportRecord;

namespace {

QStringList list(std::initializer_list<const char*> texts) {
    QStringList made;
    for (const char* text : texts)
        made << QString::fromUtf8(text);
    return made;
}

struct Edits {
    explicit Edits(ReportGrid& grid) {
        QObject::connect(&grid, &ReportGrid::valueChanged, &grid,
                         [this](ReportRecord* record, int column) { seen << record->cell(column).value; });
    }
    QStringList seen;
};

} // namespace

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

TEST_F(GridTest, SecondClickF2AndTypingStartTheEdit) {
    show(list({"Servizio", "Descrizione"}), true);
    grid.setEditMode(true, true);
    ReportRecord* first = add(list({"VISITA", "Prima visita"}));
    ReportRecord* second = add(list({"CORONA", ""}));
    Edits edits(grid);

    click(first, 0);
    QTest::qWait(QApplication::doubleClickInterval() + 50);
    EXPECT_FALSE(grid.isEditing()) << "the first click only takes the focus";
    click(first, 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return grid.isEditing(); }, 2000));
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("IGIENE"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(first->cell(0).value, QStringLiteral("IGIENE"));

    click(second, 1);
    QTest::keyClick(view(), Qt::Key_X);
    ASSERT_TRUE(grid.isEditing());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(second->cell(1).value, QString());
    QTest::keyClick(view(), Qt::Key_F2);
    ASSERT_TRUE(grid.isEditing());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(edits.seen, list({"IGIENE"})) << "neither Escape nor an unchanged text is a change";
}

TEST_F(GridTest, TabCommitsAndGoesToTheNextCellThatCanBeEdited) {
    show(list({"A", "B", "C"}), true);
    grid.setEditMode(true, true);
    ReportRecord* first = add({});
    ReportRecord* second = add({});
    first->cell(1).changeStyle().editable = false;
    Edits edits(grid);
    grid.editCell(first, 0);
    for (const char* text : {"uno", "tre", "quattro"}) {
        QTest::keyClicks(QApplication::focusWidget(), QString::fromLatin1(text));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(edits.seen, list({"uno", "tre", "quattro"}));
    EXPECT_EQ(first->cell(2).value, QStringLiteral("tre"));
    EXPECT_EQ(second->cell(0).value, QStringLiteral("quattro"));
    EXPECT_TRUE(grid.isEditing());
    EXPECT_EQ(grid.focusedRecord(), second);
    EXPECT_EQ(grid.focusedColumn(), 1);
}

TEST_F(GridTest, EnterInTheEditorReachesNeitherTheWindowNorTheCommandsOfTheGrid) {
    show(list({"A"}), true);
    grid.setEditMode(true, true);
    ReportRecord* record = add({});
    QStringList keys;
    QObject::connect(&grid, &ReportGrid::keyPressed, &grid, [&](QKeyEvent* event) {
        keys << QKeySequence(event->key()).toString();
        if (event->key() == Qt::Key_Down) event->accept();
    });
    grid.editCell(record, 0);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_TRUE(keys.isEmpty());
    add({});
    grid.setFocusedRecord(record);
    QTest::keyClick(view(), Qt::Key_Down);
    EXPECT_EQ(grid.focusedRecord(), record) << "an accepted key is kept from the grid";
    EXPECT_EQ(keys, list({"Down"}));
}

TEST_F(GridTest, LockedReadOnlyAndCoveredCellsRefuseTheEdit) {
    show(list({"A", "B", "C"}), true);
    ReportRecord* record = add(list({"x", "y", "z"}));
    EXPECT_FALSE(grid.enterText(0, 0, QStringLiteral("no"))) << "the grid is not in edit mode";
    grid.setEditMode(true, true);
    EXPECT_TRUE(grid.enterText(0, 0, QStringLiteral("sì")));
    record->cell(0).changeStyle().editable = false;
    record->cell(1).changeStyle().mergedColumns = 2;
    EXPECT_FALSE(grid.enterText(0, 0, QStringLiteral("no")));
    EXPECT_FALSE(grid.enterText(0, 2, QStringLiteral("no")));
    EXPECT_TRUE(grid.enterText(0, 1, QStringLiteral("unita")));
    grid.setReadOnly(true);
    EXPECT_FALSE(grid.enterText(0, 1, QStringLiteral("no")));
    EXPECT_FALSE(grid.enterText(7, 1, QStringLiteral("no")));
    EXPECT_EQ(record->cell(0).value + record->cell(1).value + record->cell(2).value, QStringLiteral("sìunitaz"));
}

TEST_F(GridTest, ChoicesOnlyTakesItsEntriesAndAnOpenListTakesAnyText) {
    show(list({"Operatore", "Gruppo"}), true);
    grid.setEditMode(true, true);
    ReportRecord* record = add({});
    record->cell(0).changeStyle().choices = list({"Rossi dott. Ada", "Bianchi dott. Ugo"});
    record->cell(0).changeStyle().choicesOnly = true;
    record->cell(1).changeStyle().choices = list({"Protesi"});
    Edits edits(grid);
    EXPECT_FALSE(grid.enterText(0, 0, QStringLiteral("Verdi")));
    EXPECT_FALSE(grid.isEditing());
    EXPECT_TRUE(grid.enterText(0, 0, QStringLiteral("Bianchi dott. Ugo")));
    EXPECT_TRUE(grid.enterText(0, 1, QStringLiteral("Altro")));
    EXPECT_EQ(edits.seen, list({"Bianchi dott. Ugo", "Altro"}));
    grid.editCell(record, 0);
    QWidget* editor = QApplication::focusWidget();
    ASSERT_NE(qobject_cast<QComboBox*>(editor), nullptr);
    QTest::keyClick(editor, Qt::Key_Up);
    QTest::keyClick(editor, Qt::Key_Return);
    EXPECT_EQ(record->cell(0).value, QStringLiteral("Rossi dott. Ada"));
}

TEST_F(GridTest, BoxIsTickedByMouseSpaceAndCallOnlyWhereItMay) {
    show(list({"", "Nome"}));
    ReportRecord* record = add({});
    ReportRecord* locked = add({});
    record->cell(0).setCheckBox(false);
    locked->cell(0).setCheckBox(true, false);
    QSignalSpy changed(&grid, &ReportGrid::valueChanged);
    click(record, 0);
    EXPECT_TRUE(record->cell(0).isChecked());
    QTest::keyClick(view(), Qt::Key_Space);
    EXPECT_FALSE(record->cell(0).isChecked());
    EXPECT_TRUE(grid.setChecked(0, 0, true));
    EXPECT_TRUE(grid.setChecked(0, 0, true));
    EXPECT_EQ(changed.count(), 3) << "a box that stays as it is has not changed";
    click(locked, 0);
    EXPECT_FALSE(grid.setChecked(1, 0, false));
    EXPECT_FALSE(grid.setChecked(1, 1, true));
    EXPECT_TRUE(locked->cell(0).isChecked());
    EXPECT_EQ(changed.count(), 3);
}

TEST_F(GridTest, InCellButtonSpeaksAndDoesNotEdit) {
    show(list({"Dente", "Servizio"}), true);
    grid.setEditMode(true, true);
    ReportRecord* record = add(list({"1.1", ""}));
    record->cell(0).changeStyle().button = true;
    QSignalSpy button(&grid, &ReportGrid::inplaceButton);
    QSignalSpy twice(&grid, &ReportGrid::rowDoubleClicked);
    const QRect cell = view()->visualRect(indexOf(record, 0));
    QTest::mouseClick(view()->viewport(), Qt::LeftButton, {}, {cell.right() - 8, cell.center().y()});
    EXPECT_EQ(button.count(), 1);
    EXPECT_FALSE(grid.isEditing());
    QTest::mouseDClick(view()->viewport(), Qt::LeftButton, {}, {cell.left() + 10, cell.center().y()});
    ASSERT_EQ(twice.count(), 1);
    EXPECT_EQ(twice.at(0).at(1).toInt(), 0);
    QTest::qWait(QApplication::doubleClickInterval() + 50);
    EXPECT_FALSE(grid.isEditing()) << "the double click is the window's, not the start of an edit";
}

TEST_F(GridTest, SurvivesRecordsRemovedInTheirOwnHandlers) {
    show(list({"A", "B"}), true);
    grid.setEditMode(true, true);
    const auto refill = [&] {
        grid.clear();
        for (int i = 0; i < 3; ++i)
            add({QString::number(i), {}})->cell(1).setCheckBox(false);
    };
    refill();
    const auto onChange = [&](auto handler) {
        auto connection = std::make_shared<QMetaObject::Connection>();
        *connection = QObject::connect(&grid, &ReportGrid::valueChanged, &grid,
                                       [&grid = grid, connection, handler](ReportRecord* record, int) {
                                           QObject::disconnect(*connection);
                                           handler(record);
                                       });
    };
    onChange([&](ReportRecord* record) { grid.removeRecord(record); });
    grid.editCell(grid.record(0), 0);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("via"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(grid.recordCount(), 2);
    onChange([&](ReportRecord*) { refill(); });
    EXPECT_TRUE(grid.setChecked(0, 1, true));
    EXPECT_EQ(grid.rowCount(), 3);
    onChange([&](ReportRecord* record) {
        grid.clear();
        record->cell(0).value = QStringLiteral("ancora in mano al gestore");
    });
    EXPECT_TRUE(grid.enterText(1, 0, QStringLiteral("vuota")));
    EXPECT_EQ(grid.rowCount(), 0);
    refill();
    grid.editCell(grid.record(1), 0);
    grid.removeRecord(grid.record(1));
    EXPECT_FALSE(grid.isEditing());
    grid.editCell(grid.record(1), 0);
    grid.clear();
    EXPECT_FALSE(grid.isEditing());
    // The arrow key is still on its way when the focus handler empties the grid.
    refill();
    grid.setFocusedRecord(grid.record(0));
    auto once = QObject::connect(&grid, &ReportGrid::focusedRecordChanged, &grid, [&](ReportRecord* record) {
        if (record) grid.clear();
    });
    QTest::keyClick(view(), Qt::Key_Down);
    QObject::disconnect(once);
    EXPECT_EQ(grid.recordCount(), 0);
    EXPECT_EQ(grid.focusedRecord(), nullptr);
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
