#include "support/StudioConModulo.h"

#include "store/modPazienti.h"
#include "store/modUtenti.h"

namespace {

class PazientiEUtenti : public StudioConModulo {};

} // namespace

TEST_F(PazientiEUtenti, UsersAreShownByNameAndFoundAgain) {
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

TEST_F(PazientiEUtenti, APatientIsOpenedInTheDesk) {
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
