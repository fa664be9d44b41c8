// What can go wrong under the editor of a plan: bad records, other workstations, the database.
#include "EditorFixture.h"
#include "ModalWindow.h"
#include "catalogues/clsServizi.h"
#include "host/contract/Forms.h"
#include "platform/FormRegistry.h"
#include "store/modLock.h"
#include "treatments/ApriTrattamento.h"
#include "treatments/TeethPanel.h"
#include "treatments/TreatmentColumns.h"
#include "treatments/frmMDITrattamenti.h"
#include "treatments/modTrattamenti.h"

#include <QApplication>
#include <QDateEdit>
#include <memory>
#include <stdexcept>
#include <utility>

namespace {

const QString SEARCH_MARK = QStringLiteral("Attenzione! Salvataggio non a buon fine! Vuoi rivedere i dati?");

class TreatmentFaults : public EditorFixture {
protected:
    /// While it lives the rows of all records are away, as when the server is.
    class Away {
    public:
        explicit Away(PracticeDatabase& place, const char* table = "tblWorkspace")
            : place_(place)
            , table_(QLatin1String(table)) {
            place_.execute(QStringLiteral("alter table %1 rename to altrove").arg(table_));
        }
        ~Away() { place_.execute(QStringLiteral("alter table altrove rename to %1").arg(table_)); }
        Away(const Away&) = delete;
        Away& operator=(const Away&) = delete;

    private:
        PracticeDatabase& place_;
        QString table_;
    };
    void conMemo(const QString& number, const QString& memo) {
        database_.execute(QStringLiteral("update tblWorkspace set m1 = '%1' where idrif1 = '%2'").arg(memo, number));
        treatments().Refresh();
    }
    /// A plan whose stored rows bear the same number twice: one at work, the other finished.
    clsItemTrattamento planWithDoubledNumber(const char* number) {
        clsItemTrattamento item = savedPlan(QStringLiteral("2026"), QLatin1String(number));
        conMemo(item.number().text(),
                QStringLiteral("<trattamento anno=\"2026\" progressivo=\"%1\" data=\"10/03/2026\"><righi>"
                               "<rigo progressivo=\"01\" servizio=\"VISITA\" inizioLavori=\"01/02/2026\"/>"
                               "<rigo progressivo=\" 01\" servizio=\"CORONA\" inizioLavori=\"01/02/2026\" "
                               "fineLavori=\"01/03/2026\"/></righi><descrizione>RG9wcGlv</descrizione></trattamento>")
                    .arg(QLatin1String(number)));
        return item;
    }
};

class DeskForm : public host::HostForm {
public:
    QString Name() const override { return QStringLiteral("frmAmbulatorio"); }
};

/// A window of the program that fails whenever it is told of a change.
class BrokenWindow : public QWidget {
    Q_OBJECT

public:
    explicit BrokenWindow(const char* name) {
        setObjectName(QLatin1String(name));
        platform::FormRegistry::add(this);
    }
    Q_INVOKABLE void plbRefresh() { throw std::runtime_error("sintesi"); }
    Q_INVOKABLE void RefreshTrattamenti(const QString&) { throw std::runtime_error("elenco"); }
};

} // namespace

