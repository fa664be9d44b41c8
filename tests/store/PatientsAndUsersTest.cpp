#include "support/ModuleFixture.h"

#include "store/modPazienti.h"
#include "store/modUtenti.h"

namespace {

class PatientsAndUsers : public ModuleFixture {};

} // namespace

TEST_F(PatientsAndUsers, UsersAreShownByNameAndFoundAgain) {
    start();
    bool doctor = false;
    bool assistant = false;
    for (const host::VoceUtente& user : desk_->host().Archivio().Utenti().Lista()) {
        SCOPED_TRACE(qPrintable(user.Cognome));
        doctor |= user.tipo == 0;
        assistant |= user.tipo != 0;
        const QString title = user.tipo == 0 ? QStringLiteral(" dott. ") : QStringLiteral(" ");
        EXPECT_EQ(DescrizioneUtente(user.codicefiscale), user.Cognome + title + user.Nome);
        EXPECT_EQ(CodiceFiscaleUtente(user.Cognome + QStringLiteral(" dott. ") + user.Nome), user.codicefiscale);
        EXPECT_EQ(CodiceFiscaleUtente(user.Cognome + QLatin1Char(' ') + user.Nome), user.codicefiscale);
    }
    EXPECT_TRUE(doctor && assistant);
    EXPECT_EQ(DescrizioneUtente(QStringLiteral("XXX")), QStringLiteral("XXX"));
    EXPECT_EQ(CodiceFiscaleUtente(QStringLiteral("Nessuno dott. Tale")), QString());
    EXPECT_EQ(DescrizioneUtente(QString()), QString());

    const QString former = QStringLiteral("MRCPLA68S03H501R");
    database_.execute(QStringLiteral("update tblUtenti set attivo = 0 where codicefiscale = '%1'").arg(former));
    EXPECT_EQ(DescrizioneUtente(former), QStringLiteral("Marchetti dott. Paolo")) << "his plans still name him";
    EXPECT_FALSE(usersToChooseFrom(0).isEmpty());
    for (const host::VoceUtente& user : usersToChooseFrom(0))
        EXPECT_NE(user.codicefiscale, former);

    database_.execute(QStringLiteral("alter table tblUtenti rename to tblAltrove"));
    EXPECT_EQ(DescrizioneUtente(former), QString());
    EXPECT_EQ(CodiceFiscaleUtente(QStringLiteral("Marchetti dott. Paolo")), QString());
    EXPECT_TRUE(usersToChooseFrom(0).isEmpty());
    database_.execute(QStringLiteral("alter table tblAltrove rename to tblUtenti"));
}

TEST_F(PatientsAndUsers, APatientIsOpenedInTheDesk) {
    start();
    EXPECT_FALSE(ApriPaziente(nullptr));
    openRossi();
    const QString id = currentPatient()->ID();
    desk_->closePatient();
    auto patient = desk_->host().Framework().NewPaziente();
    ASSERT_TRUE(patient->Init(id));
    EXPECT_TRUE(ApriPaziente(patient.get()));
    ASSERT_NE(currentPatient(), nullptr);
    EXPECT_EQ(currentPatient()->ID(), id);
    EXPECT_TRUE(ApriPaziente(currentPatient()));
}
