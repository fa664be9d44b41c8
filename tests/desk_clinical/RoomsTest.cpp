#include "ClinicalDesk.h"

#include "desk_data/PracticeFixture.h"

#include <QCheckBox>
#include <QDateEdit>
#include <QLabel>
#include <QMetaObject>

struct TextRoom {
    const char* command;
    const char* item;
    const char* form;
    const char* field;
    const char* grid;
    int column;
    const char* table;
    const char* stored;

    friend void PrintTo(const TextRoom& room, std::ostream* out) { *out << room.item; }
};

class TextRooms : public ClinicalDesk, public testing::WithParamInterface<TextRoom> {
protected:
    std::string button(const char* prefix) const { return std::string(prefix) + GetParam().item; }
    void open() { ASSERT_TRUE(desk_->pressCommand(QString::fromUtf8(GetParam().command))); }
    void add(const QString& text) {
        whenModal(GetParam().form, [text](QWidget& window) {
            paste(window, GetParam().field, text);
            press(window, "cbConferma");
        });
        click(button("cbNuovo").c_str());
    }
    QStringList all() { return stored(QLatin1String(GetParam().stored), QLatin1String(GetParam().table)); }
};

TEST_P(TextRooms, WhatIsWrittenIsStoredListedChangedAndDeleted) {
    open();
    EXPECT_TRUE(grid(GetParam().grid).isVisibleTo(control<QWidget>("frmAmbulatorio")));
    QStringList expected = awkwardTexts();
    for (const QString& text : std::as_const(expected))
        add(text);
    expected.sort();
    QStringList found = all();
    found.sort();
    EXPECT_EQ(found, expected);
    EXPECT_EQ(grid(GetParam().grid).rowCount(), expected.size());
    EXPECT_EQ(dialogs_.messages, QStringList());

    auto& list = grid(GetParam().grid);
    const QString before = cell(GetParam().grid, 0, GetParam().column);
    list.setFocusedRecord(list.rowRecord(0));
    whenModal(GetParam().form, [](QWidget& window) {
        paste(window, GetParam().field, QStringLiteral("prima riga\nseconda"));
        press(window, "cbConferma");
    });
    QTest::keyClick(list.view(), Qt::Key_Return);
    EXPECT_TRUE(all().contains(QStringLiteral("prima riga\nseconda")));
    EXPECT_FALSE(all().contains(before));
    EXPECT_EQ(list.focusedRecord()->cell(GetParam().column).value, QStringLiteral("prima riga seconda"));

    dialogs_.answers = {platform::Answer::No};
    click(button("cbElimina").c_str());
    EXPECT_EQ(list.rowCount(), expected.size());
    QTest::keyClick(list.view(), Qt::Key_Delete);
    EXPECT_EQ(dialogs_.messages.size(), 2);
    EXPECT_EQ(list.rowCount(), expected.size() - 1);
    EXPECT_FALSE(all().contains(QStringLiteral("prima riga\nseconda")));
}

TEST_P(TextRooms, AnEmptyTextIsRefusedAndLeavingAChangedOneAsks) {
    open();
    whenModal(GetParam().form, [this](QWidget& window) {
        press(window, "cbConferma");
        EXPECT_TRUE(window.isVisible());
        EXPECT_EQ(dialogs_.messages.size(), 1);
        paste(window, GetParam().field, QStringLiteral("quasi perduto"));
        dialogs_.answers = {platform::Answer::No, platform::Answer::Yes};
        QTest::keyClick(&window, Qt::Key_Escape);
        EXPECT_TRUE(window.isVisible());
        QTest::keyClick(&window, Qt::Key_Escape);
        EXPECT_FALSE(window.isVisible());
    });
    click(button("cbNuovo").c_str());
    EXPECT_EQ(dialogs_.messages.size(), 3);
    EXPECT_EQ(all(), QStringList());
    whenModal(GetParam().form, [](QWidget& window) { QTest::keyClick(&window, Qt::Key_Escape); });
    click(button("cbNuovo").c_str());
    EXPECT_EQ(dialogs_.messages.size(), 3) << "nothing was typed, nothing to ask";
}

