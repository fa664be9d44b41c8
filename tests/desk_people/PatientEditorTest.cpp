#include "desk/DeskFixture.h"

#include "desk_data/PracticeFixture.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

class DeskPatientEditor : public DeskFixture {
protected:
    static QString text(QWidget& window, const char* name) {
        return window.findChild<QLineEdit*>(QLatin1String(name))->text();
    }
    void removePatient(const QString& id) {
        desk_->closePatient();
        place_.execute(QStringLiteral("delete from tblPazienti where ID = '%1'").arg(id));
    }
};

TEST_F(DeskPatientEditor, ANewPatientIsStoredAndOpenedWithWhatTheTaxCodeTells) {
    whenModal("frmPaziente", [](QWidget& window) {
        type(window, "tbCognome", QStringLiteral("D'Angelo"));
        type(window, "tbNome", QStringLiteral("Zoe"));
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        auto* taxCode = window.findChild<QLineEdit*>(QStringLiteral("tbCodiceFiscale"));
        taxCode->setFocus();
        type(window, "tbCodiceFiscale", QStringLiteral("dngzoe15h43h501y"));
        QTest::keyClick(taxCode, Qt::Key_Tab);
        EXPECT_EQ(text(window, "tbDataNascita"), QStringLiteral("03/06/2015"));
        EXPECT_EQ(window.findChild<QComboBox*>(QStringLiteral("cbSesso"))->currentText(), QStringLiteral("F"));
        press(window, "cbConferma");
    });
    ASSERT_TRUE(desk_->pressCommand(QStringLiteral("Nuovo paziente")));
    ASSERT_NE(desk_->host().paziente(), nullptr);
    EXPECT_EQ(desk_->host().paziente()->Cognome(), QStringLiteral("D'Angelo"));
    EXPECT_EQ(desk_->host().paziente()->codicefiscale(), QStringLiteral("DNGZOE15H43H501Y"));
    EXPECT_TRUE(dialogs_.messages.isEmpty());
    desk_->closePatient();
    EXPECT_TRUE(desk_->openPatientByTaxCode(QStringLiteral("DNGZOE15H43H501Y")));
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
        whenModal("frmPaziente", [&](QWidget& window) {
            type(window, each.field, QString::fromUtf8(each.value));
            press(window, "cbConferma");
            EXPECT_TRUE(window.isVisible());
            dialogs_.answer = platform::Answer::Yes;
            window.close();
        });
        ASSERT_TRUE(desk_->pressCommand(QStringLiteral("Dati anagrafici")));
        ASSERT_EQ(dialogs_.messages.size(), 2) << "what is wrong, and whether to lose what was typed";
        EXPECT_TRUE(dialogs_.messages.first().contains(QString::fromUtf8(each.complaint)));
    }
    EXPECT_EQ(desk_->host().paziente()->Cognome(), QStringLiteral("Rossi"));
}

TEST_F(DeskPatientEditor, ChangedDataReachTheDeskAndTheModule) {
    attach();
    ASSERT_TRUE(desk_->openPatient(rossi_));
    run_.events.clear();
    whenModal("frmPaziente", [](QWidget& window) {
        EXPECT_EQ(text(window, "tbDataNascita"), QStringLiteral("01/01/1980"));
        type(window, "tbCognome", QStringLiteral("Rossi Bianchi"));
        press(window, "cbConferma");
    });
    ASSERT_TRUE(desk_->pressCommand(QStringLiteral("Dati anagrafici")));
    EXPECT_EQ(control<QLabel>("laNome")->text(), QStringLiteral("Rossi Bianchi Mario"));
    EXPECT_EQ(desk_->host().paziente()->ID(), rossi_);
    EXPECT_TRUE(run_.events.contains(QLatin1String("form.load frmAmbulatorio")));
    desk_->closePatient();
    EXPECT_FALSE(desk_->pressCommand(QStringLiteral("Dati anagrafici")));
}

