#include "config/clsConfig.h"
#include "platform/FormRegistry.h"
#include "platform/ReportGrid.h"
#include "support/ModuleFixture.h"
#include "support/Text.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>
#include <functional>

namespace {

/// The window of the settings on a running practice, opened by its command and worked as a person does.
class FrmConfigTest : public ModuleFixture {
protected:
    FrmConfigTest() { start(); }

    void open(const std::function<void()>& work) {
        bool isOpen = false;
        QTimer::singleShot(0, qApp, [&] {
            window_ = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!window_) return;
            isOpen = window_->objectName() == QLatin1String("frmConfig") && QTest::qWaitForWindowActive(window_);
            work();
            if (window_->isVisible()) window_->reject();
        });
        EXPECT_TRUE(desk_->pressCommand(u8("CRVL.main.setup")));
        EXPECT_TRUE(isOpen);
        EXPECT_EQ(platform::FormRegistry::find(u8("frmConfig")), nullptr) << "unloaded when it closes";
    }
    template <class Control>
    Control* find(const char* name) const {
        auto* found = window_->findChild<Control*>(u8(name));
        if (!found) throw std::runtime_error(std::string("no control ") + name);
        return found;
    }
    void openTopic(int index) const {
        auto* tree = find<QTreeWidget>("TreeView1");
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, {},
                          tree->visualItemRect(tree->topLevelItem(index)).center());
    }
    void type(const char* field, const QString& text) const {
        auto* box = find<QLineEdit>(field);
        box->setFocus();
        box->selectAll();
        QTest::keyClick(box, Qt::Key_Delete);
        QTest::keyClicks(box, text);
    }
    bool canApply() const { return find<QPushButton>("cbConferma")->isEnabled(); }
    void apply() const { QTest::mouseClick(find<QPushButton>("cbConferma"), Qt::LeftButton); }
    QString text(const char* field) const { return find<QLineEdit>(field)->text(); }

    QDialog* window_ = nullptr;
};

enum Topic { HEADING, TREATMENTS, INVOICING, TOOLS, OPTIONS };

const char* const BOXES[] = {"cbTrattamenti(0)", "cbTrattamenti(1)", "cbOpzioni(0)",
                             "cbOpzioni(1)",     "cbOpzioni(2)",     "cbOpzioni(3)"};

} // namespace

TEST_F(FrmConfigTest, EachTopicShowsItsFrameAlone) {
    open([&] {
        EXPECT_EQ(window_->windowTitle(), u8("Configurazione. Tessara 5000. CORVALA"));
        EXPECT_EQ(find<QLabel>("laTitoloForm")->text(), u8("PARAMETRI PROCEDURA"));
        EXPECT_EQ(find<QPushButton>("cbConferma")->text(), u8("APPLICA!"));
        const char* const topics[] = {"INTESTAZIONE", "TRATTAMENTI", "FATTURAZIONE", "STRUMENTI", "OPZIONI"};
        const char* const frames[] = {"pbIntestazione", "pbTrattamenti", "pbFatturazione", "pbStrumenti", "pbOpzioni"};
        EXPECT_TRUE(find<QWidget>("pbIntestazione")->isVisible());
        for (int i = OPTIONS; i >= HEADING; --i) {
            EXPECT_EQ(find<QTreeWidget>("TreeView1")->topLevelItem(i)->text(0), u8(topics[i]));
            openTopic(i);
            for (int j = 0; j < 5; ++j)
                EXPECT_EQ(find<QWidget>(frames[j])->isVisible(), i == j) << frames[j];
        }
        EXPECT_FALSE(canApply());
        QTest::keyClick(window_, Qt::Key_Escape);
        EXPECT_FALSE(window_->isVisible());
    });
}

