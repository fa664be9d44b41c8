#include "config/clsConfig.h"
#include "platform/FormRegistry.h"
#include "platform/ReportGrid.h"
#include "support/StudioConModulo.h"
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
class FrmConfigTest : public StudioConModulo {
protected:
    FrmConfigTest() { avvia(); }

    void apri(const std::function<void()>& lavora) {
        bool aperta = false;
        QTimer::singleShot(0, qApp, [&] {
            finestra_ = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!finestra_) return;
            aperta = finestra_->objectName() == QLatin1String("frmConfig") && QTest::qWaitForWindowActive(finestra_);
            lavora();
            if (finestra_->isVisible()) finestra_->reject();
        });
        EXPECT_TRUE(desk_->pressCommand(u8("CRVL.main.setup")));
        EXPECT_TRUE(aperta);
        EXPECT_EQ(platform::FormRegistry::find(u8("frmConfig")), nullptr) << "unloaded when it closes";
    }
    template <class Controllo>
    Controllo* trova(const char* nome) const {
        auto* trovato = finestra_->findChild<Controllo*>(u8(nome));
        if (!trovato) throw std::runtime_error(std::string("no control ") + nome);
        return trovato;
    }
    void argomento(int indice) const {
        auto* albero = trova<QTreeWidget>("TreeView1");
        QTest::mouseClick(albero->viewport(), Qt::LeftButton, {},
                          albero->visualItemRect(albero->topLevelItem(indice)).center());
    }
    void scrivi(const char* campo, const QString& testo) const {
        auto* casella = trova<QLineEdit>(campo);
        casella->setFocus();
        casella->selectAll();
        QTest::keyClick(casella, Qt::Key_Delete);
        QTest::keyClicks(casella, testo);
    }
    bool daApplicare() const { return trova<QPushButton>("cbConferma")->isEnabled(); }
    void applica() const { QTest::mouseClick(trova<QPushButton>("cbConferma"), Qt::LeftButton); }
    QString testo(const char* campo) const { return trova<QLineEdit>(campo)->text(); }

    QDialog* finestra_ = nullptr;
};

enum Argomento { INTESTAZIONE, TRATTAMENTI, FATTURAZIONE, STRUMENTI, OPZIONI };

const char* const CASELLE[] = {"cbTrattamenti(0)", "cbTrattamenti(1)", "cbOpzioni(0)",
                               "cbOpzioni(1)",     "cbOpzioni(2)",     "cbOpzioni(3)"};

} // namespace

TEST_F(FrmConfigTest, EachTopicShowsItsFrameAlone) {
    apri([&] {
        EXPECT_EQ(finestra_->windowTitle(), u8("Configurazione. Tessara 5000. CORVALA"));
        EXPECT_EQ(trova<QLabel>("laTitoloForm")->text(), u8("PARAMETRI PROCEDURA"));
        EXPECT_EQ(trova<QPushButton>("cbConferma")->text(), u8("APPLICA!"));
        const char* const voci[] = {"INTESTAZIONE", "TRATTAMENTI", "FATTURAZIONE", "STRUMENTI", "OPZIONI"};
        const char* const cornici[] = {"pbIntestazione", "pbTrattamenti", "pbFatturazione", "pbStrumenti", "pbOpzioni"};
        EXPECT_TRUE(trova<QWidget>("pbIntestazione")->isVisible());
        for (int i = OPZIONI; i >= INTESTAZIONE; --i) {
            EXPECT_EQ(trova<QTreeWidget>("TreeView1")->topLevelItem(i)->text(0), u8(voci[i]));
            argomento(i);
            for (int j = 0; j < 5; ++j)
                EXPECT_EQ(trova<QWidget>(cornici[j])->isVisible(), i == j) << cornici[j];
        }
        EXPECT_FALSE(daApplicare());
        QTest::keyClick(finestra_, Qt::Key_Escape);
        EXPECT_FALSE(finestra_->isVisible());
    });
}

