#include "support/ModuleFixture.h"

#include "config/clsConfig.h"
#include "desk/data/PatientNotes.h"
#include "platform/FormRegistry.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTextBlock>
#include <QTextEdit>
#include <QTimer>

namespace {

/// What the window of the important notes showed when a patient was opened.
struct Seen {
    bool shown = false;
    QString title;
    QString patient;
    QString text;
};

class Notices : public ModuleFixture {
protected:
    /// As `user`, on the patient that the doctor Marchetti looks after.
    void begin(const char* user = "MARCHETTI") {
        options_.userCode = QLatin1String(user);
        start();
        ASSERT_TRUE(started_) << qPrintable(desk_->moduleError());
    }
    void addNote(const QDate& date, bool isPrivate, bool isImportant, const QString& text) {
        host::Appunto note{{}, date.startOfDay(), isPrivate, isImportant, text};
        auto& notes = static_cast<desk::PatientNotes&>(desk_->host().paziente()->Appunti());
        ASSERT_TRUE(notes.Salva(note));
    }
    /// Opens the patient anew; `hands` works the window before it is closed.
    Seen reopen(const std::function<void(QDialog&)>& hands = {}) {
        if (desk_->host().paziente()) desk_->closePatient();
        Seen seen;
        QTimer guard;
        QObject::connect(&guard, &QTimer::timeout, &guard, [&] {
            auto* window = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!window || seen.shown) return;
            seen.shown = window->objectName() == QLatin1String("frmAvvisi");
            seen.title = window->windowTitle();
            seen.patient = window->findChild<QLabel*>(QStringLiteral("laTitoloForm"))->text();
            seen.text = window->findChild<QTextEdit*>(QStringLiteral("RichTextBox1"))->toPlainText();
            if (hands) hands(*window);
            QTest::mouseClick(window->findChild<QPushButton*>(QStringLiteral("cbAnnulla")), Qt::LeftButton);
        });
        guard.start(0);
        openRossi();
        EXPECT_EQ(platform::FormRegistry::find(QStringLiteral("frmAvvisi")), nullptr);
        return seen;
    }
};

} // namespace

TEST_F(Notices, ShowTheImportantNotesOfThePatientWhoOpens) {
    begin();
    EXPECT_FALSE(reopen().shown) << "this patient has no notes";
    addNote(QDate(2025, 3, 9), false, false, QStringLiteral("Preferisce il mattino"));
    EXPECT_FALSE(reopen().shown) << "none of the notes is important";
    addNote(QDate(2025, 2, 1), false, true, QStringLiteral("Allergia all'\"anestetico\" <b>&\r\nUsare altro"));
    addNote(QDate(2025, 3, 10), false, true, QStringLiteral("Cardiopatico 100%"));

    const Seen seen = reopen([](QDialog& window) {
        auto* text = window.findChild<QTextEdit*>(QStringLiteral("RichTextBox1"));
        EXPECT_TRUE(text->isReadOnly());
        EXPECT_EQ(text->textCursor().position(), 0);
        struct Line {
            Qt::Alignment alignment;
            int pointSize;
            int weight;
            QColor colour;
        };
        const Line expectedLines[] = {{Qt::AlignHCenter, 12, QFont::Bold, QColor(255, 0, 0)},
                                      {Qt::AlignLeft, 10, QFont::Bold, QColor(255, 0, 0)},
                                      {Qt::AlignLeft, 10, QFont::Normal, QColor(0, 0, 0)}};
        QTextBlock block = text->document()->firstBlock();
        for (const Line& expected : expectedLines) {
            block = block.next();
            SCOPED_TRACE(qPrintable(block.text()));
            const QTextCharFormat format = block.begin().fragment().charFormat();
            EXPECT_TRUE(block.blockFormat().alignment() & expected.alignment);
            EXPECT_EQ(format.fontFamilies().toStringList(), QStringList{QStringLiteral("Arial")});
            EXPECT_EQ(format.fontPointSize(), expected.pointSize);
            EXPECT_EQ(format.fontWeight(), expected.weight);
            EXPECT_EQ(format.foreground().color(), expected.colour);
        }
    });
    EXPECT_TRUE(seen.shown);
    EXPECT_EQ(seen.title, QStringLiteral("Appunti paziente. Tessara 5000. CORVALA"));
    EXPECT_EQ(seen.patient, QStringLiteral("Rossi Mario"));
    EXPECT_EQ(seen.text, QStringLiteral("\nAppunti Importanti\n10/03/2025\n  Cardiopatico 100%\n01/02/2025\n"
                                        "  Allergia all'\"anestetico\" <b>&\nUsare altro"));

    oConfig->setAppuntiPazienteModali(false);
    EXPECT_FALSE(reopen().shown);
    oConfig->setAppuntiPazienteModali(true);
    EXPECT_TRUE(reopen().shown);
    desk_->closePatient();
    raiseEvent("ambulatorio.ready"); // with nobody open it returns at once
    EXPECT_TRUE(dialogs_.messages.isEmpty());
}

TEST_F(Notices, APrivateNoteIsForThePatientsOwnDoctor) {
    begin();
    reopen();
    addNote(QDate(2025, 3, 9), true, true, QStringLiteral("Riservato"));
    EXPECT_EQ(reopen().text, QStringLiteral("\nAppunti Importanti\n09/03/2025\n  Riservato"));
    for (const char* other : {"FERRARI", "CONTI"}) {
        SCOPED_TRACE(other);
        begin(other);
        EXPECT_FALSE(reopen().shown);
    }
    addNote(QDate(2025, 3, 8), false, true, QStringLiteral("Di tutti"));
    EXPECT_EQ(reopen().text, QStringLiteral("\nAppunti Importanti\n08/03/2025\n  Di tutti"));
}