TEST_P(TextRooms, AFailingDatabaseIsToldAndLosesNeitherTextNorList) {
    open();
    add(QStringLiteral("presente"));
    const QString table = QLatin1String(GetParam().table);
    const auto rename = [this](const QString& from, const QString& to) {
        place_.execute(QStringLiteral("alter table %1 rename to %2").arg(from, to));
    };
    whenModal(GetParam().form, [&](QWidget& window) {
        paste(window, GetParam().field, QStringLiteral("da salvare"));
        rename(table, QStringLiteral("tblAltrove"));
        press(window, "cbConferma");
        EXPECT_TRUE(window.isVisible());
        EXPECT_EQ(dialogs_.messages.size(), 1);
        EXPECT_TRUE(dialogs_.messages.value(0).startsWith(QStringLiteral("I dati non sono stati salvati.\nErrore")))
            << dialogs_.messages.value(0).toStdString();
        control<platform::RecordForm>(GetParam().form);
        rename(QStringLiteral("tblAltrove"), table);
        press(window, "cbConferma");
    });
    click(button("cbNuovo").c_str());
    EXPECT_EQ(grid(GetParam().grid).rowCount(), 2);

    rename(table, QStringLiteral("tblAltrove"));
    patient().GeneraEvento(patient().Appunti());
    settle();
    auto* trouble = control<QLabel>(button("laErrore").c_str());
    EXPECT_TRUE(trouble->isVisibleTo(trouble->parentWidget()));
    EXPECT_EQ(grid(GetParam().grid).rowCount(), 2);
    rename(QStringLiteral("tblAltrove"), table);
    patient().GeneraEvento(patient().Appunti());
    settle();
    EXPECT_FALSE(trouble->isVisibleTo(trouble->parentWidget()));
}

TEST_P(TextRooms, WhatAnotherWorkstationWroteIsNotOverwrittenUnasked) {
    open();
    add(QStringLiteral("prima"));
    dialogs_.answers = {platform::Answer::No, platform::Answer::Yes};
    whenModal(GetParam().form, [this](QWidget& window) {
        paste(window, GetParam().field, QStringLiteral("qui"));
        const QString theirs = QStringLiteral("update %1 set %2 = 'dall''altra'");
        place_.execute(theirs.arg(QLatin1String(GetParam().table), QLatin1String(GetParam().stored)));
        press(window, "cbConferma");
        EXPECT_TRUE(window.isVisible());
        EXPECT_TRUE(dialogs_.messages.value(0).contains(QStringLiteral("ora dice:\n\ndall'altra")));
        EXPECT_EQ(all(), QStringList{QStringLiteral("dall'altra")});
        press(window, "cbConferma");
    });
    click(button("cbModifica").c_str());
    EXPECT_EQ(dialogs_.messages.size(), 2);
    EXPECT_EQ(all(), QStringList{QStringLiteral("qui")});
}

INSTANTIATE_TEST_SUITE_P(Desk, TextRooms,
                         testing::Values(TextRoom{"Diario clinico", "Evento", "frmEditEvento", "tbDescrizione",
                                                  "rcEventi", 1, "tblEventi", "descrizione"},
                                         TextRoom{"Appunti", "Appunto", "frmEditAppunto", "tbTesto", "rcAppunti", 1,
                                                  "tblAppunti", "m1"},
                                         TextRoom{"Visite", "Visita", "frmEditVisita", "tbDescrizione", "rcVisite", 2,
                                                  "tblVisite", "descrizione"},
                                         TextRoom{"Scadenze", "Scadenza", "frmEditScadenza", "tbDescrizione",
                                                  "rcScadenze", 1, "tblScadenze", "descrizione"}),
                         [](const auto& one) { return std::string(one.param.item); });

TEST_F(ClinicalDesk, PrivateNotesAreForThePatientsDoctorAlone) {
    const auto add = [this](const char* text, bool secret) {
        host().DB().Execute(QStringLiteral("insert into tessara.tblAppunti (ID, idpaziente, b1, b2, m1) values "
                                           "('%1', '%2', %3, 0, '%1')")
                                .arg(QLatin1String(text), rossi_)
                                .arg(secret ? 1 : 0));
    };
    add("riservato", true);
    add("pubblico", false);
    ASSERT_TRUE(desk_->pressCommand(QStringLiteral("Appunti")));
    patient().GeneraEvento(patient().Appunti());
    settle();
    EXPECT_EQ(grid("rcAppunti").rowCount(), 2);

    setDoctor(QString());
    EXPECT_EQ(grid("rcAppunti").rowCount(), 1);
    EXPECT_EQ(cell("rcAppunti", 0, 1), QStringLiteral("pubblico"));
    EXPECT_THROW(patient().Appunti().EditForm(QStringLiteral("riservato")), host::HostError);
    const std::unique_ptr<QObject> form(patient().Appunti().EditForm(QStringLiteral("pubblico")));
    EXPECT_FALSE(form->findChild<QCheckBox*>(QStringLiteral("ckPrivato"))->isEnabled());
}

