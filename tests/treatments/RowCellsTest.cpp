// What people type into the cells of the rows: it is stored, or the cell says that it is not; and nothing takes it
// away.
#include "EditorFixture.h"
#include "ModalWindow.h"
#include "catalogues/modServizi.h"
#include "chart/ToothChart.h"
#include "treatments/TreatmentMemo.h"
#include "treatments/TreatmentRows.h"

#include <QApplication>

using platform::Notice;
using platform::form::arrayName;
using namespace gridrow;

namespace {

class RowCells : public EditorFixture {
protected:
    const platform::ReportCellStyle& look(int row, int column) { return rows()->rowRecord(row)->cell(column).style(); }
    QString price(int row) { return rows()->rowRecord(row)->cell(INVOICE).tag; }
    QString total(int index) { return find<QLineEdit>(arrayName("tbTotale", index))->text(); }
    QStringList drawn() {
        QStringList teeth;
        for (int index = 0; index < TOOTH_COUNT; ++index) {
            if (!find<QWidget>(arrayName("imTrt01", index))->property("tag").toString().isEmpty())
                teeth << DenteDaIndice(index);
        }
        return teeth;
    }
    clsItemTrattamento storedPlan() {
        clsItemTrattamento item;
        const auto typed = storedRow(QStringLiteral("2026-0001"));
        EXPECT_TRUE(typed);
        if (typed) readTreatmentMemo(item, typed->m1);
        return item;
    }
    /// Types into the cell and leaves the edit open; the field that has the keyboard.
    QWidget* beginEdit(int row, int column, const char* text) {
        window_->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window_.get()));
        rows()->editCell(rows()->rowRecord(row), column);
        QWidget* field = QApplication::focusWidget();
        QTest::keyClicks(field, QLatin1String(text));
        EXPECT_TRUE(rows()->isEditing());
        return field;
    }
};

} // namespace

TEST_F(RowCells, ReadTheTeethOrSayThatTheyAreNotStored) {
    const struct {
        const char *written, *cell, *hint;
        const char *tooth, *teeth; ///< As the memo keeps them.
        const char* drawing;
    } cases[] = {
        {"16", "1.6", "", "2", "", "1.6"},
        {"1,6", "1.6", "", "2", "", "1.6"},
        {"1-6", "1.6", "", "2", "", "1.6"},
        {"1.6 2.6", "+", "Denti 1.6, 2.6", "+", "2;13", "1.6 2.6"},
        {"1.6;2.6", "+", "Denti 1.6, 2.6", "+", "2;13", "1.6 2.6"},
        {"1.6;9.9", "1.6;9.9", "Non è un dente: non verrà memorizzato", "", "", ""},
        {"1.9", "1.9", "Non è un dente: non verrà memorizzato", "", "", ""},
        {"sesto", "sesto", "Non è un dente: non verrà memorizzato", "", "", ""},
        {"+1.1;9.9", "+", "Denti 1.1, 9.9\nNon è un dente e non verrà memorizzato: 9.9", "+", "7;-1", "1.1"},
    };
    open(QString());
    newRow(QStringLiteral("CORONA"));
    for (const auto& each : cases) {
        SCOPED_TRACE(each.written);
        type(0, TOOTH, QString::fromUtf8(each.written));
        EXPECT_EQ(cell(0, TOOTH), QLatin1String(each.cell));
        EXPECT_EQ(look(0, TOOTH).tooltip, QString::fromUtf8(each.hint));
        EXPECT_EQ(look(0, TOOTH).notice == Notice::Error, QString::fromUtf8(each.hint).contains(u"Non è"));
        EXPECT_EQ(drawn().join(u' '), QLatin1String(each.drawing));
    }
    for (const auto& each : cases)
        newRow(QStringLiteral("VISITA"), QString::fromUtf8(each.written));
    // The list behind the "+" outlives an edit that leaves the "+" as it is.
    type(5, TOOTH, QStringLiteral("+ "));
    confirm();
    const clsItemTrattamento item = storedPlan();
    ASSERT_EQ(item.righi.size(), std::size(cases) + 1);
    for (std::size_t i = 0; i < std::size(cases); ++i) {
        EXPECT_EQ(item.righi[i + 1].dente, QLatin1String(cases[i].tooth)) << cases[i].written;
        EXPECT_EQ(item.righi[i + 1].denti, QLatin1String(cases[i].teeth)) << cases[i].written;
    }
}