TEST_F(FrmConfigTest, EverySettingGoesToTheFileAndComesBack) {
    oConfig->setBollo(u8("0,00"));
    open([&] {
        EXPECT_EQ(text("Text1(2)"), QString()) << "an amount of 0 shows as an empty field";
        EXPECT_EQ(text("Text1(3)"), u8("77,47"));
        EXPECT_EQ(find<QComboBox>("cbIVA")->currentText(), u8("ES Esente art. 10 n. 18 DPR 633/72"));
        type("Text1(0)", u8("Studio D'Angelo & figli <100%>"));
        EXPECT_TRUE(canApply());
        find<QPlainTextEdit>("Text1(1)")->setPlainText(u8("Via Forlì 1\nP.IVA 01234567890 \U0001F9B7"));
        openTopic(INVOICING);
        type("Text1(2)", u8("1x6,5"));
        type("Text1(3)", QString());
        EXPECT_EQ(text("Text1(2)"), u8("16,50")) << "only figures are taken, and leaving the field writes them out";
        find<QComboBox>("cbIVA")->setCurrentText(u8("22 Aliquota ordinaria 22%"));
        find<QComboBox>("cbFont")->setCurrentText(u8("DejaVu Sans"));
        EXPECT_EQ(find<QLabel>("laEsempio")->text(), u8("Esempio Carattere"));
        EXPECT_EQ(find<QLabel>("laEsempio")->font().family(), u8("DejaVu Sans"));
        for (const char* box : BOXES)
            find<QCheckBox>(box)->toggle();
        apply();
        EXPECT_TRUE(window_->isVisible());
        EXPECT_FALSE(canApply());
        EXPECT_TRUE(find<QPlainTextEdit>("Text1(1)")->toPlainText().endsWith(u8("890 ?")))
            << "what the file cannot hold is seen at once";
    });
    EXPECT_TRUE(dialogs_.messages.isEmpty());
    clsConfig before;
    ASSERT_TRUE(before.Init());
    EXPECT_EQ(before.UserTitle(), u8("Studio D'Angelo & figli <100%>"));
    EXPECT_EQ(before.UserDetails(), u8("Via Forlì 1\r\nP.IVA 01234567890 ?"));
    EXPECT_EQ(before.Bollo(), u8("16,50"));
    EXPECT_EQ(before.BolloPlafon(), QString()) << "an empty amount is stored empty";
    EXPECT_EQ(before.IVADefault(), u8("22"));
    EXPECT_EQ(before.PrintFont(), u8("DejaVu Sans"));
    EXPECT_FALSE(before.PeggiorStatusDente());
    EXPECT_TRUE(before.UnicaSchedaTrattamento());
    EXPECT_FALSE(before.DefaultRicetteBianche());
    EXPECT_FALSE(before.AppuntiPazienteModali());
    EXPECT_TRUE(before.AutomaticoRigoVuoto());
    EXPECT_TRUE(before.UtilizzoMMG());
    open([&] {
        EXPECT_EQ(text("Text1(2)"), u8("16,50"));
        for (const char* box : BOXES) {
            EXPECT_FALSE(canApply());
            find<QCheckBox>(box)->toggle();
            EXPECT_TRUE(canApply()) << box;
            apply();
        }
    });
    EXPECT_FALSE(oConfig->UtilizzoMMG());
    EXPECT_TRUE(oConfig->PeggiorStatusDente());
}

TEST_F(FrmConfigTest, WhatThisWorkstationDoesNotKnowIsKept) {
    oConfig->setIVADefault(u8("ZZ"));
    oConfig->setPrintFont(u8("Carattere d'altrove"));
    open([&] {
        EXPECT_EQ(find<QComboBox>("cbIVA")->currentIndex(), -1);
        EXPECT_EQ(find<QComboBox>("cbFont")->currentText(), u8("Carattere d'altrove"));
        type("Text1(0)", u8("x"));
        apply();
    });
    EXPECT_EQ(oConfig->IVADefault(), u8("ZZ"));
    EXPECT_EQ(oConfig->PrintFont(), u8("Carattere d'altrove"));
}

TEST_F(FrmConfigTest, ARefusedSaveIsToldAndLosesNothing) {
    open([&] {
        type("Text1(0)", u8("Studio nuovo"));
        ASSERT_TRUE(QDir().rename(options_.configDir, options_.configDir + u8("-via")));
        apply();
        ASSERT_EQ(dialogs_.messages.size(), 1);
        EXPECT_EQ(dialogs_.values.last(), platform::MB_CRITICAL);
        EXPECT_TRUE(canApply());
        EXPECT_EQ(text("Text1(0)"), u8("Studio nuovo"));
        ASSERT_TRUE(QDir().rename(options_.configDir + u8("-via"), options_.configDir));
        apply();
        EXPECT_FALSE(canApply());
        type("Text1(0)", u8("Troppo tardi"));
        raiseEvent("fine");
        apply(); // there is nothing left to write to
    });
    EXPECT_EQ(dialogs_.messages.size(), 1);
}