TEST_F(TreatmentFaults, OneBadPlanHidesNoOtherAndStandsAlikeInPanelAndList) {
    savedPlan(QStringLiteral("2026"), QStringLiteral("0001"));
    const clsItemTrattamento doubled = planWithDoubledNumber("0002");
    savedPlan(QStringLiteral("2026"), QStringLiteral("0003"));
    treatments().Refresh();
    ASSERT_EQ(treatments().Lista().size(), 3U);
    EXPECT_EQ(treatments().Lista().find(doubled.ID)->descrizione, QStringLiteral("Doppio"));
    EXPECT_EQ(ContaTrattamentiAperti(), 1);
    platform::ReportGrid panel;
    view().refreshGrid(&panel, doubled.ID);
    EXPECT_EQ(panel.rowCount(), 3);
    EXPECT_EQ(panel.focusedRecord()->tag, doubled.ID);
    frmMDITrattamenti window;
    auto& list = *window.findChild<platform::ReportGrid*>(QStringLiteral("rcTrattamenti"));
    ASSERT_EQ(list.rowCount(), 3);
    for (platform::ReportGrid* grid : {&panel, &list}) {
        const platform::ReportCell& state = grid->rowRecord(1)->cell(treatmentcolumns::STATUS);
        EXPECT_EQ(state.value, QStringLiteral("1 lavori finiti. Ci sono 1 lavori aperti"));
        EXPECT_EQ(state.style().iconIndex, 2);
    }
    EXPECT_TRUE(dialogs_.messages.isEmpty());
    EXPECT_THROW(treatments().Carica(doubled.ID), platform::DuplicateKey);
}

TEST_F(TreatmentFaults, ShowsWhatCanBeReadOfABadPlanAndNeverWritesOverIt) {
    const QString head = QStringLiteral("<trattamento anno=\"2026\" progressivo=\"0002\" data=\"05/01/2026\">");
    const QString row = QStringLiteral("<rigo progressivo=\"01\" servizio=\"VISITA\"/>");
    const QString tail = QStringLiteral("</trattamento>");
    const struct {
        const char* fault;
        QString memo;
        int rows; ///< That are shown.
    } cases[] = {
        {"empty", QString(), 0},
        {"cut off", head + QStringLiteral("<righi>") + row, 0},
        {"no text at all", QStringLiteral("\u0001\u0002"), 0},
        {"two roots", head + tail + head + tail, 0},
        {"another document", QStringLiteral("<preventivo><righi>%1</righi></preventivo>").arg(row), 0},
        {"rows are missing", head + tail, 0},
        {"rows twice", head + QStringLiteral("<righi>%1</righi><righi>%1</righi>").arg(row) + tail, 1},
        {"a row by another name", head + QStringLiteral("<righi>%1<rixo/></righi>").arg(row) + tail, 1},
        {"a row in a row", head + QStringLiteral("<righi><rigo progressivo=\"01\">%1</rigo></righi>").arg(row) + tail,
         1},
        {"a value by another name", head + QStringLiteral("<righi><rigo progrexxivo=\"01\"/></righi>") + tail, 1},
        {"a part by another name", head + QStringLiteral("<righi>%1</righi><annotaxioni/>").arg(row) + tail, 1},
        {"a number twice", head + QStringLiteral("<righi>%1%1%1</righi>").arg(row) + tail, 3},
    };
    const QString id = savedPlan(QStringLiteral("2026"), QStringLiteral("0002")).ID;
    for (const auto& each : cases) {
        SCOPED_TRACE(each.fault);
        conMemo(QStringLiteral("2026-0002"), each.memo);
        const QString before = storedRow(QStringLiteral("2026-0002"))->m1;
        dialogs_.messages.clear();
        open(id);
        ASSERT_EQ(dialogs_.messages.size(), 1);
        EXPECT_TRUE(dialogs_.messages[0].startsWith(
            QStringLiteral("Attenzione! Riscontrati errori in lettura dati trattamento!\r\nErrore: ")));
        EXPECT_FALSE(find<QPushButton>(QStringLiteral("cbConferma"))->isEnabled());
        EXPECT_EQ(find<QPushButton>(QStringLiteral("cbAnnulla"))->text(), QStringLiteral("Chiudi"));
        EXPECT_EQ(field(0)->text() + field(1)->text(), QStringLiteral("20260002"));
        EXPECT_EQ(rows()->rowCount(), each.rows);
        const bool headIsRead = each.rows > 0 || each.memo == head + tail;
        EXPECT_EQ(find<QDateEdit>(QStringLiteral("dtpData"))->date(),
                  headIsRead ? QDate(2026, 1, 5) : QDate(2026, 3, 10));
        EXPECT_FALSE(EsisteLock(QStringLiteral("Trattamento"), id)) << "nobody is working in it";
        press(QStringLiteral("cbAnnulla"));
        EXPECT_FALSE(window_->isVisible());
        EXPECT_EQ(storedRow(QStringLiteral("2026-0002"))->m1, before);
    }
    EXPECT_EQ(rows()->rowRecord(2)->cell(gridrow::SERVICE).value, QStringLiteral("VISITA"));
    EXPECT_TRUE(dialogs_.messages[0].contains(QStringLiteral("01"))) << "which number it is";

    platform::ReportGrid grid;
    view().refreshGrid(&grid, id);
    dialogs_.taskAnswer.button = QStringLiteral("Si");
    view().PopupExecute(10079, &grid); // deletes
    EXPECT_EQ(grid.rowCount(), 0);
    EXPECT_FALSE(storedRow(QStringLiteral("2026-0002")));
}