TEST_F(RowCells, ReadTheDatesOrKeepTheFormerOnes) {
    const struct {
        const char *written, *cell, *hint, *stored;
    } cases[] = {
        {"020326", "02/03/2026", "", "02/03/2026"},
        {"2/3", "02/03/2026", "", "02/03/2026"},
        {"05012026", "05/01/2026", "", "05/01/2026"},
        {"domani", "domani", "Non è una data: resta memorizzato 05/01/2026", "05/01/2026"},
        {"31/02/2026", "31/02/2026", "Non è una data: resta memorizzato 05/01/2026", "05/01/2026"},
        {"", "", "", ""},
        {"1", "1", "Non è una data: non verrà memorizzata", ""},
    };
    open(QString());
    newRow(QStringLiteral("VISITA"));
    for (const auto& each : cases) {
        SCOPED_TRACE(each.written);
        type(0, START, QLatin1String(each.written));
        EXPECT_EQ(cell(0, START), QLatin1String(each.cell));
        EXPECT_EQ(look(0, START).tooltip, QString::fromUtf8(each.hint));
        EXPECT_EQ(look(0, START).notice, *each.hint ? Notice::Error : Notice::None);
        const bool isStarted = *each.stored != '\0';
        EXPECT_EQ(look(0, START).background, isStarted ? QColor(255, 233, 127) : QColor(255, 127, 127));
        EXPECT_EQ(window_->findChild<TreatmentRows*>()->rows()[0].inizio, QLatin1String(each.stored));
    }
    type(0, START, QStringLiteral("10/03/2026"));
    for (const bool before : {true, false}) {
        type(0, END, before ? QStringLiteral("9/3") : QStringLiteral("10/3"));
        EXPECT_EQ(look(0, END).notice, before ? Notice::Warning : Notice::None);
        EXPECT_EQ(look(0, END).tooltip, before ? QStringLiteral("La fine è prima dell'inizio") : QString());
    }
    confirm();
    EXPECT_EQ(storedPlan().righi[0].fine, QStringLiteral("10/03/2026"));
}

TEST_F(RowCells, KeepWhatCouldNotBeReadUntilTheRowSaysOtherwise) {
    open(QString());
    newRow(QStringLiteral("VISITA"), QStringLiteral("1.1"));
    newRow(QStringLiteral("IGIENE"));
    type(0, START, QStringLiteral("10/03/2026"));
    const std::pair<int, QString> unread[] = {{START, QStringLiteral("ieri")},
                                              {END, QStringLiteral("poi")},
                                              {TOOTH, QStringLiteral("sesto")},
                                              {OPERATOR, QStringLiteral("Nessuno")}};
    const auto staysRed = [&](platform::ReportGrid& grid, int row) {
        for (const auto& [column, text] : unread) {
            const platform::ReportCell& cell = grid.rowRecord(row)->cell(column);
            EXPECT_EQ(cell.value, text);
            EXPECT_EQ(cell.style().notice, Notice::Error) << column;
        }
    };
    for (const auto& [column, text] : unread)
        type(0, column, text);
    type(0, NOTES, QStringLiteral("altro"));
    selectRow(0);
    pressKey(Qt::Key_Down, Qt::ControlModifier | Qt::AltModifier);
    staysRed(*rows(), 1);
    {
        const ModalWindow zoom("frmZoomRighiTrattamento",
                               [&](QWidget& shown) { staysRed(*shown.findChild<platform::ReportGrid*>(), 1); });
        press(arrayName("cbRighi", 3));
        QTest::qWait(60);
    }
    // The row editor knows only what is stored; what it leaves alone stays as typed.
    const ModalWindow editor("frmEditRigoTrattamento", [](QWidget& shown) {
        shown.findChild<QPushButton*>(QStringLiteral("cbAccetta"))->click();
    });
    press(arrayName("cbRighi", 1));
    staysRed(*rows(), 1);
    type(1, TOOTH, QStringLiteral("2.1"));
    EXPECT_EQ(look(1, TOOTH).notice, Notice::None);
    confirm();
    const clsItemRigoTrattamento stored = storedPlan().righi[1];
    EXPECT_EQ(stored.inizio + u'|' + stored.fine + u'|' + stored.dente + u'|' + stored.operatore,
              QStringLiteral("10/03/2026||8|"));
}

