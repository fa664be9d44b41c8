#include "desk/DeskFixture.h"

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeView>

class DeskPatientSearch : public DeskFixture {
protected:
    using Act = std::function<void(QLineEdit&, platform::ReportGrid&, QWidget&)>;

    /// Opens the search and works it; the tax code of the patient that comes back.
    QString search(const Act& act, const QString& value = {},
                   const QString& column = QStringLiteral("Cognome e Nome")) {
        whenModal("frmCercaPaziente", [&act](QWidget& window) {
            act(*window.findChild<QLineEdit*>(QStringLiteral("tbCerca")),
                *window.findChild<platform::ReportGrid*>(QStringLiteral("rcPazienti")), window);
        });
        const auto found = desk_->host().Archivio().Pazienti().Show(value, column);
        return found ? found->codicefiscale() : QString();
    }
};

TEST_F(DeskPatientSearch, FollowsTheTypingAndChoosesByEnterArrowsOrDoubleClick) {
    EXPECT_EQ(search([](QLineEdit& text, platform::ReportGrid& grid, QWidget&) {
                  EXPECT_EQ(grid.rowCount(), 3);
                  QTest::keyClicks(&text, QStringLiteral("ross"));
                  EXPECT_EQ(grid.rowCount(), 2);
                  QTest::keyClicks(&text, QStringLiteral("i m"));
                  EXPECT_EQ(grid.rowCount(), 1);
                  QTest::keyClick(&text, Qt::Key_Return);
              }),
              QStringLiteral("RSSMRA80A01H501U"));
    EXPECT_EQ(search([](QLineEdit& text, platform::ReportGrid&, QWidget&) {
                  QTest::keyClicks(&text, QStringLiteral("ross"));
                  QTest::keyClick(&text, Qt::Key_Down);
                  QTest::keyClick(&text, Qt::Key_Return);
              }),
              QStringLiteral("RSSDAA62D41L219K"));
    EXPECT_EQ(search([](QLineEdit&, platform::ReportGrid& grid, QWidget&) {
                  const QPoint place = grid.view()->visualRect(grid.view()->model()->index(2, 0)).center();
                  QTest::mouseClick(grid.view()->viewport(), Qt::LeftButton, {}, place);
                  QTest::mouseDClick(grid.view()->viewport(), Qt::LeftButton, {}, place);
              }),
              QStringLiteral("VRDNCL75C10F205X"));
}

TEST_F(DeskPatientSearch, StartsInTheColumnAskedForAndEscapeCancels) {
    const QString chosen = search(
        [](QLineEdit& text, platform::ReportGrid& grid, QWidget& window) {
            EXPECT_EQ(text.text(), QStringLiteral("VRD"));
            EXPECT_EQ(window.findChild<QComboBox*>(QStringLiteral("cbColonna"))->currentText(),
                      QStringLiteral("Codice Fiscale"));
            EXPECT_EQ(grid.rowCount(), 1);
            QTest::keyClick(&text, Qt::Key_Escape);
        },
        QStringLiteral("VRD"), QStringLiteral("Codice Fiscale"));
    EXPECT_TRUE(chosen.isEmpty());
}

TEST_F(DeskPatientSearch, NothingFoundCannotBeOpened) {
    search([](QLineEdit& text, platform::ReportGrid& grid, QWidget& window) {
        QTest::keyClicks(&text, QStringLiteral("zz'%"));
        EXPECT_EQ(grid.rowCount(), 0);
        EXPECT_FALSE(window.findChild<QPushButton*>(QStringLiteral("cbConferma"))->isEnabled());
        QTest::keyClick(&text, Qt::Key_Return);
        EXPECT_TRUE(window.isVisible());
        window.close();
    });
}

TEST_F(DeskPatientSearch, TheRibbonCommandOpensTheChosenPatient) {
    whenModal("frmCercaPaziente", [](QWidget& window) {
        auto* text = window.findChild<QLineEdit*>(QStringLiteral("tbCerca"));
        QTest::keyClicks(text, QStringLiteral("verdi"));
        QTest::keyClick(text, Qt::Key_Return);
    });
    EXPECT_TRUE(desk_->pressCommand(QStringLiteral("Cerca paziente")));
    ASSERT_NE(desk_->host().paziente(), nullptr);
    EXPECT_EQ(desk_->host().paziente()->Cognome(), QStringLiteral("Verdi"));
    EXPECT_TRUE(desk_->pressCommand(QStringLiteral("Chiudi paziente")));
    EXPECT_EQ(desk_->host().paziente(), nullptr);
    EXPECT_FALSE(desk_->pressCommand(QStringLiteral("Chiudi paziente")));
}

TEST_F(DeskPatientSearch, TellsHowManyMoreThereAre) {
    {
        const auto database = elsewhere();
        desk::PatientDirectory patients(*database, QStringLiteral("prova"));
        for (int i = 0; i < desk::PatientDirectory::searchLimit + 7; ++i) {
            desk::PatientData patient;
            patient.Cognome = QStringLiteral("D'Esposito %1").arg(i, 4, 10, QLatin1Char('0'));
            patient.Nome = QStringLiteral("Ciro");
            ASSERT_TRUE(patients.insert(patient));
        }
    }
    search([](QLineEdit& text, platform::ReportGrid& grid, QWidget& window) {
        const auto* told = window.findChild<QLabel*>(QStringLiteral("laTrovati"));
        QTest::keyClicks(&text, QStringLiteral("d'esp"));
        EXPECT_EQ(grid.rowCount(), desk::PatientDirectory::searchLimit);
        EXPECT_EQ(told->text(), QStringLiteral("Primi 200 pazienti, altri 7: precisare la ricerca"));
        QTest::keyClicks(&text, QStringLiteral(" 0003"));
        EXPECT_EQ(told->text(), QStringLiteral("1 paziente trovato"));
        window.close();
    });
}
