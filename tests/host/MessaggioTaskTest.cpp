#include "host/modForm.h"
#include "platform/Dialogs.h"
#include "platform/QtDialogs.h"
#include "platform/WebAddress.h"
#include "support/ScriptedDialogs.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>

namespace {

/// The real task dialog, worked by `mani` as soon as it is on the screen.
class TaskVero : public testing::Test {
protected:
    TaskVero()
        : precedenti_(platform::installDialogs(&dialoghi_)) {
        platform::installAddressOpener([this](const QString& indirizzo) {
            aperti_ << indirizzo;
            return true;
        });
    }
    ~TaskVero() override {
        platform::installAddressOpener({});
        platform::installDialogs(precedenti_);
    }

    static void allaComparsa(std::function<void(QDialog&)> mani) {
        QTimer::singleShot(0, qApp, [mani = std::move(mani)] {
            auto* dialogo = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialogo, nullptr);
            mani(*dialogo);
        });
    }
    static QString testo(const QDialog& dialogo, const char* nome) {
        const auto* etichetta = dialogo.findChild<QLabel*>(QLatin1String(nome));
        return etichetta ? platform::withoutMarkup(etichetta->text()) : QString();
    }
    static void premi(const QDialog& dialogo, const char* didascalia) {
        for (QPushButton* bottone : dialogo.findChildren<QPushButton*>()) {
            if (bottone->text() == QLatin1String(didascalia)) bottone->click();
        }
    }

    QStringList aperti_;

private:
    platform::QtDialogs dialoghi_;
    platform::Dialogs* precedenti_;
};

} // namespace

TEST_F(TaskVero, BothKindsHandBackWhatWasPressedAndTicked) {
    OpzioniTask opzioni;
    opzioni.casella = QStringLiteral("Non mostrare più");
    QString titolo;
    QString finestra;
    QStringList bottoni;
    allaComparsa([&](QDialog& dialogo) {
        titolo = testo(dialogo, "title");
        finestra = dialogo.windowTitle();
        for (const QPushButton* bottone : dialogo.findChildren<QPushButton*>())
            bottoni << bottone->text();
        dialogo.findChild<QCheckBox*>()->click();
        premi(dialogo, "Chiudi");
    });
    MessaggioTask(QStringLiteral("Testo"), platform::MB_WARNING, QStringLiteral("Avviso"), &opzioni);
    EXPECT_EQ(titolo, QStringLiteral("Avviso"));
    EXPECT_EQ(finestra, QStringLiteral("Tessara 5000. CORVALA"));
    EXPECT_EQ(bottoni, QStringList{QStringLiteral("Chiudi")});
    EXPECT_TRUE(opzioni.spuntata);

    const QStringList propri{QStringLiteral("Si"), QStringLiteral("No")};
    allaComparsa([](QDialog& dialogo) {
        dialogo.findChild<QCheckBox*>()->click();
        premi(dialogo, "No");
    });
    EXPECT_EQ(DomandaTask(QStringLiteral("Testo"), platform::MB_WARNING, QStringLiteral("Avviso"), propri, &opzioni),
              QStringLiteral("No"));
    EXPECT_FALSE(opzioni.spuntata) << "the box comes back as it was left, off too";
    allaComparsa([](QDialog& dialogo) { QTest::keyClick(&dialogo, Qt::Key_Escape); });
    EXPECT_EQ(DomandaTask(QStringLiteral("Testo"), platform::MB_WARNING, QStringLiteral("Avviso"), propri), QString());
}

TEST_F(TaskVero, TheFooterCountsAndNamesTheAddress) {
    const struct {
        const char* piede;
        const char* url;
        int secondi;
        const char* conto;
        const char* indirizzo;
    } casi[] = {
        {"", "", 0, "", ""},
        {"", "", 7, "Chiusura fra 7 secondi", ""},
        {"Salvare prima di uscire", "", 7, "Chiusura entro 7 secondi...", ""},
        {"", "https://example.org/?a=1&b=2", 0, "", "Per maggiori informazioni: https://example.org/?a=1&b=2"},
        {"", "https://example.org", 3, "Chiusura fra 3 secondi", "Per maggiori informazioni: https://example.org"},
    };
    for (const auto& caso : casi) {
        SCOPED_TRACE(testing::Message() << caso.piede << '|' << caso.url << '|' << caso.secondi);
        OpzioniTask opzioni;
        opzioni.piede = QLatin1String(caso.piede);
        opzioni.url = QLatin1String(caso.url);
        opzioni.secondi = caso.secondi;
        allaComparsa([&](QDialog& dialogo) {
            EXPECT_EQ(testo(dialogo, "count"), QLatin1String(caso.conto));
            EXPECT_EQ(testo(dialogo, "laURL"), QLatin1String(caso.indirizzo));
            EXPECT_EQ(testo(dialogo, "footer"), QLatin1String(caso.piede));
            if (auto* collegamento = dialogo.findChild<QLabel*>(QStringLiteral("laURL")))
                emit collegamento->linkActivated(opzioni.url);
            premi(dialogo, "Chiudi");
        });
        MessaggioTask(QStringLiteral("Testo"), platform::MB_INFORMATION, QStringLiteral("Avviso"), &opzioni);
    }
    EXPECT_EQ(aperti_,
              (QStringList{QStringLiteral("https://example.org/?a=1&b=2"), QStringLiteral("https://example.org")}));
}

TEST_F(TaskVero, OnlyAddressesOfTheWebAreOpened) {
    for (const char* indirizzo : {"", "   ", "file:///etc/passwd", "/bin/sh", "javascript:alert(1)", "C:\\a.exe"}) {
        SCOPED_TRACE(indirizzo);
        EXPECT_FALSE(platform::openWebAddress(QLatin1String(indirizzo)));
    }
    EXPECT_TRUE(aperti_.isEmpty());
    EXPECT_TRUE(platform::openWebAddress(QStringLiteral(" www.studio.it ")));
    EXPECT_TRUE(platform::openWebAddress(QStringLiteral("mailto:studio@example.org")));
    EXPECT_EQ(aperti_,
              (QStringList{QStringLiteral("http://www.studio.it"), QStringLiteral("mailto:studio@example.org")}));
}