TEST_F(RowCells, TakeTheServiceAsTheCatalogueSpellsAndPricesIt) {
    clsItemTrattamento item = savedPlan(QStringLiteral("2026"), QStringLiteral("0001"));
    for (const char* invoice : {"", "2026-0003"}) {
        clsItemRigoTrattamento priced;
        priced.servizio = QStringLiteral("CORONA");
        priced.dente = QStringLiteral("7");
        priced.prezzo = 10;
        priced.progressivo = DocumentRows::rowNumber(static_cast<int>(item.righi.size()) + 1);
        priced.statuslavori = QStringLiteral("Preparazione|20260301");
        priced.fattura = QLatin1String(invoice);
        item.righi.add(priced.progressivo, priced);
    }
    ASSERT_TRUE(treatments().Salva(item));
    open(item.ID);
    type(0, SERVICE, QStringLiteral("corona "));
    EXPECT_EQ(cell(0, SERVICE), QStringLiteral("CORONA"));
    EXPECT_EQ(price(0), QStringLiteral("10,00"));
    EXPECT_EQ(rows()->rowRecord(0)->cell(NOTES).tag, QStringLiteral("Preparazione|20260301"));
    EXPECT_EQ(drawn(), QStringList{QStringLiteral("1.1")});
    type(0, SERVICE, QStringLiteral("MAI"));
    EXPECT_EQ(look(0, SERVICE).notice, Notice::Warning);
    EXPECT_EQ(look(0, SERVICE).tooltip, QStringLiteral("Il servizio non è nel catalogo"));
    EXPECT_EQ(price(0), QStringLiteral("10,00"));
    for (const int row : {0, 1}) {
        type(row, SERVICE, QStringLiteral("igiene"));
        EXPECT_EQ(cell(row, SERVICE), QStringLiteral("IGIENE"));
        EXPECT_EQ(look(row, SERVICE).notice, Notice::None);
    }
    EXPECT_EQ(price(0), QString());
    EXPECT_EQ(price(1), QStringLiteral("10,00")) << "billed at that price";
    confirm();
    const clsItemTrattamento after = storedPlan();
    EXPECT_EQ(after.righi[0].prezzo, PrezzoServizio(QStringLiteral("IGIENE")));
    EXPECT_EQ(after.righi[1].prezzo, 10);
}

TEST_F(RowCells, SayThatANameOfNoOneIsNotStored) {
    open(QString());
    newRow(QStringLiteral("VISITA"));
    for (const int column : {GROUP, OPERATOR, ASSISTANT}) {
        SCOPED_TRACE(column);
        type(0, column, QStringLiteral("Nessuno"));
        EXPECT_EQ(cell(0, column), QStringLiteral("Nessuno"));
        EXPECT_EQ(look(0, column).notice, Notice::Error);
        EXPECT_EQ(look(0, column).tooltip, QString::fromUtf8("Non è nell'elenco: non verrà memorizzato"));
        type(0, column, rows()->rowRecord(0)->cell(column).style().choices.last());
        EXPECT_EQ(look(0, column).notice, Notice::None);
    }
}

TEST_F(RowCells, FinishAnEditBeforeACommandRuns) {
    open(QString());
    newRow(QStringLiteral("VISITA"));
    newRow(QStringLiteral("CORONA"));
    const auto text = [this](int row) { return cell(row, DESCRIPTION); };
    const auto keyInField = [](QWidget* field, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(field, key, modifiers);
        QTest::qWait(5);
    };

    keyInField(beginEdit(1, DESCRIPTION, "su"), Qt::Key_Up, Qt::ControlModifier | Qt::AltModifier);
    EXPECT_EQ(text(0), QStringLiteral("su"));
    EXPECT_EQ(cell(0, SERVICE), QStringLiteral("CORONA"));
    {
        const ModalWindow expected("frmEditRigoTrattamento", [](QWidget& editor) {
            auto* description = editor.findChild<QLineEdit*>(QStringLiteral("tbDati(2)"));
            EXPECT_EQ(description->text(), QStringLiteral("quattro"));
            editor.findChild<QPushButton*>(QStringLiteral("cbAccetta"))->click();
        });
        keyInField(beginEdit(0, DESCRIPTION, "quattro"), Qt::Key_F4);
    }
    EXPECT_EQ(text(0), QStringLiteral("quattro"));
    {
        const ModalWindow expected("frmZoomRighiTrattamento", [](QWidget& zoom) {
            auto* grid = zoom.findChild<platform::ReportGrid*>();
            EXPECT_EQ(grid->rowRecord(0)->cell(DESCRIPTION).value, QStringLiteral("zoom"));
        });
        beginEdit(0, DESCRIPTION, "zoom");
        find<QPushButton>(arrayName("cbRighi", 3))->click(); // the keyboard is still in the cell
        QTest::qWait(60);
    }
    keyInField(beginEdit(0, SERVICE, "igiene"), Qt::Key_F3);
    EXPECT_EQ(cell(0, SERVICE), QStringLiteral("IGIENE")) << "with what follows from it";
    ASSERT_EQ(rows()->rowCount(), 3);
    EXPECT_TRUE(rows()->isEditing()) << "the new row waits for its service";
    EXPECT_EQ(rows()->focusedRecord(), rows()->rowRecord(2));

    beginEdit(1, DESCRIPTION, "resta");
    keyInField(beginEdit(2, DESCRIPTION, "via"), Qt::Key_F5);
    ASSERT_EQ(rows()->rowCount(), 2);
    EXPECT_EQ(text(1), QStringLiteral("resta"));

    beginEdit(1, NOTES, "ultima");
    find<QPushButton>(QStringLiteral("cbConferma"))->click();
    EXPECT_EQ(storedPlan().righi[1].note, QStringLiteral("ultima"));
}