TEST_F(TreatmentFaults, OpensReadOnlyWhatCouldNotBeReadAndSaysSo) {
    const QString id = savedPlan(QStringLiteral("2026"), QStringLiteral("0001")).ID;
    for (const QString& which : {id, QString()}) {
        SCOPED_TRACE(qPrintable(which));
        dialogs_.messages.clear();
        {
            const Away away(database_);
            open(which);
        }
        ASSERT_FALSE(dialogs_.messages.isEmpty());
        EXPECT_TRUE(dialogs_.messages[0].startsWith(QStringLiteral("Attenzione! Riscontrati errori in lettura")));
        EXPECT_FALSE(find<QPushButton>(QStringLiteral("cbConferma"))->isEnabled());
        EXPECT_FALSE(EsisteLock(QStringLiteral("Trattamento"), id));
    }
    open(id);
    EXPECT_EQ(field(2)->text(), QStringLiteral("Piano 0001"));
    EXPECT_TRUE(find<QPushButton>(QStringLiteral("cbConferma"))->isEnabled());
}

TEST_F(TreatmentFaults, KeepsTheDateOfTheRowWhenTheMemoHasNone) {
    const QString id = savedPlan(QStringLiteral("2026"), QStringLiteral("0001")).ID;
    database_.execute(QStringLiteral("update tblWorkspace set Data = '2025-11-22' where idrif1 = '2026-0001'"));
    for (const char* data : {"", "31/02/2026", "ieri"}) {
        SCOPED_TRACE(data);
        conMemo(QStringLiteral("2026-0001"), QStringLiteral("<trattamento anno=\"2026\" progressivo=\"0001\" "
                                                            "data=\"%1\"><righi/></trattamento>")
                                                 .arg(QLatin1String(data)));
        open(id);
        EXPECT_EQ(find<QDateEdit>(QStringLiteral("dtpData"))->date(), QDate(2025, 11, 22));
        confirm();
        EXPECT_EQ(storedRow(QStringLiteral("2026-0001"))->Data.date(), QDate(2025, 11, 22));
    }
}

TEST_F(TreatmentFaults, AConfirmStandsWhateverFailsAfterIt) {
    const QString id = savedPlan(QStringLiteral("2026"), QStringLiteral("0001")).ID;
    const BrokenWindow list("frmMDITrattamenti");
    const BrokenWindow summary("frmMDISintesi");
    platform::ReportGrid panel;
    view().refreshGrid(&panel, id);
    open(id);
    QTest::keyClicks(field(2), QStringLiteral(" corretto"));
    confirm();
    EXPECT_TRUE(dialogs_.messages.isEmpty()) << dialogs_.messages.value(0).toStdString();
    EXPECT_FALSE(window_->isVisible());
    EXPECT_FALSE(oHost->Framework().DialogCancel());
    EXPECT_FALSE(EsisteLock(QStringLiteral("Trattamento"), id));
    EXPECT_EQ(panel.rowRecord(0)->cell(treatmentcolumns::DESCRIPTION).value, QStringLiteral("Piano 0001 corretto"));
}