TEST_F(DeskPatientEditor, AsksAboutWhatIsDoubtfulAndSavesOnlyOnYes) {
    const struct {
        const char* surname;
        const char* birth;
        const char* sex;
        const char* taxCode;
        const char* doubt;
    } cases[] = {
        {"Neri", "2/1/1980", "M", "RSSMRA80A41H501Y", "data di nascita non corrisponde"},
        {"Neri", "1/1/1980", "M", "RSSMRA80A41H501Y", "sesso non corrisponde"},
        {"rossi", "1/1/1980", "", "", "stesso nome"},
        {"Rossi ", "1/1/1980", "", "", "stesso nome"},
    };
    for (const auto& each : cases) {
        for (const bool yes : {false, true}) {
            SCOPED_TRACE(std::string(each.doubt) + (yes ? " yes" : " no"));
            desk_->closePatient();
            dialogs_.messages.clear();
            dialogs_.answer = yes ? platform::Answer::Yes : platform::Answer::No;
            whenModal("frmPaziente", [&](QWidget& window) {
                type(window, "tbCognome", QString::fromUtf8(each.surname));
                type(window, "tbNome", QStringLiteral("Mario"));
                type(window, "tbDataNascita", QString::fromUtf8(each.birth));
                window.findChild<QComboBox*>(QStringLiteral("cbSesso"))->setCurrentText(QLatin1String(each.sex));
                type(window, "tbCodiceFiscale", QString::fromUtf8(each.taxCode));
                press(window, "cbConferma");
                EXPECT_EQ(window.isVisible(), !yes);
                if (yes) return;
                QTest::keyClick(&window, Qt::Key_Escape);
                EXPECT_TRUE(window.isVisible()) << "what was typed is not lost without a Yes";
                dialogs_.answer = platform::Answer::Yes;
                window.close();
            });
            ASSERT_TRUE(desk_->pressCommand(QStringLiteral("Nuovo paziente")));
            ASSERT_EQ(dialogs_.messages.size(), yes ? 1 : 3);
            EXPECT_TRUE(dialogs_.messages.first().contains(QLatin1String(each.doubt)));
            ASSERT_EQ(desk_->host().paziente() != nullptr, yes);
            if (!yes) continue;
            removePatient(desk_->host().paziente()->ID());
        }
    }
}

TEST_F(DeskPatientEditor, KeepsEveryFieldUncut) {
    constexpr const char* FIELDS[] = {"tbCognome",  "tbNome",         "tbLuogoNascita",   "tbIndirizzo",
                                      "tbCap",      "tbCitta",        "tbProvincia",      "tbDomicilio",
                                      "tbTelefono", "tbCapDomicilio", "tbCittaDomicilio", "tbProvinciaDomicilio",
                                      "tbCellulare"};
    for (const QString& text : awkwardTexts()) {
        SCOPED_TRACE(text.left(20).toStdString());
        desk_->closePatient();
        whenModal("frmPaziente", [&](QWidget& window) {
            for (const char* name : FIELDS)
                window.findChild<QLineEdit*>(QLatin1String(name))->setText(text);
            window.findChild<QPlainTextEdit*>(QStringLiteral("tbNote"))->setPlainText(text + QLatin1Char('\n') + text);
            press(window, "cbConferma");
            EXPECT_FALSE(window.isVisible());
        });
        ASSERT_TRUE(desk_->pressCommand(QStringLiteral("Nuovo paziente")));
        ASSERT_NE(desk_->host().paziente(), nullptr);
        EXPECT_EQ(desk_->host().paziente()->Cognome(), text);
        whenModal("frmPaziente", [&](QWidget& window) {
            for (const char* name : FIELDS)
                EXPECT_EQ(DeskPatientEditor::text(window, name), text) << name;
            EXPECT_EQ(window.findChild<QPlainTextEdit*>(QStringLiteral("tbNote"))->toPlainText(),
                      text + QLatin1Char('\n') + text);
            window.close();
        });
        ASSERT_TRUE(desk_->pressCommand(QStringLiteral("Dati anagrafici")));
    }
    EXPECT_TRUE(dialogs_.messages.isEmpty());
}

