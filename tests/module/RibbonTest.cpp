#include "support/StudioConModulo.h"

#include "config/clsConfig.h"
#include "host/modComandi.h"
#include "platform/FormRegistry.h"
#include "store/modPazienti.h"
#include "store/modUtenti.h"

#include <QDesktopServices>
#include <QImage>
#include <QMainWindow>
#include <QUrl>
#include <QWidget>

namespace {

class RibbonTest : public StudioConModulo {
protected:
    host::RibbonControl* bottone(const char* key) {
        return desk_->host().Framework().FindRibbonControl(oConfig->IDService(QLatin1String(key)));
    }
    bool acceso(const char* key) {
        const host::RibbonControl* trovato = bottone(key);
        return trovato && trovato->Enabled();
    }
};

} // namespace

TEST_F(RibbonTest, EveryCommandHasAButtonWithItsPicture) {
    avvia();
    ASSERT_TRUE(avviato_) << qPrintable(desk_->moduleError());
    for (const char* key :
         {"CRVL0101", "CRVL0102", "CRVL0201", "CRVL0202", "CRVL0301", "CRVL0302", "CRVL0303", "CRVL0401", "CRVL0402",
          "CRVL0501", "CRVL0502", "CRVL0601", "CRVL0602", "CRVL0701", "CRVL0702", "CRVL0801", "CRVL0802", "CRVL0901"}) {
        SCOPED_TRACE(key);
        ASSERT_NE(bottone(key), nullptr);
        EXPECT_FALSE(bottone(key)->Caption().isEmpty());
        const QImage immagine(sAppPath + QStringLiteral("/Styles/") + QLatin1String(key) + QStringLiteral(".png"));
        EXPECT_EQ(immagine.size(), QSize(64, 64));
    }
    // What has no window yet is off.
    for (const char* key : {"CRVL0101", "CRVL0202", "CRVL0701"})
        EXPECT_FALSE(acceso(key)) << key;
    QString errore;
    EXPECT_FALSE(desk_->pressCommand(QStringLiteral("CRVL0101"), &errore));
    EXPECT_FALSE(errore.isEmpty());
}

TEST_F(RibbonTest, ThePatientsPlanFollowsThePatient) {
    avvia();
    EXPECT_TRUE(acceso("CRVL0301"));
    EXPECT_TRUE(acceso("CRVL0302"));
    EXPECT_FALSE(acceso("CRVL0303"));
    const auto scrivania = [this] { return desk_->host().Framework().FindRibbonControl(idComandi.sintesi); };
    EXPECT_FALSE(scrivania()->Enabled());
    apriRossi();
    EXPECT_TRUE(scrivania()->Enabled());
    EXPECT_FALSE(acceso("CRVL0303")) << "this patient has no plan";

    ASSERT_TRUE(desk_->openPatientByTaxCode(QStringLiteral("FNTGPP51M01L781C")));
    EXPECT_TRUE(acceso("CRVL0303"));
    oConfig->RefreshGUITrattamento();
    EXPECT_EQ(acceso("CRVL0303"), agganci.contaTrattamentiAperti() > 0);
    desk_->closePatient();
    EXPECT_FALSE(acceso("CRVL0303"));
    EXPECT_FALSE(scrivania()->Enabled());
}

TEST_F(RibbonTest, AListOpensOnceAndNeedsNoPatient) {
    avvia();
    ASSERT_TRUE(desk_->pressCommand(QStringLiteral("CRVL0301")));
    QObject* prima = platform::FormRegistry::find(QStringLiteral("frmMDITrattamenti"));
    ASSERT_NE(prima, nullptr);
    auto* finestra = qobject_cast<QWidget*>(prima);
    EXPECT_EQ(finestra->windowTitle(), QStringLiteral("Tessara 5000. CORVALA: Elenco TRATTAMENTI"));
    EXPECT_FALSE(finestra->windowIcon().isNull());
    ASSERT_TRUE(desk_->pressCommand(QStringLiteral("CRVL0301")));
    int aperte = 0;
    for (const QObject* form : platform::FormRegistry::all()) {
        if (form->objectName() == QLatin1String("frmMDITrattamenti")) ++aperte;
    }
    EXPECT_EQ(aperte, 1);
}

TEST_F(RibbonTest, TheModulesOwnCommands) {
    avvia();
    ASSERT_TRUE(desk_->pressCommand(QStringLiteral("CRVL.main.about")));
    const QString informazioni = platform::withoutMarkup(dialoghi_.messaggi.takeLast());
    EXPECT_TRUE(informazioni.startsWith(QStringLiteral("Tessara 5000 V6. Modulo Odontoiatrico\n\n")));
    EXPECT_TRUE(informazioni.contains(QStringLiteral("Percorso configurazione: ") + oConfig->FileName()));
    ASSERT_TRUE(desk_->pressCommand(QStringLiteral("CRVL.main.refresh")));
    evento("execute", {idComandi.menuFatturazione});
    EXPECT_EQ(dialoghi_.messaggi.takeLast(), QStringLiteral("Funzione non ancora disponibile."));
    evento("execute", {idComandi.menuImmagini});
    EXPECT_EQ(dialoghi_.messaggi.takeLast(), QStringLiteral("Selezionare prima un paziente"));
    EXPECT_TRUE(dialoghi_.messaggi.isEmpty());
}

TEST_F(RibbonTest, UsersAreShownByNameAndFoundAgain) {
    avvia();
    bool medico = false;
    bool assistente = false;
    for (const host::VoceUtente& utente : desk_->host().Archivio().Utenti().Lista()) {
        SCOPED_TRACE(qPrintable(utente.Cognome));
        medico |= utente.tipo == 0;
        assistente |= utente.tipo != 0;
        const QString titolo = utente.tipo == 0 ? QStringLiteral(" dott. ") : QStringLiteral(" ");
        EXPECT_EQ(DescrizioneUtente(utente.codicefiscale), utente.Cognome + titolo + utente.Nome);
        EXPECT_EQ(CodiceFiscaleUtente(utente.Cognome + QStringLiteral(" dott. ") + utente.Nome), utente.codicefiscale);
        EXPECT_EQ(CodiceFiscaleUtente(utente.Cognome + QLatin1Char(' ') + utente.Nome), utente.codicefiscale);
    }
    EXPECT_TRUE(medico && assistente);
    EXPECT_EQ(DescrizioneUtente(QStringLiteral("XXX")), QStringLiteral("XXX"));
    EXPECT_EQ(CodiceFiscaleUtente(QStringLiteral("Nessuno dott. Tale")), QString());
    EXPECT_EQ(DescrizioneUtente(QString()), QString());
}

TEST_F(RibbonTest, APatientIsOpenedInTheDesk) {
    avvia();
    EXPECT_FALSE(ApriPaziente(nullptr));
    apriRossi();
    const QString id = PazienteAperto()->ID();
    desk_->closePatient();
    auto paziente = desk_->host().Framework().NewPaziente();
    ASSERT_TRUE(paziente->Init(id));
    EXPECT_TRUE(ApriPaziente(paziente.get()));
    ASSERT_NE(PazienteAperto(), nullptr);
    EXPECT_EQ(PazienteAperto()->ID(), id);
    EXPECT_TRUE(ApriPaziente(PazienteAperto()));
}