TEST_F(TreatmentFaults, TheModuleMayEndUnderItsWindows) {
    const QString id = savedPlan(QStringLiteral("2026"), QStringLiteral("0001")).ID;
    frmMDITrattamenti list;
    list.show();
    auto* grid = list.findChild<platform::ReportGrid*>(QStringLiteral("rcTrattamenti"));
    QTimer::singleShot(30, [&] {
        raiseEvent("fine");
        QWidget* editor = QApplication::activeModalWidget();
        ASSERT_NE(editor, nullptr);
        QTest::mouseClick(editor->findChild<QWidget*>(QStringLiteral("imTooth(7)")), Qt::RightButton);
        editor->findChild<QPushButton*>(QStringLiteral("cbRighi(0)"))->click();
        QTest::qWait(1);
        auto* rows = editor->findChild<platform::ReportGrid*>(QStringLiteral("rcRighi"));
        EXPECT_TRUE(rows->enterText(0, gridrow::SERVICE, QStringLiteral("CORONA")));
        dialogs_.answer = platform::Answer::Yes;
        editor->findChild<QPushButton*>(QStringLiteral("cbConferma"))->click();
        EXPECT_EQ(dialogs_.messages, QStringList{SEARCH_MARK}) << "nothing can be saved any more";
        editor->close();
    });
    ApriTrattamento(id);
    ASSERT_EQ(oHost, nullptr);
    platform::ReportRecord* first = grid->rowRecord(0);
    emit grid->rowDoubleClicked(first, 0);
    emit grid->rowRightClicked(first, 0);
    QTest::mouseClick(list.findChild<QPushButton*>(QStringLiteral("cbFiltra")), Qt::LeftButton);
    EXPECT_EQ(grid->rowCount(), 0);
    EXPECT_EQ(grid->emptyText(), QStringLiteral("Elenco non letto: il modulo non è più attivo"));
    std::unique_ptr<QObject> other(view().EditForm(id));
    view().refreshGrid(grid, id);
}

TEST_F(TreatmentFaults, AsksWhatToDoWithAPlanThatAnotherWorkstationDeleted) {
    const clsItemTrattamento item = savedPlan(QStringLiteral("2026"), QStringLiteral("0001"));
    open(item.ID);
    QTest::keyClicks(field(2), QStringLiteral(" corretto"));
    ASSERT_TRUE(patient().corvala().Elimina(item.ID));
    dialogs_.answer = platform::Answer::Yes;
    confirm();
    EXPECT_EQ(dialogs_.messages, QStringList{SEARCH_MARK});
    EXPECT_EQ(dialogs_.values, QList<int>{platform::MB_QUESTION});
    EXPECT_TRUE(window_->isVisible());
    EXPECT_EQ(field(2)->text(), QStringLiteral("Piano 0001 corretto"));
    dialogs_.answer = platform::Answer::No;
    oHost->Framework().setDialogCancel(false); // as an editor opened from this one leaves it
    confirm();
    EXPECT_FALSE(window_->isVisible());
    EXPECT_TRUE(oHost->Framework().DialogCancel());
    EXPECT_FALSE(storedRow(QStringLiteral("2026-0001")));
}