TEST_F(RowCells, LeaveTheKeyboardWhereTheUserWent) {
    open(QString());
    for (int i = 0; i < 3; ++i)
        newRow(QStringLiteral("VISITA"));
    window_->activateWindow();
    QTest::keyClick(beginEdit(0, SERVICE, "CORONA"), Qt::Key_Tab);
    QTest::qWait(5);
    EXPECT_TRUE(rows()->isEditing());
    EXPECT_EQ(rows()->focusedColumn(), DESCRIPTION);
    rows()->finishEdit();

    // A click is a press and, a moment later, a release.
    auto* view = rows()->view();
    beginEdit(0, DESCRIPTION, "uno");
    const QPoint third = view->visualRect(view->model()->index(2, DESCRIPTION)).center();
    QTest::mousePress(view->viewport(), Qt::LeftButton, {}, third);
    QTest::qWait(5);
    QTest::mouseRelease(view->viewport(), Qt::LeftButton, {}, third);
    QTest::qWait(5);
    EXPECT_EQ(rows()->focusedRecord(), rows()->rowRecord(2));

    for (const bool elsewhere : {false, true}) {
        SCOPED_TRACE(elsewhere);
        beginEdit(0, SERVICE, "?coro");
        const ModalWindow search("frmSceltaServizio", [](QWidget&) {});
        if (elsewhere)
            field(2)->setFocus();
        else
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QTest::qWait(5);
        EXPECT_EQ(rows()->isAncestorOf(window_->focusWidget()), !elsewhere);
        EXPECT_EQ(field(2)->window()->focusWidget() == field(2), elsewhere);
        EXPECT_EQ(rows()->focusedRecord(), rows()->rowRecord(0));
    }

    beginEdit(0, DESCRIPTION, "fine");
    auto* confirm = find<QPushButton>(QStringLiteral("cbConferma"));
    QTest::mousePress(confirm, Qt::LeftButton);
    QTest::qWait(5);
    QTest::mouseRelease(confirm, Qt::LeftButton);
    EXPECT_FALSE(window_->isVisible()) << "the first click counts";
    EXPECT_EQ(storedPlan().righi[0].descrizione, QStringLiteral("fine"));
}

TEST_F(RowCells, TellChartAndTotalsOfWhatIsDoneAndOfARowThatGoes) {
    open(QString());
    newRow(QStringLiteral("CORONA"), QStringLiteral("1.1 2.1"));
    newRow(QStringLiteral("VISITA"));
    newRow(QString(), QStringLiteral("1.1")); // without a service: worth nothing
    newRow(QStringLiteral("CORONA"), QStringLiteral("2.1"));
    EXPECT_EQ(window_->findChild<TreatmentRows*>()->teethOfService(QStringLiteral("CORONA")),
              QStringLiteral("+1.1;2.1"));
    const struct {
        int column;
        const char *date, *finished, *toFinish;
    } cases[] = {
        {START, "01/03/2026", "0,00", "2160,00"},
        {END, "02/03/2026", "1400,00", "760,00"},
        {START, "", "0,00", "2160,00"}, // an end alone is no work done
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.toFinish);
        type(0, each.column, QLatin1String(each.date));
        EXPECT_EQ(total(0), QLatin1String(each.finished));
        EXPECT_EQ(total(1), QLatin1String(each.toFinish));
    }
    selectRow(0);
    press(arrayName("cbRighi", 2));
    EXPECT_EQ(drawn(), QStringList{QStringLiteral("2.1")});
    EXPECT_EQ(total(1), QStringLiteral("760,00"));
    EXPECT_FALSE(window_->findChild<ToothChart*>()->isMarked(7));
}