TEST_F(FrmConfigTest, AnAmountThatIsNoneIsRefusedWithWordsAndNothingIsSaved) {
    oConfig->setBolloPlafon(u8("77,,47")); // as an older version stored it
    open([&] {
        EXPECT_EQ(text("Text1(3)"), u8("77,,47")) << "shown, or it would be lost unseen";
        for (const char* field : {"Text1(2)", "Text1(3)"}) {
            SCOPED_TRACE(field);
            const QString before = oConfig->Bollo() + u';' + oConfig->BolloPlafon();
            openTopic(INVOICING);
            type(field, u8("2,00,"));
            openTopic(HEADING);
            type("Text1(0)", u8("Studio nuovo"));
            dialogs_.messages.clear();
            apply();
            ASSERT_EQ(dialogs_.messages.size(), 1);
            EXPECT_TRUE(dialogs_.messages[0].contains(u8("\"2,00,\""))) << dialogs_.messages[0].toStdString();
            EXPECT_EQ(dialogs_.values.last(), platform::MB_WARNING);
            EXPECT_TRUE(find<QLineEdit>(field)->isVisible() && find<QLineEdit>(field)->hasFocus());
            EXPECT_TRUE(canApply());
            EXPECT_EQ(oConfig->UserTitle(), QString());
            EXPECT_EQ(oConfig->Bollo() + u';' + oConfig->BolloPlafon(), before);
            type(field, u8("2,5"));
        }
        apply();
        EXPECT_FALSE(canApply());
    });
    EXPECT_EQ(oConfig->BolloPlafon(), u8("2,50"));
}

TEST_F(FrmConfigTest, LocksAreRemovedOnlyAfterAYes) {
    const QString others = oConfig->DBPAth() + u8("7F3A-Preventivo.lck");
    const QString hidden = oConfig->DBPAth() + u8(".7F3A-Fattura.lck");
    for (const QString& file : {others, hidden})
        ASSERT_TRUE(platform::files::writeAtomically(file, "01/01/2025 09:00:00"));
    const auto clear = [&](platform::Answer answer) {
        dialogs_.answer = answer;
        QTest::mouseClick(find<QPushButton>("cbStrumenti(1)"), Qt::LeftButton);
    };
    open([&] {
        openTopic(TOOLS);
        clear(platform::Answer::No);
        EXPECT_TRUE(platform::files::exists(others));
        clear(platform::Answer::Yes);
        EXPECT_FALSE(platform::files::exists(others));
        EXPECT_TRUE(platform::files::exists(hidden));
        clear(platform::Answer::Yes);
        EXPECT_FALSE(canApply());
        ASSERT_TRUE(QDir(oConfig->DBPAth()).removeRecursively());
        clear(platform::Answer::Yes);
        EXPECT_TRUE(dialogs_.messages.takeLast().contains(u8("Errore critico in eliminazione LOCK!")));
        EXPECT_EQ(dialogs_.values.takeLast(), 16);
    });
    const QString question = u8("Attenzione! Vuoi davvero rimuovere eventuali file di bloccaggio presenti?");
    const QString finished = u8("Operazione terminata correttamente!");
    EXPECT_EQ(dialogs_.messages, (QStringList{question, question, finished, question, finished, question}));
    EXPECT_EQ(dialogs_.values, (QList<int>{292, 292, 64, 292, 64, 292}));
}

TEST_F(FrmConfigTest, OneListOfReportsServesTheWholeWindow) {
    int opened = 0;
    const auto assign = [&] {
        QTimer::singleShot(0, qApp, [&] {
            auto* list = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(list, window_);
            EXPECT_GT(list->findChild<platform::ReportGrid*>(u8("rcLista"))->rowCount(), 0);
            ++opened;
            list->reject();
        });
        QTest::mouseClick(find<QPushButton>("cbStrumenti(0)"), Qt::LeftButton);
    };
    open([&] {
        openTopic(TOOLS);
        assign();
        EXPECT_TRUE(dialogs_.messages.isEmpty());
        assign();
        EXPECT_TRUE(find<QWidget>("pbStrumenti")->isVisible()) << "the topic is still the one that was chosen";
    });
    EXPECT_EQ(opened, 2);
    EXPECT_EQ(dialogs_.messages, QStringList{u8("Lista in memoria")});
}
