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

    const QString uscito = QStringLiteral("MRCPLA68S03H501R");
    archivio_.execute(QStringLiteral("update tblUtenti set attivo = 0 where codicefiscale = '%1'").arg(uscito));
    EXPECT_EQ(DescrizioneUtente(uscito), QStringLiteral("Marchetti dott. Paolo")) << "his plans still name him";
    EXPECT_FALSE(UtentiDaScegliere(0).isEmpty());
    for (const host::VoceUtente& utente : UtentiDaScegliere(0))
        EXPECT_NE(utente.codicefiscale, uscito);

    archivio_.execute(QStringLiteral("alter table tblUtenti rename to tblAltrove"));
    EXPECT_EQ(DescrizioneUtente(uscito), QString());
    EXPECT_EQ(CodiceFiscaleUtente(QStringLiteral("Marchetti dott. Paolo")), QString());
    EXPECT_TRUE(UtentiDaScegliere(0).isEmpty());
    archivio_.execute(QStringLiteral("alter table tblAltrove rename to tblUtenti"));
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
