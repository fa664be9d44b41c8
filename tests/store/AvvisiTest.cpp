#include "support/StudioConModulo.h"

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
struct Visto {
    bool comparsa = false;
    QString titolo;
    QString paziente;
    QString testo;
};

class Avvisi : public StudioConModulo {
protected:
    /// As `utente`, on the patient that the doctor Marchetti looks after.
    void comincia(const char* utente = "MARCHETTI") {
        opzioni_.userCode = QLatin1String(utente);
        avvia();
        ASSERT_TRUE(avviato_) << qPrintable(desk_->moduleError());
    }
    void scriviAppunto(const QDate& data, bool privato, bool importante, const QString& testo) {
        host::Appunto appunto{{}, data.startOfDay(), privato, importante, testo};
        auto& appunti = static_cast<desk::PatientNotes&>(desk_->host().paziente()->Appunti());
        ASSERT_TRUE(appunti.Salva(appunto));
    }
    /// Opens the patient anew; `mani` works the window before it is closed.
    Visto riapri(const std::function<void(QDialog&)>& mani = {}) {
        if (desk_->host().paziente()) desk_->closePatient();
        Visto visto;
        QTimer guardia;
        QObject::connect(&guardia, &QTimer::timeout, &guardia, [&] {
            auto* finestra = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!finestra || visto.comparsa) return;
            visto.comparsa = finestra->objectName() == QLatin1String("frmAvvisi");
            visto.titolo = finestra->windowTitle();
            visto.paziente = finestra->findChild<QLabel*>(QStringLiteral("laTitoloForm"))->text();
            visto.testo = finestra->findChild<QTextEdit*>(QStringLiteral("RichTextBox1"))->toPlainText();
            if (mani) mani(*finestra);
            QTest::mouseClick(finestra->findChild<QPushButton*>(QStringLiteral("cbAnnulla")), Qt::LeftButton);
        });
        guardia.start(0);
        apriRossi();
        EXPECT_EQ(platform::FormRegistry::find(QStringLiteral("frmAvvisi")), nullptr);
        return visto;
    }
};

} // namespace

TEST_F(Avvisi, ShowTheImportantNotesOfThePatientWhoOpens) {
    comincia();
    EXPECT_FALSE(riapri().comparsa) << "this patient has no notes";
    scriviAppunto(QDate(2025, 3, 9), false, false, QStringLiteral("Preferisce il mattino"));
    EXPECT_FALSE(riapri().comparsa) << "none of the notes is important";
    scriviAppunto(QDate(2025, 2, 1), false, true, QStringLiteral("Allergia all'\"anestetico\" <b>&\r\nUsare altro"));
    scriviAppunto(QDate(2025, 3, 10), false, true, QStringLiteral("Cardiopatico 100%"));

    const Visto visto = riapri([](QDialog& finestra) {
        auto* testo = finestra.findChild<QTextEdit*>(QStringLiteral("RichTextBox1"));
        EXPECT_TRUE(testo->isReadOnly());
        EXPECT_EQ(testo->textCursor().position(), 0);
        struct Riga {
            Qt::Alignment allineamento;
            int corpo;
            int peso;
            QColor colore;
        };
        const Riga attese[] = {{Qt::AlignHCenter, 12, QFont::Bold, QColor(255, 0, 0)},
                               {Qt::AlignLeft, 10, QFont::Bold, QColor(255, 0, 0)},
                               {Qt::AlignLeft, 10, QFont::Normal, QColor(0, 0, 0)}};
        QTextBlock blocco = testo->document()->firstBlock();
        for (const Riga& attesa : attese) {
            blocco = blocco.next();
            SCOPED_TRACE(qPrintable(blocco.text()));
            const QTextCharFormat formato = blocco.begin().fragment().charFormat();
            EXPECT_TRUE(blocco.blockFormat().alignment() & attesa.allineamento);
            EXPECT_EQ(formato.fontFamilies().toStringList(), QStringList{QStringLiteral("Arial")});
            EXPECT_EQ(formato.fontPointSize(), attesa.corpo);
            EXPECT_EQ(formato.fontWeight(), attesa.peso);
            EXPECT_EQ(formato.foreground().color(), attesa.colore);
        }
    });
    EXPECT_TRUE(visto.comparsa);
    EXPECT_EQ(visto.titolo, QStringLiteral("Appunti paziente. Tessara 5000. CORVALA"));
    EXPECT_EQ(visto.paziente, QStringLiteral("Rossi Mario"));
    EXPECT_EQ(visto.testo, QStringLiteral("\nAppunti Importanti\n10/03/2025\n  Cardiopatico 100%\n01/02/2025\n"
                                          "  Allergia all'\"anestetico\" <b>&\nUsare altro"));

    oConfig->setAppuntiPazienteModali(false);
    EXPECT_FALSE(riapri().comparsa);
    oConfig->setAppuntiPazienteModali(true);
    EXPECT_TRUE(riapri().comparsa);
    desk_->closePatient();
    evento("ambulatorio.ready"); // with nobody open it returns at once
    EXPECT_TRUE(dialoghi_.messages.isEmpty());
}

TEST_F(Avvisi, APrivateNoteIsForThePatientsOwnDoctor) {
    comincia();
    riapri();
    scriviAppunto(QDate(2025, 3, 9), true, true, QStringLiteral("Riservato"));
    EXPECT_EQ(riapri().testo, QStringLiteral("\nAppunti Importanti\n09/03/2025\n  Riservato"));
    for (const char* altro : {"FERRARI", "CONTI"}) {
        SCOPED_TRACE(altro);
        comincia(altro);
        EXPECT_FALSE(riapri().comparsa);
    }
    scriviAppunto(QDate(2025, 3, 8), false, true, QStringLiteral("Di tutti"));
    EXPECT_EQ(riapri().testo, QStringLiteral("\nAppunti Importanti\n08/03/2025\n  Di tutti"));
}