TEST_F(TreatmentFaults, SavesAtTheSecondTryOnceTheDatabaseIsBack) {
    const clsItemTrattamento item = savedPlan(QStringLiteral("2026"), QStringLiteral("0001"));
    for (const bool isNew : {false, true}) {
        SCOPED_TRACE(isNew);
        dialogs_.messages.clear();
        open(isNew ? QString() : item.ID);
        QTest::keyClicks(field(2), QStringLiteral(" corretto"));
        dialogs_.answer = platform::Answer::Yes;
        {
            const Away away(database_);
            confirm();
        }
        ASSERT_FALSE(dialogs_.messages.isEmpty());
        EXPECT_EQ(dialogs_.messages[0], SEARCH_MARK); // the desk may tell of the database on its own after it
        EXPECT_TRUE(window_->isVisible());
        confirm();
        EXPECT_FALSE(window_->isVisible());
        EXPECT_FALSE(oHost->Framework().DialogCancel());
        EXPECT_EQ(storedRow(isNew ? QStringLiteral("2026-0002") : QStringLiteral("2026-0001"))->descrizione,
                  isNew ? QStringLiteral(" corretto") : QStringLiteral("Piano 0001 corretto"));
    }
}

TEST_F(TreatmentFaults, ShowsThePlanBehindARowThatCouldNotBeSaved) {
    clsItemTrattamento item = savedPlan(QStringLiteral("2026"), QStringLiteral("0001"));
    item.righi.add(QStringLiteral("01"), {});
    item.righi[0].progressivo = QStringLiteral("01");
    ASSERT_TRUE(treatments().Salva(item));
    dialogs_.answer = platform::Answer::Yes; // look the data over again
    frmEditTrattamento plan(item.ID, QStringLiteral("01"));
    QTimer::singleShot(30, [&] {
        QWidget* row = QApplication::activeModalWidget();
        ASSERT_NE(row, nullptr);
        row->findChild<QLineEdit*>(QStringLiteral("tbDati(2)"))->setText(QStringLiteral("Non va perso"));
        auto away = std::make_shared<Away>(database_);
        QTimer::singleShot(30, [away, &plan]() mutable {
            away.reset();
            EXPECT_EQ(QApplication::activeModalWidget(), &plan);
            plan.findChild<QPushButton*>(QStringLiteral("cbConferma"))->click();
        });
        row->findChild<QPushButton*>(QStringLiteral("cbAccetta"))->click();
    });
    EXPECT_EQ(plan.exec(), QDialog::Accepted);
    EXPECT_EQ(dialogs_.messages.value(0), SEARCH_MARK);
    EXPECT_EQ(treatments().Carica(item.ID)->righi[0].descrizione, QStringLiteral("Non va perso"));

    // A row that another workstation has deleted meanwhile: the plan opens as always.
    frmEditTrattamento other(item.ID, QStringLiteral("07"));
    QTimer::singleShot(30, [&other] {
        EXPECT_TRUE(other.isVisible());
        other.reject();
    });
    other.exec();
}

TEST_F(TreatmentFaults, OpensAndSavesAPlanOfUnknownThings) {
    clsItemTrattamento item = savedPlan(QStringLiteral("2026"), QStringLiteral("0001"));
    const struct {
        const char *tooth, *teeth;
    } cases[] = {{"99", ""}, {"-1", ""}, {"boh", ""}, {"+", "7;77;boh;8"}, {"+", ""}, {"7", ""}};
    for (const auto& each : cases) {
        clsItemRigoTrattamento row;
        row.progressivo = DocumentRows::rowNumber(static_cast<int>(item.righi.size()) + 1);
        row.servizio = QStringLiteral("MAI_VISTO");
        row.dente = QLatin1String(each.tooth);
        row.denti = QLatin1String(each.teeth);
        row.inizio = QStringLiteral("31/02/2026");
        row.statuslavori = QStringLiteral("Prova|boh|boh\r\n||");
        item.righi.add(row.progressivo, row);
    }
    item.SituazioneOrale = QStringLiteral("7:55:sconosciuta;200:1:;boh;:::;3:2:nota");
    ASSERT_TRUE(treatments().Salva(item));
    open(item.ID);
    ASSERT_EQ(rows()->rowCount(), 6);
    selectRow(3);
    confirm();
    EXPECT_TRUE(dialogs_.messages.isEmpty()) << dialogs_.messages.value(0).toStdString();
    EXPECT_FALSE(window_->isVisible());
    const auto readBack = treatments().Carica(item.ID);
    ASSERT_TRUE(readBack);
    ASSERT_EQ(readBack->righi.size(), 6U);
    for (std::size_t i = 0; i < readBack->righi.size(); ++i) {
        EXPECT_EQ(readBack->righi[i].servizio, QStringLiteral("MAI_VISTO")) << i;
        EXPECT_EQ(readBack->righi[i].statuslavori, item.righi[i].statuslavori) << i;
        EXPECT_EQ(readBack->righi[i].inizio, QStringLiteral("31/02/2026")) << i;
    }
    for (const std::size_t without : {0U, 1U, 2U})
        EXPECT_EQ(readBack->righi[without].dente, QString()) << without;
    EXPECT_EQ(readBack->righi[3].denti, QStringLiteral("7;-1;-1;8")); // the row's price still counts four teeth
    EXPECT_EQ(readBack->righi[5].dente, QStringLiteral("7"));
    EXPECT_EQ(readBack->SituazioneOrale, QStringLiteral("3:2:nota;7:55:sconosciuta"));
}

