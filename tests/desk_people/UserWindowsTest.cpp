#include "desk/DeskFixture.h"
#include "desk/data/UserDirectory.h"
#include "desk/people/SignIn.h"
#include "desk_data/PracticeFixture.h"
#include "platform/Clock.h"
#include "platform/ReportGrid.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>

/// Opens the list of users from the ribbon and works it; the first user is the one who runs the desk.
class DeskUsers : public DeskFixture {
protected:
    using Act = std::function<void(QWidget& list, platform::ReportGrid& grid)>;

    ~DeskUsers() override { platform::releaseClock(); }

    void workList(const Act& act) {
        whenModal("frmUtenti", [&act](QWidget& window) {
            act(window, *window.findChild<platform::ReportGrid*>(QStringLiteral("rcUtenti")));
            window.close();
        });
        ASSERT_TRUE(desk_->pressCommand(QStringLiteral("Utenti")));
    }
    static void focusOn(platform::ReportGrid& grid, const QString& code) {
        for (int row = 0; row < grid.rowCount(); ++row) {
            if (grid.rowRecord(row)->cell(0).value == code) grid.setFocusedRecord(grid.rowRecord(row));
        }
    }
    /// Runs in the editor that a button of the list opens.
    void inEditor(QWidget& list, const char* button, const std::function<void(QWidget&)>& act) {
        whenModal("frmUtente", [this, &act](QWidget& window) {
            act(window);
            const qsizetype told = dialogs_.messages.size();
            dialogs_.answer = platform::Answer::Yes;
            if (window.isVisible()) window.close();
            dialogs_.messages.resize(told); // but for the question whether to lose what was typed
        });
        press(list, button);
    }
    void inNewUser(const std::function<void(QWidget&)>& act) {
        workList([&](QWidget& list, platform::ReportGrid&) { inEditor(list, "cbNuovo", act); });
    }
    void inUser(const char* code, const std::function<void(QWidget&)>& act) {
        workList([&](QWidget& list, platform::ReportGrid& grid) {
            focusOn(grid, QLatin1String(code));
            inEditor(list, "cbModifica", act);
        });
    }
    /// An empty wanted one takes the password away.
    void changePassword(const char* code, const QString& present, const QString& wanted, bool accepted) {
        dialogs_.messages.clear();
        inUser(code, [&](QWidget& window) {
            if (!present.isEmpty()) type(window, "tbPasswordAttuale", present);
            type(window, "tbPasswordNuova", wanted);
            type(window, "tbPasswordRipetuta", wanted);
            if (wanted.isEmpty())
                QTest::mouseClick(window.findChild<QCheckBox*>(QStringLiteral("ckTogliPassword")), Qt::LeftButton, {},
                                  QPoint(8, 8));
            press(window, "cbConferma");
            EXPECT_EQ(window.isVisible(), !accepted);
        });
        EXPECT_EQ(dialogs_.messages.isEmpty(), accepted);
    }
    static desk::UserData person(const char* code, const char* surname, int kind) {
        return {{},   QString::fromUtf8(code), QString::fromUtf8(surname), QStringLiteral("Ada"), {},
                kind, QStringLiteral("OD")};
    }
    /// From another workstation.
    void store(desk::UserData& user, const std::optional<QString>& passwordHash = std::nullopt) {
        const auto database = elsewhere();
        ASSERT_TRUE(desk::UserDirectory(*database).save(user, passwordHash));
    }
    std::optional<desk::UserData> stored(const QString& code) {
        const auto database = elsewhere();
        return desk::UserDirectory(*database).byCode(code);
    }
    desk::SignIn::Outcome attempt(const QString& code, const QString& password) {
        const auto database = elsewhere();
        return desk::SignIn(*database).attempt(code, password);
    }
};

TEST_F(DeskUsers, AddsUsersWithAwkwardNamesUncut) {
    for (const QString& name : awkwardTexts()) {
        SCOPED_TRACE(name.left(20).toStdString());
        workList([&](QWidget& list, platform::ReportGrid& grid) {
            inEditor(list, "cbNuovo", [&](QWidget& window) {
                window.findChild<QLineEdit*>(QStringLiteral("tbCodice"))->setText(name);
                window.findChild<QLineEdit*>(QStringLiteral("tbCognome"))->setText(name);
                type(window, "tbNome", QStringLiteral("Ada"));
                window.findChild<QComboBox*>(QStringLiteral("cbTipo"))->setCurrentText(QStringLiteral("Assistente"));
                window.findChild<QComboBox*>(QStringLiteral("cbAttivita"))->setCurrentText(QStringLiteral("as"));
                QTest::keyClick(window.findChild<QLineEdit*>(QStringLiteral("tbNome")), Qt::Key_Return);
            });
            EXPECT_EQ(grid.focusedRecord()->cell(1).value, name + QStringLiteral(" Ada"));
        });
        const auto user = stored(name);
        ASSERT_TRUE(user);
        EXPECT_EQ(user->Cognome, name);
        EXPECT_EQ(user->tipo, 3);
        EXPECT_EQ(user->codiceAttivita, QStringLiteral("AS"));
        EXPECT_FALSE(user->asksPassword);
    }
    EXPECT_TRUE(dialogs_.messages.isEmpty());
}

