#include "desk_scenario/SampleWindow.h"
#include "desk_scenario/ScenarioPlay.h"
#include "platform/Clock.h"
#include "platform/Dialogs.h"
#include "platform/FormRegistry.h"
#include "platform/ReportGrid.h"

#include <QImage>
#include <QLineEdit>
#include <QPalette>
#include <QPlainTextEdit>
#include <QStyle>
#include <QTimer>

namespace {

/// A shown sample window; each test plays scripts on it.
class ScenarioCommandsTest : public ScenarioPlay {
protected:
    ScenarioCommandsTest() { window.show(); }

    void expectPlays(const QString& script) {
        const Outcome outcome = play(QStringLiteral("window frmProva\n") + script);
        EXPECT_EQ(outcome.code, 0) << outcome.failure.toStdString();
    }

    SampleWindow window;
};

} // namespace

TEST_F(ScenarioCommandsTest, TypesKeyByKeyAndLeavesTheField) {
    window.field(0)->setText(QStringLiteral("vecchio"));
    expectPlays(QStringLiteral("type tbDati(0) \"Però 12,50 € 🦷\"\n"
                               "expect tbDati(0) \"Però 12,50 € 🦷\"\n"
                               "type tbNote \"una\\ndue\"\n"
                               "expect tbNote \"una\\ndue\"\n"
                               "type tbDati(0) \"\"\n"
                               "expect tbDati(0) \"\""));
    const QStringList expected{QStringLiteral("tbDati(0)=Però 12,50 € 🦷"), QStringLiteral("tbDati(0)=")};
    EXPECT_EQ(window.heard.filter(QStringLiteral("tbDati")), expected);
}

TEST_F(ScenarioCommandsTest, TypesALongTextWhole) {
    QString page;
    for (int line = 0; line < 300; ++line)
        page += QStringLiteral("riga %1 🦷 ").arg(line) + (line % 7 == 0 ? QStringLiteral("\n") : QString());
    QString escaped = page;
    expectPlays(QStringLiteral("type tbNote \"%1\"").arg(escaped.replace(u'\n', QLatin1String("\\n"))));
    EXPECT_EQ(window.findChild<QPlainTextEdit*>(QStringLiteral("tbNote"))->toPlainText(), page);
}

// What a hand meets: work that the press postponed is done before the release, keys go where the focus is by then.
TEST_F(ScenarioCommandsTest, MeetsTheFaultsThatAHandMeets) {
    expectPlays(QStringLiteral("click cbPremuto"));
    EXPECT_EQ(window.heard, (QStringList{QStringLiteral("prima del rilascio"), QStringLiteral("rilascio")}));

    window.show();
    QTimer steals;
    QObject::connect(&steals, &QTimer::timeout, &window, [this] { window.grid()->setFocus(); });
    QObject::connect(window.field(0), &QLineEdit::textChanged, &steals, [&](const QString& text) {
        if (text == QLatin1String("ab")) steals.start(0);
    });
    const Outcome outcome = play(QStringLiteral("window frmProva\ntype tbDati(0) abcde\nexpect tbDati(0) abcde"));
    EXPECT_TRUE(outcome.failure.startsWith(QStringLiteral("2: il controllo «tbDati(0)» ha perso il fuoco")))
        << outcome.failure.toStdString();
    EXPECT_EQ(window.field(0)->text(), QStringLiteral("ab"));
}

TEST_F(ScenarioCommandsTest, TypesIntoTheFocusAndLeavesTheEditOpen) {
    window.field(0)->setText(QStringLiteral("12"));
    window.field(0)->setFocus();
    window.field(0)->end(false);
    expectPlays(QStringLiteral("keys \"34\"\nexpect tbDati(0) 1234\n"
                               "click rcRighi 1 1\nkeys COR\nkeys \"ONA\"\nexpect-cell rcRighi 1 1 VISITA\n"
                               "key Tab\nexpect-cell rcRighi 1 1 CORONA\n"
                               "click rcRighi 2 1\nkeys X\nkey Escape\nexpect-cell rcRighi 2 1 VISITA\n"
                               "popup Modifica\nclick rcRighi 2 0 right"));
    const QStringList expected{QStringLiteral("tbDati(0)=1234"), QStringLiteral("menu 03 0")};
    EXPECT_EQ(window.heard, expected);
}

TEST_F(ScenarioCommandsTest, SetsBoxesOptionsAndDates) {
    expectPlays(QStringLiteral("set ckSempre on\nset ckSempre on\nexpect-checked ckSempre on\n"
                               "set ckSempre off\nexpect-checked ckSempre off\n"
                               "set optDue on\nexpect-checked optDue on\nexpect-checked optUno off\n"
                               "date dtpData 22/11/2026\nexpect dtpData 22/11/2026"));
    EXPECT_EQ(window.heard, QStringList{QStringLiteral("data 22/11/2026")});
}