TEST_F(TreatmentFaults, WorksInAPlanOfTwoThousandRows) {
    clsItemTrattamento item = savedPlan(QStringLiteral("2026"), QStringLiteral("0001"));
    for (int number = 1; number <= 2000; ++number) {
        clsItemRigoTrattamento row;
        row.progressivo = DocumentRows::rowNumber(number);
        row.servizio = QStringLiteral("VISITA");
        row.descrizione = QString::number(number);
        row.dente = QString::number(number % 52);
        item.righi.add(row.progressivo, row);
    }
    ASSERT_TRUE(treatments().Salva(item));
    open(item.ID);
    ASSERT_EQ(rows()->rowCount(), 2000);
    type(1999, gridrow::START, QStringLiteral("01/03/2026"));
    selectRow(1999);
    pressKey(Qt::Key_Up, Qt::ControlModifier | Qt::AltModifier);
    selectRow(0);
    press(QStringLiteral("cbRighi(2)"));
    newRow(QStringLiteral("CORONA"));
    confirm();
    EXPECT_FALSE(window_->isVisible());
    const auto readBack = treatments().Carica(item.ID);
    ASSERT_TRUE(readBack);
    ASSERT_EQ(readBack->righi.size(), 2000U);
    EXPECT_EQ(readBack->righi[0].descrizione, QStringLiteral("2"));
    EXPECT_EQ(readBack->righi[1997].descrizione, QStringLiteral("2000"));
    EXPECT_EQ(readBack->righi[1997].progressivo, QStringLiteral("1998"));
    EXPECT_EQ(readBack->righi[1997].inizio, QStringLiteral("01/03/2026"));
    EXPECT_EQ(readBack->righi[1999].servizio, QStringLiteral("CORONA"));
}

TEST_F(TreatmentFaults, TellsInWhichPhaseTheChartFailedAndGoesOn) {
    oConfig->setEvidenziaBreve(true);
    // The catalogue of services falls away as when the share of its folder goes.
    clsServizi withoutFolder([]() -> QString { throw std::runtime_error("cartella sparita"); });
    clsServizi* previous = std::exchange(oServizi, &withoutFolder);
    TeethPanel panel;
    panel.setRows({{ToothList({QStringLiteral("4.6")}), QStringLiteral("IMPIANTO"), QStringLiteral("Impianto"),
                    QStringLiteral("01/03/2026"), QString()}});
    oServizi = previous;
    EXPECT_EQ(dialogs_.messages,
              QStringList{QStringLiteral("Errori inattesi (sistemazione icone servizi)!\r\n - fase: step 5.c\r\n"
                                         " - errore: cartella sparita")});
    EXPECT_EQ(dialogs_.values, QList<int>{platform::MB_WARNING});
    EXPECT_EQ(dialogs_.titles, QStringList{QStringLiteral("Tessara 5000. CORVALA")});
    // What was done before stands, and so do the marks, which are a pass of their own.
    EXPECT_EQ(panel.tooth(IndiceDaDente(QStringLiteral("4.6"))).layers[0].service, QStringLiteral("IMPIANTO"));
    EXPECT_EQ(panel.tooth(IndiceDaDente(QStringLiteral("4.6"))).state, ToothState::Open);
}