TEST_F(FrmConfigTest, EverySettingGoesToTheFileAndComesBack) {
    oConfig->setBollo(u8("0,00"));
    apri([&] {
        EXPECT_EQ(testo("Text1(2)"), QString()) << "an amount of 0 shows as an empty field";
        EXPECT_EQ(testo("Text1(3)"), u8("77,47"));
        EXPECT_EQ(trova<QComboBox>("cbIVA")->currentText(), u8("ES Esente art. 10 n. 18 DPR 633/72"));
        scrivi("Text1(0)", u8("Studio D'Angelo & figli <100%>"));
        EXPECT_TRUE(daApplicare());
        trova<QPlainTextEdit>("Text1(1)")->setPlainText(u8("Via Forlì 1\nP.IVA 01234567890 \U0001F9B7"));
        argomento(FATTURAZIONE);
        scrivi("Text1(2)", u8("1x6,5"));
        scrivi("Text1(3)", QString());
        EXPECT_EQ(testo("Text1(2)"), u8("16,50")) << "only figures are taken, and leaving the field writes them out";
        trova<QComboBox>("cbIVA")->setCurrentText(u8("22 Aliquota ordinaria 22%"));
        trova<QComboBox>("cbFont")->setCurrentText(u8("DejaVu Sans"));
        EXPECT_EQ(trova<QLabel>("laEsempio")->text(), u8("Esempio Carattere"));
        EXPECT_EQ(trova<QLabel>("laEsempio")->font().family(), u8("DejaVu Sans"));
        for (const char* casella : CASELLE)
            trova<QCheckBox>(casella)->toggle();
        applica();
        EXPECT_TRUE(finestra_->isVisible());
        EXPECT_FALSE(daApplicare());
        EXPECT_TRUE(trova<QPlainTextEdit>("Text1(1)")->toPlainText().endsWith(u8("890 ?")))
            << "what the file cannot hold is seen at once";
    });
    EXPECT_TRUE(dialoghi_.messages.isEmpty());
    clsConfig prima;
    ASSERT_TRUE(prima.Init());
    EXPECT_EQ(prima.UserTitle(), u8("Studio D'Angelo & figli <100%>"));
    EXPECT_EQ(prima.UserDetails(), u8("Via Forlì 1\r\nP.IVA 01234567890 ?"));
    EXPECT_EQ(prima.Bollo(), u8("16,50"));
    EXPECT_EQ(prima.BolloPlafon(), QString()) << "an empty amount is stored empty";
    EXPECT_EQ(prima.IVADefault(), u8("22"));
    EXPECT_EQ(prima.PrintFont(), u8("DejaVu Sans"));
    EXPECT_FALSE(prima.PeggiorStatusDente());
    EXPECT_TRUE(prima.UnicaSchedaTrattamento());
    EXPECT_FALSE(prima.DefaultRicetteBianche());
    EXPECT_FALSE(prima.AppuntiPazienteModali());
    EXPECT_TRUE(prima.AutomaticoRigoVuoto());
    EXPECT_TRUE(prima.UtilizzoMMG());
    apri([&] {
        EXPECT_EQ(testo("Text1(2)"), u8("16,50"));
        for (const char* casella : CASELLE) {
            EXPECT_FALSE(daApplicare());
            trova<QCheckBox>(casella)->toggle();
            EXPECT_TRUE(daApplicare()) << casella;
            applica();
        }
    });
    EXPECT_FALSE(oConfig->UtilizzoMMG());
    EXPECT_TRUE(oConfig->PeggiorStatusDente());
}

TEST_F(FrmConfigTest, WhatThisWorkstationDoesNotKnowIsKept) {
    oConfig->setIVADefault(u8("ZZ"));
    oConfig->setPrintFont(u8("Carattere d'altrove"));
    apri([&] {
        EXPECT_EQ(trova<QComboBox>("cbIVA")->currentIndex(), -1);
        EXPECT_EQ(trova<QComboBox>("cbFont")->currentText(), u8("Carattere d'altrove"));
        scrivi("Text1(0)", u8("x"));
        applica();
    });
    EXPECT_EQ(oConfig->IVADefault(), u8("ZZ"));
    EXPECT_EQ(oConfig->PrintFont(), u8("Carattere d'altrove"));
}

TEST_F(FrmConfigTest, ARefusedSaveIsToldAndLosesNothing) {
    apri([&] {
        scrivi("Text1(0)", u8("Studio nuovo"));
        ASSERT_TRUE(QDir().rename(opzioni_.configDir, opzioni_.configDir + u8("-via")));
        applica();
        ASSERT_EQ(dialoghi_.messages.size(), 1);
        EXPECT_EQ(dialoghi_.values.last(), platform::MB_CRITICAL);
        EXPECT_TRUE(daApplicare());
        EXPECT_EQ(testo("Text1(0)"), u8("Studio nuovo"));
        ASSERT_TRUE(QDir().rename(opzioni_.configDir + u8("-via"), opzioni_.configDir));
        applica();
        EXPECT_FALSE(daApplicare());
        scrivi("Text1(0)", u8("Troppo tardi"));
        evento("fine");
        applica(); // there is nothing left to write to
    });
    EXPECT_EQ(dialoghi_.messages.size(), 1);
}