TEST_F(ScenarioCommandsTest, ChoosesEntriesOfEveryKindOfList) {
    expectPlays(QStringLiteral("choose cmbIva 22%\nexpect cmbIva 22%\n"
                               "choose lstVoci seconda\nexpect lstVoci seconda\n"
                               "choose tvRaggruppamenti Otturazioni\nexpect tvRaggruppamenti Otturazioni\n"
                               "choose tabPagine Note\ntype tbSeconda x\n"
                               "click Righi\nexpect tabPagine Righi\ntype tbPrima y"));
    EXPECT_EQ(window.heard, QStringList{QStringLiteral("iva 1")});
}

TEST_F(ScenarioCommandsTest, ClicksPicturesAndPressesKeys) {
    expectPlays(QStringLiteral("click imDente\nclick imDente right\ndoubleclick imDente\nkey F3\n"
                               "expect frmProva \"Finestra di prova\"\nkey Escape\nexpect-closed frmProva"));
    const QStringList expected{QStringLiteral("imDente sinistro"), QStringLiteral("imDente destro"),
                               QStringLiteral("imDente sinistro"), QStringLiteral("imDente doppio"),
                               QStringLiteral("imDente sinistro"), QStringLiteral("F3")};
    EXPECT_EQ(window.heard, expected);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(ScenarioCommandsTest, WorksOnTheCellsOfAGrid) {
    expectPlays(
        QStringLiteral("expect-rows rcRighi 3\n"
                       "edit rcRighi 1 1 CORONA\nexpect-cell rcRighi 1 1 CORONA\nexpect-cell rcRighi 0 1 VISITA\n"
                       "check rcRighi 1 2 on\n"
                       "doubleclick rcRighi 2 0\n"
                       "select rcRighi 1\npopup Modifica\nclick rcRighi right\n"
                       "choose rcRighi 03"));
    EXPECT_TRUE(window.grid()->record(1)->cell(2).isChecked());
    const QStringList expected{QStringLiteral("doppio 03 0"), QStringLiteral("menu 02 0")};
    EXPECT_EQ(window.heard, expected);
    EXPECT_EQ(window.grid()->focusedRecord(), window.grid()->record(2));
}

TEST_F(ScenarioCommandsTest, WaitsForWhatALinePostponed) {
    expectPlays(QStringLiteral("click cbTardi\ntype tbDati(0) \"dopo\"\nexpect tbDati(0) dopo"));
}

TEST_F(ScenarioCommandsTest, TakesPicturesAndTellsWhatThereIs) {
    window.grid()->record(0)->cell(1).value = QStringLiteral("due\nrighe");
    platform::ReportCellStyle& look = window.grid()->record(1)->cell(1).changeStyle();
    look.foreground = Qt::red;
    look.background = QColor(255, 236, 179);
    look.bold = true;
    look.icon = window.style()->standardIcon(QStyle::SP_DialogOkButton);
    look.iconIndex = 3;
    look.tooltip = QStringLiteral("Non è un dente");
    QPalette red = window.field(0)->palette();
    red.setColor(QPalette::Text, Qt::red);
    window.field(0)->setPalette(red);
    window.field(0)->setFocus();
    window.field(0)->setToolTip(QStringLiteral("Non si salva"));
    testing::internal::CaptureStdout();
    expectPlays(QStringLiteral("shot cartella/prova\ndump\nclick rcRighi 1 1\nkeys X\ndump"));
    const std::string said = testing::internal::GetCapturedStdout();
    const QImage picture(folder.filePath(QStringLiteral("out/cartella/prova.png")));
    EXPECT_EQ(picture.size(), window.size());
    for (const char* line :
         {"frmProva \"Finestra di prova\"\n", "tbDati(1) \"\" [disattivato]\n", "cbConferma \"Conferma\"\n",
          "ckSempre \"Sempre\" [off]\n", "tbDati(0) \"\" [fuoco, testo #ff0000, suggerimento \"Non si salva\"]\n",
          "tbDati(2) \"\" [sola lettura]\n", "rcRighi 0 1 \"due\\nrighe\"\n",
          "rcRighi 1 1 \"VISITA\" [testo #ff0000, sfondo #ffecb3, grassetto, icona 3, "
          "suggerimento \"Non è un dente\"]\n",
          "rcRighi 2 2 \"\" [off]\n", "rcRighi \"\" [fuoco, cella 1 1 in modifica]\n", "6 passi eseguiti\n"})
        EXPECT_NE(said.find(line), std::string::npos) << line << said;
}

TEST_F(ScenarioCommandsTest, TellsWhyAControlCannotBeUsed) {
    const struct {
        const char* line;
        const char* fault;
    } cases[] = {
        {"type tbDato(0) x", "il controllo «tbDato(0)» non c'è in frmProva; nomi vicini: tbDati(0)"},
        {"type tbDati(1) x", "«tbDati(1)» è disattivato"},
        {"type tbDati(2) x", "«tbDati(2)» è di sola lettura"},
        {"type tbDati(0) a\x01", "il carattere U+0001 non si può battere"},
        {"keys \x7f", "il carattere U+007f non si può battere"},
        {"click rcRighi 3 0", "la griglia «rcRighi» non ha la riga 3: righe 3"},
        {"type imDente x", "«imDente» non è un campo di testo"},
        {"type tbSeconda x", "«tbSeconda» non è visibile"},
        {"set cbConferma on", "«cbConferma» non si può spuntare"},
        {"choose cmbIva 10%", "«cmbIva» non ha la voce «10%»; ha: Esente, 22%"},
        {"key F99", "il tasto «F99» non esiste"},
        {"edit rcRighi 0 0 x", "la cella rcRighi 0 0 non accetta «x»"},
        {"edit rcRighi 7 1 x", "la cella rcRighi 7 1 non c'è: righe 3, colonne 3"},
        {"select rcRighi 3", "la griglia «rcRighi» non ha la riga 3: righe 3"},
        {"expect-rows tbDati(0) 1", "«tbDati(0)» non è una griglia"},
        {"expect cbConferma Salva", "«cbConferma» mostra «Conferma», atteso «Salva»"},
        {"expect-cell rcRighi 0 1 X", "la cella rcRighi 0 1 mostra «VISITA», atteso «X»"},
        {"expect-rows rcRighi 2", "ha 3 righe, attese 2"},
        {"expect-checked ckSempre on", "«ckSempre» non è on"},
        {"expect-enabled tbDati(1) on", "«tbDati(1)» è disattivato"},
        {"expect-closed frmProva", "«frmProva» è ancora sullo schermo"},
        {"expect-message Ciao", "nessun messaggio: atteso «Ciao»"},
    };
    for (const auto& [line, fault] : cases) {
        SCOPED_TRACE(line);
        window.show();
        const Outcome outcome = play(QStringLiteral("window frmProva\n") + QString::fromUtf8(line));
        EXPECT_EQ(outcome.code, 1);
        EXPECT_TRUE(outcome.failure.startsWith(QLatin1String("2: "))) << outcome.failure.toStdString();
        EXPECT_TRUE(outcome.failure.contains(QString::fromUtf8(fault))) << outcome.failure.toStdString();
    }
}

TEST_F(ScenarioCommandsTest, SpeaksToTheDesk) {
    QStringList asked;
    access.openPatient = [&](const QString& code) {
        asked += code;
        return code == QLatin1String("RSSMRA80A01H501U");
    };
    access.pressCommand = [&](const QString& command, QString* error) {
        asked += command;
        *error = QStringLiteral("è disattivato");
        return command == QLatin1String("CRVL0302");
    };
    access.lastReportVariables = [] {
        return QMap<QString, QVariant>{{QStringLiteral("PAZIENTE"), QStringLiteral("Rossi\r\nMario")},
                                       {QStringLiteral("DATA"), QDate(2026, 11, 2)}};
    };
    expectPlays(QStringLiteral("patient RSSMRA80A01H501U\npress CRVL0302\n"
                               "expect-variable PAZIENTE \"Rossi\\nMario\"\nexpect-variable DATA 02/11/2026"));
    EXPECT_EQ(asked, (QStringList{QStringLiteral("RSSMRA80A01H501U"), QStringLiteral("CRVL0302")}));
    EXPECT_EQ(play(QStringLiteral("patient NESSUNO")).failure, QStringLiteral("1: il paziente «NESSUNO» non si apre"));
    EXPECT_EQ(play(QStringLiteral("press X")).failure,
              QStringLiteral("1: il comando «X» non si può premere: è disattivato"));
    EXPECT_EQ(play(QStringLiteral("expect-variable TOTALE 1")).failure,
              QStringLiteral("1: l'ultima stampa non ha la variabile «TOTALE»; ha: DATA, PAZIENTE"));
}

TEST_F(ScenarioCommandsTest, SetsTheClockAndLetsMinutesPass) {
    QObject hidden;
    hidden.setObjectName(QStringLiteral("frmOggetti"));
    platform::FormRegistry::add(&hidden);
    QTimer timer(&hidden);
    timer.setObjectName(QStringLiteral("Timer1"));
    timer.setInterval(60000);
    int beats = 0;
    QObject::connect(&timer, &QTimer::timeout, [&] { ++beats; });
    expectPlays(QStringLiteral("tick 2"));
    EXPECT_EQ(beats, 0); // Off until the settings turn it on.
    timer.start();
    window.show();
    expectPlays(QStringLiteral("clock 2026-11-02T08:30:00\ntick 3"));
    EXPECT_EQ(beats, 3);
    EXPECT_EQ(platform::now(), QDateTime(QDate(2026, 11, 2), QTime(8, 30)));
    platform::releaseClock();
}
