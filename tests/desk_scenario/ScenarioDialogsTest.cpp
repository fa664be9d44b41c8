#include "desk/scenario/ScenarioDialogs.h"

#include <QPainter>
#include <QPrinter>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using platform::Answer;

namespace {

class ScenarioDialogsTest : public testing::Test {
protected:
    QStringList faults;
    desk::ScenarioDialogs dialogs{[this](const QString& what) { faults += what; }};
};

platform::TaskRequest reminder() {
    platform::TaskRequest request;
    request.text = QStringLiteral("<TextBlock TextWrapping='Wrap'>Vecchia<LineBreak/>nota</TextBlock>");
    request.checkCaption = QStringLiteral("Non mostrare più");
    request.buttons = {QStringLiteral("Si"), QStringLiteral("&Più tardi")};
    return request;
}

} // namespace

TEST_F(ScenarioDialogsTest, TakesAnswersInEnglishAndAsOnTheButtons) {
    const struct {
        const char* given;
        int value;
        Answer expected;
    } cases[] = {
        {"ok", platform::MB_WARNING, Answer::Ok},
        {"OK", platform::MB_CRITICAL, Answer::Ok},
        {"yes", platform::MB_QUESTION, Answer::Yes},
        {"Sì", platform::MB_QUESTION, Answer::Yes},
        {"si", platform::MB_QUESTION, Answer::Yes},
        {"no", platform::MB_QUESTION_DEFAULT_NO, Answer::No},
        {"Annulla", 1, Answer::Cancel},
        {"cancel", 3, Answer::Cancel},
    };
    for (const auto& [given, value, expected] : cases) {
        SCOPED_TRACE(given);
        dialogs.queueAnswer(QString::fromUtf8(given), std::nullopt);
        EXPECT_EQ(dialogs.message(QStringLiteral("Continuare?"), value, QString()), expected);
    }
    EXPECT_TRUE(faults.isEmpty()) << faults.join(u'|').toStdString();
}

TEST_F(ScenarioDialogsTest, ReportsAQuestionThatNobodyAnswersAndChangesNothing) {
    EXPECT_EQ(dialogs.message(QStringLiteral("Eliminare?"), platform::MB_QUESTION, QString()), Answer::No);
    dialogs.queueAnswer(QStringLiteral("ok"), std::nullopt);
    EXPECT_EQ(dialogs.message(QStringLiteral("Salvare?"), platform::MB_QUESTION, QString()), Answer::No);
    EXPECT_EQ(dialogs.popup({{QStringLiteral("Nuovo")}}), -1);
    EXPECT_EQ(dialogs.openFile(QStringLiteral("Apri"), {}, QString()), QString());
    const QStringList expected{QStringLiteral("messaggio senza risposta: Eliminare?"),
                               QStringLiteral("il messaggio offre Sì, No, non «ok»: Salvare?"),
                               QStringLiteral("menu senza scelta: Nuovo"),
                               QStringLiteral("richiesta di file senza risposta: Apri")};
    EXPECT_EQ(faults, expected);
}

TEST_F(ScenarioDialogsTest, AnswersTaskDialogsByCaptionWithTheirCheckBox) {
    dialogs.queueAnswer(QStringLiteral("più tardi"), true);
    dialogs.queueAnswer(QStringLiteral("yes"), std::nullopt);
    dialogs.queueAnswer(QStringLiteral("cancel"), std::nullopt);
    platform::TaskAnswer later = dialogs.task(reminder());
    EXPECT_EQ(later.button, QStringLiteral("&Più tardi")); // The caption as the caller wrote it.
    EXPECT_TRUE(later.checked);
    EXPECT_EQ(dialogs.task(reminder()).button, QStringLiteral("Si"));
    EXPECT_EQ(dialogs.task(reminder()).button, QString());
    EXPECT_TRUE(faults.isEmpty()) << faults.join(u'|').toStdString();

    dialogs.queueAnswer(QStringLiteral("Mai"), std::nullopt);
    EXPECT_EQ(dialogs.task(reminder()).button, QString());
    ASSERT_EQ(faults.size(), 1);
    EXPECT_TRUE(faults[0].contains(QStringLiteral("non «Mai»")));
}

TEST_F(ScenarioDialogsTest, KeepsMessagesInOrderUntilTheyAreExpected) {
    dialogs.queueAnswer(QStringLiteral("ok"), std::nullopt);
    dialogs.queueAnswer(QStringLiteral("yes"), std::nullopt);
    dialogs.message(QStringLiteral("Prima riga\r\nSeconda"), platform::MB_WARNING, QString());
    dialogs.task(reminder());
    EXPECT_FALSE(dialogs.takeMessage(QStringLiteral("Vecchia\nnota"))); // Not its turn yet.
    EXPECT_TRUE(dialogs.takeMessage(QStringLiteral("Prima riga\nSeconda")));
    EXPECT_TRUE(dialogs.takeMessage(QStringLiteral("Vecchia\nnota")));
    EXPECT_FALSE(dialogs.hasMessage());
}

TEST_F(ScenarioDialogsTest, PicksMenuEntriesByCaptionAndRefusesDisabledOnes) {
    const QList<platform::MenuEntry> menu{{QStringLiteral("&Nuovo")}, {QString()}, {QStringLiteral("Elimina"), false}};
    dialogs.queuePopup(QStringLiteral("Nuovo"));
    dialogs.queuePopup(QString());
    EXPECT_EQ(dialogs.popup(menu), 0);
    EXPECT_EQ(dialogs.popup(menu), -1);
    EXPECT_TRUE(faults.isEmpty());
    dialogs.queuePopup(QStringLiteral("Elimina"));
    dialogs.queuePopup(QStringLiteral("Stampa"));
    EXPECT_EQ(dialogs.popup(menu), -1);
    EXPECT_EQ(dialogs.popup(menu), -1);
    const QStringList expected{QStringLiteral("la voce «Elimina» del menu è disattivata"),
                               QStringLiteral("il menu non ha la voce «Stampa»: Nuovo, Elimina")};
    EXPECT_EQ(faults, expected);
}

TEST_F(ScenarioDialogsTest, PrintsIntoNumberedFilesOfItsFolder) {
    QTemporaryDir folder;
    desk::ScenarioDialogs printing([](const QString&) {}, folder.filePath(QStringLiteral("esito")));
    QPrinter printer;
    for (const char* name : {"stampa-1.pdf", "stampa-2.pdf"}) {
        ASSERT_EQ(printing.choosePrinter(printer, {}), platform::PrintAnswer::Print);
        EXPECT_EQ(printer.outputFileName(), folder.filePath(QStringLiteral("esito/") + QLatin1String(name)));
        EXPECT_TRUE(QPainter(&printer).isActive()) << "the folder is not there";
    }
    printing.fallSilent();
    EXPECT_EQ(printing.choosePrinter(printer, {}), platform::PrintAnswer::Cancel);
}

TEST_F(ScenarioDialogsTest, AsksNothingOnceTheScriptIsOver) {
    dialogs.fallSilent();
    EXPECT_EQ(dialogs.message(QStringLiteral("Chiudere?"), platform::MB_QUESTION_DEFAULT_NO, QString()), Answer::Yes);
    EXPECT_EQ(dialogs.popup({{QStringLiteral("Nuovo")}}), -1);
    EXPECT_TRUE(faults.isEmpty());
    EXPECT_FALSE(dialogs.hasMessage());
}