TEST_F(DeskPatientEditor, ACodeThatCameWrongLetsTheRestBeChanged) {
    ASSERT_TRUE(desk_->openPatient(verdi_)); // VRDNCL75C10F205X has another check character
    whenModal("frmPaziente", [](QWidget& window) {
        type(window, "tbTelefono", QStringLiteral("06 1234"));
        press(window, "cbConferma");
        EXPECT_FALSE(window.isVisible());
    });
    ASSERT_TRUE(desk_->pressCommand(QStringLiteral("Dati anagrafici")));
    EXPECT_TRUE(dialogs_.messages.isEmpty());
}

TEST_F(DeskPatientEditor, AFailingDatabaseLosesNoInput) {
    place_.execute(QStringLiteral("alter table tblPazienti rename column telefono to altrove"));
    whenModal("frmPaziente", [this](QWidget& window) {
        type(window, "tbCognome", QStringLiteral("Neri"));
        type(window, "tbNome", QStringLiteral("Ugo"));
        press(window, "cbConferma");
        EXPECT_TRUE(window.isVisible());
        EXPECT_EQ(text(window, "tbCognome"), QStringLiteral("Neri"));
        ASSERT_EQ(dialogs_.messages.size(), 1);
        EXPECT_TRUE(dialogs_.messages.first().contains(QLatin1String("non sono stati salvati")));
        place_.execute(QStringLiteral("alter table tblPazienti rename column altrove to telefono"));
        press(window, "cbConferma");
        EXPECT_FALSE(window.isVisible());
    });
    ASSERT_TRUE(desk_->pressCommand(QStringLiteral("Nuovo paziente")));
    EXPECT_EQ(desk_->host().paziente()->Cognome(), QStringLiteral("Neri"));
}

TEST_F(DeskPatientEditor, TwoWorkstationsOnOneCardLoseNothing) {
    ASSERT_TRUE(desk_->openPatient(rossi_));
    const auto changeElsewhere = [this](const char* town, const char* telephone, const char* notes) {
        const auto database = elsewhere();
        desk::PatientDirectory patients(*database, QStringLiteral("altra"));
        desk::PatientData card = *patients.load(rossi_);
        card.citta = QString::fromUtf8(town);
        card.telefono = QString::fromUtf8(telephone);
        card.note = QString::fromUtf8(notes);
        ASSERT_TRUE(patients.update(card));
    };
    whenModal("frmPaziente", [&](QWidget& window) {
        type(window, "tbTelefono", QStringLiteral("06 1"));
        type(window, "tbEmail", QStringLiteral("m@example.com"));
        window.findChild<QPlainTextEdit*>(QStringLiteral("tbNote"))->setPlainText(QStringLiteral("qui"));
        changeElsewhere("L'Aquila", "06 2", "là");
        press(window, "cbConferma");
        EXPECT_TRUE(window.isVisible()) << "first the user looks at what came together";
        const QString told = dialogs_.messages.value(0);
        EXPECT_TRUE(told.contains(QStringLiteral("Ripreso da quella:\nCittà, Note"))) << told.toStdString();
        EXPECT_TRUE(told.contains(QStringLiteral("Telefono, sull'altra “06 2”"))) << told.toStdString();
        EXPECT_EQ(text(window, "tbCitta"), QStringLiteral("L'Aquila"));
        EXPECT_EQ(text(window, "tbTelefono"), QStringLiteral("06 1"));

        changeElsewhere("Bari", "06 2", "là");
        press(window, "cbConferma");
        EXPECT_TRUE(window.isVisible()) << "and once more";
        press(window, "cbConferma");
        EXPECT_FALSE(window.isVisible());
    });
    ASSERT_TRUE(desk_->pressCommand(QStringLiteral("Dati anagrafici")));
    EXPECT_EQ(dialogs_.messages.size(), 2);
    const auto database = elsewhere();
    const auto card = desk::PatientDirectory(*database, QString()).load(rossi_);
    EXPECT_EQ(card->citta, QStringLiteral("Bari"));
    EXPECT_EQ(card->telefono, QStringLiteral("06 1"));
    EXPECT_EQ(card->email, QStringLiteral("m@example.com"));
    EXPECT_EQ(card->note, QStringLiteral("qui\n\nlà"));
}