TEST_F(FrmConfigTest, AnAmountThatIsNoneIsRefusedWithWordsAndNothingIsSaved) {
    oConfig->setBolloPlafon(u8("77,,47")); // as an older version stored it
    apri([&] {
        EXPECT_EQ(testo("Text1(3)"), u8("77,,47")) << "shown, or it would be lost unseen";
        for (const char* campo : {"Text1(2)", "Text1(3)"}) {
            SCOPED_TRACE(campo);
            const QString prima = oConfig->Bollo() + u';' + oConfig->BolloPlafon();
            argomento(FATTURAZIONE);
            scrivi(campo, u8("2,00,"));
            argomento(INTESTAZIONE);
            scrivi("Text1(0)", u8("Studio nuovo"));
            dialoghi_.messages.clear();
            applica();
            ASSERT_EQ(dialoghi_.messages.size(), 1);
            EXPECT_TRUE(dialoghi_.messages[0].contains(u8("\"2,00,\""))) << dialoghi_.messages[0].toStdString();
            EXPECT_EQ(dialoghi_.values.last(), platform::MB_WARNING);
            EXPECT_TRUE(trova<QLineEdit>(campo)->isVisible() && trova<QLineEdit>(campo)->hasFocus());
            EXPECT_TRUE(daApplicare());
            EXPECT_EQ(oConfig->UserTitle(), QString());
            EXPECT_EQ(oConfig->Bollo() + u';' + oConfig->BolloPlafon(), prima);
            scrivi(campo, u8("2,5"));
        }
        applica();
        EXPECT_FALSE(daApplicare());
    });
    EXPECT_EQ(oConfig->BolloPlafon(), u8("2,50"));
}

TEST_F(FrmConfigTest, LocksAreRemovedOnlyAfterAYes) {
    const QString altrui = oConfig->DBPAth() + u8("7F3A-Preventivo.lck");
    const QString nascosto = oConfig->DBPAth() + u8(".7F3A-Fattura.lck");
    for (const QString& file : {altrui, nascosto})
        ASSERT_TRUE(platform::files::writeAtomically(file, "01/01/2025 09:00:00"));
    const auto azzera = [&](platform::Answer risposta) {
        dialoghi_.answer = risposta;
        QTest::mouseClick(trova<QPushButton>("cbStrumenti(1)"), Qt::LeftButton);
    };
    apri([&] {
        argomento(STRUMENTI);
        azzera(platform::Answer::No);
        EXPECT_TRUE(platform::files::exists(altrui));
        azzera(platform::Answer::Yes);
        EXPECT_FALSE(platform::files::exists(altrui));
        EXPECT_TRUE(platform::files::exists(nascosto));
        azzera(platform::Answer::Yes);
        EXPECT_FALSE(daApplicare());
        ASSERT_TRUE(QDir(oConfig->DBPAth()).removeRecursively());
        azzera(platform::Answer::Yes);
        EXPECT_TRUE(dialoghi_.messages.takeLast().contains(u8("Errore critico in eliminazione LOCK!")));
        EXPECT_EQ(dialoghi_.values.takeLast(), 16);
    });
    const QString domanda = u8("Attenzione! Vuoi davvero rimuovere eventuali file di bloccaggio presenti?");
    const QString finita = u8("Operazione terminata correttamente!");
    EXPECT_EQ(dialoghi_.messages, (QStringList{domanda, domanda, finita, domanda, finita, domanda}));
    EXPECT_EQ(dialoghi_.values, (QList<int>{292, 292, 64, 292, 64, 292}));
}

TEST_F(FrmConfigTest, OneListOfReportsServesTheWholeWindow) {
    int aperte = 0;
    const auto imposta = [&] {
        QTimer::singleShot(0, qApp, [&] {
            auto* elenco = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(elenco, finestra_);
            EXPECT_GT(elenco->findChild<platform::ReportGrid*>(u8("rcLista"))->rowCount(), 0);
            ++aperte;
            elenco->reject();
        });
        QTest::mouseClick(trova<QPushButton>("cbStrumenti(0)"), Qt::LeftButton);
    };
    apri([&] {
        argomento(STRUMENTI);
        imposta();
        EXPECT_TRUE(dialoghi_.messages.isEmpty());
        imposta();
        EXPECT_TRUE(trova<QWidget>("pbStrumenti")->isVisible()) << "the topic is still the one that was chosen";
    });
    EXPECT_EQ(aperte, 2);
    EXPECT_EQ(dialoghi_.messages, QStringList{u8("Lista in memoria")});
}