TEST_F(ClinicalDesk, TheFormsOfTheContractStoreAndAnswer) {
    const struct {
        std::function<QObject*()> form;
        const char* field;
        const char* table;
        const char* column;
    } cases[] = {
        {[this] { return patient().Appunti().EditForm({}); }, "tbTesto", "tblAppunti", "m1"},
        {[this] { return patient().VisiteAmbDom().EditForm({}); }, "tbDescrizione", "tblVisite", "descrizione"},
        {[this] { return patient().scadenze().EditForm({}); }, "tbDescrizione", "tblScadenze", "descrizione"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.table);
        for (const bool confirm : {false, true}) {
            framework().setDialogCancel(!confirm);
            const std::unique_ptr<QObject> form(each.form());
            auto* dialog = qobject_cast<QDialog*>(form.get());
            ASSERT_NE(dialog, nullptr);
            const QByteArray name = dialog->objectName().toUtf8();
            whenModal(name.constData(), [&](QWidget& window) {
                if (confirm) paste(window, each.field, QStringLiteral("dal modulo"));
                press(window, confirm ? "cbConferma" : "cbAnnulla");
            });
            dialog->exec();
            EXPECT_EQ(framework().DialogCancel(), !confirm);
        }
        EXPECT_EQ(stored(QLatin1String(each.column), QLatin1String(each.table)),
                  QStringList{QStringLiteral("dal modulo")});
    }
    ASSERT_TRUE(desk_->pressCommand(QStringLiteral("Scadenze")));
    EXPECT_EQ(cell("rcScadenze", 0, 1), QStringLiteral("dal modulo"));
    EXPECT_THROW(patient().scadenze().EditForm(QStringLiteral("nessuna")), host::HostError);
}

TEST_F(ClinicalDesk, OverdueDatesStandOutUntilTheyAreDone) {
    const struct {
        QDate date;
        bool done;
        const char* state;
        bool bold;
    } cases[] = {{QDate(2026, 3, 9), false, "Scaduta", true},
                 {QDate(2026, 3, 9), true, "Fatta", false},
                 {QDate(2026, 3, 10), false, "Da fare", false}};
    ASSERT_TRUE(desk_->pressCommand(QStringLiteral("Scadenze")));
    for (const auto& each : cases) {
        SCOPED_TRACE(each.state);
        whenModal("frmEditScadenza", [&each](QWidget& window) {
            window.findChild<QDateEdit*>(QStringLiteral("tbData"))->setDate(each.date);
            paste(window, "tbDescrizione", QStringLiteral("richiamo"));
            window.findChild<QCheckBox*>(QStringLiteral("ckFatta"))->setChecked(each.done);
            press(window, "cbConferma");
        });
        click("cbNuovoScadenza");
        const platform::ReportRecord* row = grid("rcScadenze").focusedRecord();
        ASSERT_NE(row, nullptr);
        EXPECT_EQ(row->cell(0).value, each.date.toString(QStringLiteral("dd/MM/yyyy")));
        EXPECT_EQ(row->cell(2).value, QLatin1String(each.state));
        EXPECT_EQ(row->cell(0).style().bold, each.bold);
        EXPECT_EQ(row->cell(0).style().foreground.isValid(), QLatin1String(each.state) != QLatin1String("Da fare"));
    }
}

TEST_F(ClinicalDesk, WhatAModuleWritesShowsAfterItSaysSo) {
    ASSERT_TRUE(desk_->pressCommand(QStringLiteral("Diario clinico")));
    host::Evento event{{}, QStringLiteral("01/02/2026"), QStringLiteral("igiene"), {}};
    ASSERT_TRUE(patient().Eventi().Salva(event));
    EXPECT_EQ(grid("rcEventi").rowCount(), 0);
    patient().GeneraEvento(patient().Eventi());
    settle();
    EXPECT_EQ(cell("rcEventi", 0, 0), QStringLiteral("01/02/2026"));
    EXPECT_EQ(cell("rcEventi", 0, 1), QStringLiteral("igiene"));
    desk_->closePatient();
    QString why;
    EXPECT_FALSE(desk_->pressCommand(QStringLiteral("Diario clinico"), &why));
}