TEST_F(DeskUsers, RefusesWhatCannotBeAndKeepsTheWindow) {
    const struct {
        const char* field;
        const char* value;
        const char* complaint;
    } cases[] = {
        {"tbCodice", " ", "codice con cui"},
        {"tbCodice", "medico", "già questo codice"},
        {"tbCognome", "", "cognome"},
        {"tbNome", "", "nome dell'utente"},
        {"tbCodiceFiscale", "RSSMRA80A01H501V", "fiscale non è valido"},
        {"tbPasswordNuova", "corta", "almeno 8"},
        {"tbPasswordNuova", "abbastanza lunga", "non sono uguali"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(std::string(each.field) + "=" + each.value);
        dialogs_.messages.clear();
        inNewUser([&](QWidget& window) {
            type(window, "tbCodice", QStringLiteral("NERI"));
            type(window, "tbCognome", QStringLiteral("Neri"));
            type(window, "tbNome", QStringLiteral("Ugo"));
            type(window, each.field, QString::fromUtf8(each.value));
            press(window, "cbConferma");
            EXPECT_TRUE(window.isVisible());
        });
        ASSERT_EQ(dialogs_.messages.size(), 1);
        EXPECT_TRUE(dialogs_.messages.first().contains(QString::fromUtf8(each.complaint)))
            << dialogs_.messages.first().toStdString();
        EXPECT_FALSE(stored(QStringLiteral("NERI")));
    }
}

TEST_F(DeskUsers, SetsChangesAndRemovesAPassword) {
    const QString first = QStringLiteral("prima parola");
    const QString second = QStringLiteral("seconda parola");
    const QString code = QStringLiteral("MEDICO");
    const auto change = [&](const QString& old, const QString& wanted, bool accepted) {
        changePassword("MEDICO", old, wanted, accepted);
    };
    change({}, first, true);
    EXPECT_TRUE(stored(code)->asksPassword);
    change(QStringLiteral("altra"), second, false);
    EXPECT_EQ(attempt(code, first), desk::SignIn::Outcome::Accepted) << "the old one was asked";
    change(first, second, true);
    EXPECT_EQ(attempt(code, first), desk::SignIn::Outcome::Wrong);
    EXPECT_EQ(attempt(code, second), desk::SignIn::Outcome::Accepted);
    change(QStringLiteral("altra"), {}, false);
    EXPECT_TRUE(stored(code)->asksPassword);
    change(second, {}, true);
    EXPECT_FALSE(stored(code)->asksPassword);
}

TEST_F(DeskUsers, OnlyADoctorWithAPasswordResetsAForgottenOne) {
    const QString own = QStringLiteral("quella del medico");
    const QString forgotten = QStringLiteral("dimenticata");
    const QString wanted = QStringLiteral("nuova parola");
    desk::UserData other = person("ALBA", "Alba", 3);
    store(other, desk::hashPassword(forgotten));
    const struct {
        int kind;
        bool withPassword;
        QString typed;
        bool accepted;
    } cases[] = {
        {0, false, QString(), false},
        {0, true, forgotten, false},
        {3, true, own, false},
        {0, true, own, true},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(testing::Message() << each.kind << each.withPassword << each.typed.toStdString());
        desk::UserData signedIn = *stored(QStringLiteral("MEDICO"));
        signedIn.tipo = each.kind;
        store(signedIn, each.withPassword ? desk::hashPassword(own) : QString());
        changePassword("ALBA", each.typed, wanted, each.accepted);
        inUser("ALBA", [&](QWidget& window) {
            EXPECT_EQ(window.findChild<QComboBox*>(QStringLiteral("cbTipo"))->isEnabled(), each.kind == 0);
        });
        EXPECT_EQ(attempt(QStringLiteral("ALBA"), each.accepted ? wanted : forgotten), desk::SignIn::Outcome::Accepted);
    }
}

TEST_F(DeskUsers, GuessingTheOldPasswordIsSlowedDownToo) {
    platform::setClock(QDateTime(QDate(2026, 3, 2), QTime(9, 0)));
    desk::UserData signedIn = *stored(QStringLiteral("MEDICO"));
    store(signedIn, desk::hashPassword(QStringLiteral("segretissima")));
    inUser("MEDICO", [&](QWidget& window) {
        type(window, "tbPasswordNuova", QStringLiteral("nuova parola"));
        type(window, "tbPasswordRipetuta", QStringLiteral("nuova parola"));
        for (int i = 0; i <= desk::SignIn::freeTries; ++i) {
            type(window, "tbPasswordAttuale", QStringLiteral("x%1").arg(i));
            press(window, "cbConferma");
        }
    });
    ASSERT_EQ(dialogs_.messages.size(), desk::SignIn::freeTries + 1);
    static const QRegularExpression wait(
        QStringLiteral("^Troppi tentativi errati: riprovare fra (30|2\\d) secondi\\.$"));
    EXPECT_TRUE(wait.match(dialogs_.messages.last()).hasMatch()) << dialogs_.messages.last().toStdString();
}

TEST_F(DeskUsers, DeletesOrDeactivatesButNeverTheUserAtWork) {
    const QString id = desk_->host().Utente().ID();
    desk::UserData free = person("LIBERO", "Neri", 3);
    desk::UserData busy = person("CURANTE", "D'Amico", 0);
    store(free);
    store(busy);
    {
        const auto database = elsewhere();
        desk::PatientDirectory patients(*database, QStringLiteral("prova"));
        desk::PatientData rossi = *patients.load(rossi_);
        rossi.idMedico = busy.ID;
        ASSERT_TRUE(patients.update(rossi));
    }
    const auto remove = [&](const char* code, platform::Answer answer) {
        dialogs_.messages.clear();
        dialogs_.answer = answer;
        workList([&](QWidget& list, platform::ReportGrid& grid) {
            focusOn(grid, QLatin1String(code));
            press(list, "cbElimina");
        });
        return dialogs_.messages.isEmpty() ? QString() : dialogs_.messages.first();
    };
    EXPECT_TRUE(remove("MEDICO", platform::Answer::Yes).contains(QStringLiteral("sta usando")));
    EXPECT_EQ(stored(QStringLiteral("MEDICO"))->ID, id);
    EXPECT_EQ(remove("LIBERO", platform::Answer::No), QStringLiteral("Eliminare l'utente Neri Ada?"));
    EXPECT_TRUE(stored(QStringLiteral("LIBERO")));
    remove("LIBERO", platform::Answer::Yes);
    EXPECT_FALSE(stored(QStringLiteral("LIBERO")));
    EXPECT_TRUE(remove("CURANTE", platform::Answer::No).contains(QStringLiteral("Disattivarlo?")));
    EXPECT_TRUE(stored(QStringLiteral("CURANTE"))->attivo);
    remove("CURANTE", platform::Answer::Yes);
    EXPECT_FALSE(stored(QStringLiteral("CURANTE"))->attivo);
    EXPECT_TRUE(remove("CURANTE", platform::Answer::Yes).contains(QStringLiteral("resta nell'archivio")));

    // The card of the patient keeps its doctor, another patient cannot choose who left.
    for (const QString& patient : {rossi_, verdi_}) {
        ASSERT_TRUE(desk_->openPatient(patient));
        whenModal("frmPaziente", [&](QWidget& window) {
            auto* doctors = window.findChild<QComboBox*>(QStringLiteral("cbMedico"));
            EXPECT_EQ(doctors->findText(QStringLiteral("D'Amico Ada")) >= 0, patient == rossi_);
            window.close();
        });
        ASSERT_TRUE(desk_->pressCommand(QStringLiteral("Dati anagrafici")));
    }
}

TEST_F(DeskUsers, TheUserAtWorkStaysActiveAndTheWindowShowsTheNewName) {
    inUser("MEDICO", [](QWidget& window) {
        EXPECT_FALSE(window.findChild<QCheckBox*>(QStringLiteral("ckAttivo"))->isEnabled());
        type(window, "tbCognome", QStringLiteral("D'Angelo"));
        press(window, "cbConferma");
    });
    EXPECT_EQ(control<QLabel>("laUtente")->text(), QStringLiteral("Utente: D'Angelo dello studio"));
}
