#include "DeskFixture.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

class DeskPatientEditor : public DeskFixture {
protected:
    static void type(QWidget& window, const char* name, const char* text) {
        auto* field = window.findChild<QLineEdit*>(QLatin1String(name));
        ASSERT_NE(field, nullptr) << name;
        field->selectAll();
        QTest::keyClick(field, Qt::Key_Delete);
        QTest::keyClicks(field, QString::fromUtf8(text));
    }
    static void press(QWidget& window, const char* name) {
        QTest::mouseClick(window.findChild<QPushButton*>(QLatin1String(name)), Qt::LeftButton);
    }
};

TEST_F(DeskPatientEditor, ANewPatientIsStoredAndOpened) {
    whenModal("frmPaziente", [](QWidget& window) {
        type(window, "tbCognome", "D'Angelo");
        type(window, "tbNome", "Zoe");
        type(window, "tbDataNascita", "3/6/2015");
        type(window, "tbCodiceFiscale", "dngzoe15h43h501x");
        press(window, "cbConferma");
    });
    ASSERT_TRUE(desk_->pressCommand(QStringLiteral("Nuovo paziente")));
    ASSERT_NE(desk_->host().paziente(), nullptr);
    EXPECT_EQ(desk_->host().paziente()->Cognome(), QStringLiteral("D'Angelo"));
    EXPECT_EQ(desk_->host().paziente()->codicefiscale(), QStringLiteral("DNGZOE15H43H501X"));
    EXPECT_TRUE(dialogs_.messages.isEmpty());
    desk_->closePatient();
    EXPECT_TRUE(desk_->openPatientByTaxCode(QStringLiteral("DNGZOE15H43H501X")));
}

TEST_F(DeskPatientEditor, RefusesDataThatCannotBeAndKeepsTheWindow) {
    const struct {
        const char* field;
        const char* value;
        const char* complaint;
    } cases[] = {
        {"tbCognome", "  ", "cognome"},
        {"tbNome", "", "nome"},
        {"tbDataNascita", "31/02/1980", "data di nascita"},
        {"tbDataNascita", "01/01/2999", "data di nascita"},
        {"tbCodiceFiscale", "ABC", "16 caratteri"},
        {"tbCodiceFiscale", "VRDNCL75C10F205X", "già questo codice fiscale"},
    };
    ASSERT_TRUE(desk_->openPatient(rossi_));
    for (const auto& each : cases) {
        SCOPED_TRACE(std::string(each.field) + "=" + each.value);
        dialogs_.messages.clear();
        whenModal("frmPaziente", [&each](QWidget& window) {
            type(window, each.field, each.value);
            press(window, "cbConferma");
            EXPECT_TRUE(window.isVisible());
            window.close();
        });
        ASSERT_TRUE(desk_->pressCommand(QStringLiteral("Dati anagrafici")));
        ASSERT_EQ(dialogs_.messages.size(), 1);
        EXPECT_TRUE(dialogs_.messages.first().contains(QString::fromUtf8(each.complaint)));
    }
    EXPECT_EQ(desk_->host().paziente()->Cognome(), QStringLiteral("Rossi"));
}

TEST_F(DeskPatientEditor, ChangedDataReachTheDeskAndTheModule) {
    attach();
    ASSERT_TRUE(desk_->openPatient(rossi_));
    run_.events.clear();
    whenModal("frmPaziente", [](QWidget& window) {
        EXPECT_EQ(window.findChild<QLineEdit*>(QStringLiteral("tbDataNascita"))->text(), QStringLiteral("01/01/1980"));
        type(window, "tbCognome", "Rossi Bianchi");
        press(window, "cbConferma");
    });
    ASSERT_TRUE(desk_->pressCommand(QStringLiteral("Dati anagrafici")));
    EXPECT_EQ(control<QLabel>("laNome")->text(), QStringLiteral("Rossi Bianchi Mario"));
    EXPECT_EQ(desk_->host().paziente()->ID(), rossi_);
    EXPECT_TRUE(run_.events.contains(QLatin1String("form.load frmAmbulatorio")));
    desk_->closePatient();
    EXPECT_FALSE(desk_->pressCommand(QStringLiteral("Dati anagrafici")));
}