TEST_F(TreatmentFaults, ListsSayThatTheyAreUnreadAndComeBackWithTheDatabase) {
    const QString id = savedPlan(QStringLiteral("2026"), QStringLiteral("0001")).ID;
    frmMDITrattamenti list;
    list.show();
    auto* grid = list.findChild<platform::ReportGrid*>(QStringLiteral("rcTrattamenti"));
    for (const char* tableName : {"tblWorkspace", "tblPazienti"}) {
        SCOPED_TRACE(tableName);
        ASSERT_EQ(grid->rowCount(), 1);
        {
            const Away away(database_, tableName);
            QTest::mouseClick(list.findChild<QPushButton*>(QStringLiteral("cbFiltra")), Qt::LeftButton);
            EXPECT_FALSE(list.findChild<QWidget*>(QStringLiteral("pbAttesa"))->isVisible());
            EXPECT_EQ(grid->rowCount(), 0);
            EXPECT_TRUE(grid->emptyText().startsWith(QStringLiteral("Elenco non letto: ")));
        }
        auto* retry = list.findChild<QTimer*>(QStringLiteral("tmRilettura"));
        EXPECT_TRUE(retry->isActive());
        retry->start(1);
        QTest::qWait(20);
        EXPECT_EQ(grid->rowCount(), 1);
        EXPECT_FALSE(retry->isActive());
        EXPECT_EQ(grid->emptyText(), QStringLiteral("Non ci sono dati da visualizzare"));
    }
    platform::ReportGrid panel;
    {
        const Away away(database_);
        treatments().Refresh();
        view().refreshGrid(&panel, id);
        EXPECT_TRUE(panel.emptyText().startsWith(QStringLiteral("Elenco non letto: ")));
        EXPECT_THROW(treatments().Lista(), host::HostError);
        DeskForm deskForm;
        raiseEvent("form.load", {QVariant::fromValue<host::HostForm*>(&deskForm)});
        dialogs_.messages.clear();
        for (const bool isSingle : {true, false}) {
            oConfig->setUnicaSchedaTrattamento(isSingle);
            EXPECT_TRUE(desk_->pressCommand(QStringLiteral("CRVL0303"))) << "opens nothing, and is not off either";
        }
        EXPECT_EQ(dialogs_.messages.filter(QStringLiteral("Attenzione! Elenco dei trattamenti non letto!")).size(), 2);
    }
    view().RefreshPannello();
    EXPECT_EQ(panel.rowCount(), 1);
}

TEST_F(TreatmentFaults, TheSingleSheetReadsAnewBeforeItDecides) {
    oConfig->setUnicaSchedaTrattamento(true);
    DeskForm deskForm;
    raiseEvent("form.load", {QVariant::fromValue<host::HostForm*>(&deskForm)});
    EXPECT_TRUE(treatments().Lista().empty());
    savedPlan(QStringLiteral("2026"), QStringLiteral("0041")); // as another workstation does, behind the list
    const ModalWindow expected("frmEditTrattamento", [](QWidget& editor) {
        EXPECT_EQ(editor.findChild<QLineEdit*>(QStringLiteral("tbDati(1)"))->text(), QStringLiteral("0041"));
    });
    EXPECT_TRUE(desk_->pressCommand(QStringLiteral("CRVL0303")));
}

#include "TreatmentFaultsTest.moc"
