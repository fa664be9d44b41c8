#include "ReportGridFixture.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QSignalSpy>
#include <functional>

using platform::ReportGrid;
using platform::ReportRecord;

namespace {

struct Edits {
    explicit Edits(ReportGrid& grid) {
        QObject::connect(&grid, &ReportGrid::valueChanged, &grid,
                         [this](ReportRecord* record, int column) { seen << record->cell(column).value; });
    }
    QStringList seen;
};

} // namespace

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

TEST_F(GridTest, TheEditOfASecondClickDoesNotTakeTheKeyboardBack) {
    show(list({"Servizio", "Descrizione"}), true);
    grid.setEditMode(true, true);
    ReportRecord* record = add(list({"VISITA", "Prima visita"}));
    const std::function<void()> elsewhere[] = {[this] { view()->header()->setFocus(); },
                                               [this] { QTest::keyClick(view(), Qt::Key_Right); }};
    for (const auto& go : elsewhere) {
        view()->setFocus();
        click(record, 0);
        QTest::qWait(QApplication::doubleClickInterval() + 50);
        click(record, 0);
        go();
        QTest::qWait(QApplication::doubleClickInterval() + 50);
        EXPECT_FALSE(grid.isEditing());
    }
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

TEST_F(GridTest, ACommandKeyEndsTheEditFirstAndThenGoesItsWay) {
    show(list({"A", "B"}), true);
    grid.setEditMode(true, true);
    ReportRecord* record = add({});
    record->cell(1).changeStyle().choices = list({"Protesi"});
    add({});
    QStringList course;
    QObject::connect(&grid, &ReportGrid::valueChanged, &grid,
                     [&](ReportRecord* changed, int column) { course << changed->cell(column).value; });
    QObject::connect(&grid, &ReportGrid::keyPressed, &grid, [&](QKeyEvent* event) {
        course << QKeySequence(event->keyCombination()).toString();
        event->accept();
    });
    const auto ctrlAlt = Qt::ControlModifier | Qt::AltModifier;
    const std::pair<Qt::Key, Qt::KeyboardModifiers> keys[] = {{Qt::Key_F4, {}}, {Qt::Key_Down, ctrlAlt}};
    for (const auto& [key, modifiers] : keys) {
        for (int column : {0, 1}) {
            course.clear();
            record->cell(column).value.clear();
            grid.editCell(record, column);
            QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("x"));
            QTest::keyClick(QApplication::focusWidget(), key, modifiers);
            EXPECT_EQ(course, (QStringList{QStringLiteral("x"), QKeySequence(modifiers | key).toString()}));
            EXPECT_FALSE(grid.isEditing());
        }
    }
    grid.editCell(record, 0);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("y"));
    grid.populate(); // shown anew under the open edit
    grid.finishEdit();
    EXPECT_EQ(course.last(), QStringLiteral("y"));
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

TEST_F(GridTest, AListIsTypedStepByStepAndEndsWhenAnEntryIsTakenFromIt) {
    show(list({"Operatore", "Gruppo"}), true);
    grid.setEditMode(true, true);
    ReportRecord* record = add({});
    record->cell(0).changeStyle().choices = list({"", "Rossi dott. Ada", "Bianchi dott. Ugo", "Bruni dott. Ivo"});
    record->cell(0).value = QStringLiteral("Rossi dott. Ada");
    Edits edits(grid);
    // Keys until the edit ends, and what the cell holds then. The first letter of a word replaces what was there.
    const struct {
        const char* typed;
        QList<Qt::Key> keys;
        const char* expected;
    } cases[] = {
        {"Verdi dott. Leo", {Qt::Key_Return}, "Verdi dott. Leo"}, // none of the entries
        {"br", {Qt::Key_Return}, "Bruni dott. Ivo"},              // completed
        {"BIANCHI DOTT. UGO", {Qt::Key_Tab}, "Bianchi dott. Ugo"},
        {"", {Qt::Key_Up, Qt::Key_Return}, "Rossi dott. Ada"},
        {"", {Qt::Key_Delete, Qt::Key_Return}, ""},
        {"ros", {Qt::Key_Escape}, ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.typed);
        grid.editCell(record, 0);
        ASSERT_NE(qobject_cast<QComboBox*>(QApplication::focusWidget()), nullptr);
        QTest::keyClicks(QApplication::focusWidget(), QString::fromLatin1(c.typed));
        for (const Qt::Key key : c.keys) {
            ASSERT_TRUE(grid.isEditing());
            QTest::keyClick(QApplication::focusWidget(), key);
            QCoreApplication::processEvents();
        }
        EXPECT_EQ(record->cell(0).value, QString::fromLatin1(c.expected));
    }
    grid.editCell(record, 0);
    auto* editor = qobject_cast<QComboBox*>(QApplication::focusWidget());
    ASSERT_NE(editor, nullptr);
    editor->showPopup();
    editor->view()->setCurrentIndex(editor->model()->index(2, 0));
    QTest::keyClick(editor->view(), Qt::Key_Return);
    QCoreApplication::processEvents();
    EXPECT_FALSE(grid.isEditing());
    EXPECT_EQ(record->cell(0).value, QStringLiteral("Bianchi dott. Ugo"));
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
