#include "PracticeFixture.h"

#include "desk/data/DatabaseService.h"
#include "desk/data/FreeData.h"
#include "desk/data/SignedInUser.h"
#include "desk/data/UserDirectory.h"
#include "host/contract/HostError.h"
#include "platform/Files.h"

#include <QFile>
#include <QFileInfo>
#include <functional>

class PatientCollectionsTest : public PracticeFixture {
protected:
    QString patientId_ = addPatient(QStringLiteral("Bianchi"), QStringLiteral("Anna"));
    std::unique_ptr<desk::PatientRecord> patient_ = bound(patientId_);
    std::unique_ptr<desk::PatientRecord> other_ = bound(addPatient(QStringLiteral("Verdi"), QStringLiteral("Ugo")));
};

TEST_F(PatientCollectionsTest, NotesKeepTheirFlags) {
    host::Appunto note{
        {}, QDateTime(QDate(2025, 3, 1), QTime(10, 30)), true, false, QStringLiteral("Allergia: \"penicillina\"\n<b>")};
    ASSERT_TRUE(patient_->Appunti().Salva(note));
    host::Appunto later{{}, QDateTime(QDate(2025, 4, 1), QTime()), QVariant(), 1, QStringLiteral("dopo")};
    ASSERT_TRUE(patient_->Appunti().Salva(later));
    const QList<host::Appunto> notes = patient_->Appunti().Lista();
    ASSERT_EQ(notes.size(), 2);
    EXPECT_EQ(notes[0].m1, QStringLiteral("dopo")) << "newest first";
    EXPECT_EQ(notes[1].m1, note.m1);
    EXPECT_EQ(notes[1].Data, note.Data);
    EXPECT_TRUE(notes[1].b1.toBool());
    EXPECT_FALSE(notes[1].b2.toBool());
    EXPECT_FALSE(notes[0].b1.toBool());
    EXPECT_TRUE(notes[0].b2.toBool());
    EXPECT_TRUE(other_->Appunti().Lista().isEmpty());
    EXPECT_FALSE(other_->Appunti().Elimina(note.ID));
    EXPECT_TRUE(patient_->Appunti().Elimina(note.ID));
    EXPECT_FALSE(patient_->Appunti().Carica(note.ID));
}

TEST_F(PatientCollectionsTest, DiaryVisitsAndDueDatesAreSavedAndChanged) {
    host::Evento event{
        {}, QStringLiteral("05/02/2025"), QStringLiteral("Rif.Trattamento 2025-0001: lastra"), QStringLiteral("f1")};
    ASSERT_TRUE(patient_->Eventi().Salva(event));
    event.descrizione = QStringLiteral("Ex lastra");
    const QString id = event.ID;
    ASSERT_TRUE(patient_->Eventi().Salva(event));
    ASSERT_EQ(patient_->Eventi().Lista().size(), 1);
    EXPECT_EQ(patient_->Eventi().Lista().first().ID, id);
    EXPECT_EQ(patient_->Eventi().Lista().first().Data, QStringLiteral("05/02/2025"));
    EXPECT_EQ(patient_->Eventi().Lista().first().descrizione, QStringLiteral("Ex lastra"));
    EXPECT_EQ(patient_->Eventi().Lista().first().idfiles, QStringLiteral("f1"));
    event.Data = QStringLiteral("ieri");
    EXPECT_FALSE(patient_->Eventi().Salva(event));
    EXPECT_TRUE(patient_->Eventi().Elimina(id));

    host::Visita visit{{}, QDateTime(QDate(2025, 3, 1), QTime(9, 15)), QStringLiteral("Igiene")};
    ASSERT_TRUE(patient_->VisiteAmbDom().Salva(visit));
    EXPECT_EQ(patient_->VisiteAmbDom().Lista().first().Data, visit.Data);
    EXPECT_EQ(patient_->VisiteAmbDom().Carica(visit.ID)->descrizione, QStringLiteral("Igiene"));
    EXPECT_TRUE(patient_->VisiteAmbDom().Elimina(visit.ID));

    desk::DueDate due{{}, QDate(2025, 12, 1), QStringLiteral("Richiamo"), false};
    ASSERT_TRUE(patient_->scadenze().Salva(due));
    due.chiusa = true;
    ASSERT_TRUE(patient_->scadenze().Salva(due));
    ASSERT_EQ(patient_->scadenze().Lista().size(), 1);
    EXPECT_TRUE(patient_->scadenze().Carica(due.ID)->chiusa);
    EXPECT_EQ(patient_->scadenze().Lista().first().Data, QDate(2025, 12, 1));
    EXPECT_TRUE(patient_->scadenze().Elimina(due.ID));
}

TEST_F(PatientCollectionsTest, FilesGoInAndComeOutWhole) {
    const QString source = QDir(place_.folder()).filePath(QStringLiteral("foto è.scan.jpg"));
    QByteArray content;
    for (int i = 0; i < 300000; ++i)
        content.append(static_cast<char>(i * 7));
    ASSERT_TRUE(platform::files::writeAtomically(source, content));
    QString id;
    EXPECT_FALSE(patient_->Files().SalvaFile(id, QStringLiteral("manca"),
                                             QDir(place_.folder()).filePath(QStringLiteral("manca.jpg"))));
    EXPECT_TRUE(id.isEmpty());
    ASSERT_TRUE(patient_->Files().SalvaFile(id, QStringLiteral("Panoramica"), source));
    ASSERT_EQ(patient_->Files().Lista().size(), 1);
    EXPECT_EQ(patient_->Files().Lista().first().file, QStringLiteral("foto è.scan.jpg"));

    const QString copy = patient_->Files().EstraiFile(id);
    EXPECT_EQ(QFileInfo(copy).fileName(), QStringLiteral("foto è.scan.jpg"));
    EXPECT_EQ(platform::files::read(copy), content);
    const auto forOthers = QFile::ReadGroup | QFile::ReadOther | QFile::ExeGroup | QFile::ExeOther;
    EXPECT_FALSE(QFile::permissions(desk::SignedInUser(*database_, {}).TempDir()) & forOthers)
        << "patients' files pass through it";

    const QDateTime taken = patient_->Files().Carica(id)->Data;
    ASSERT_TRUE(platform::files::writeAtomically(source, QByteArray("nuova")));
    const QString same = id;
    ASSERT_TRUE(patient_->Files().SalvaFile(id, QStringLiteral("Ritoccata"), source));
    EXPECT_EQ(id, same);
    EXPECT_EQ(patient_->Files().Carica(id)->Data, taken);
    EXPECT_EQ(platform::files::read(patient_->Files().EstraiFile(id)), QByteArray("nuova"));

    desk::DatabaseService(*database_, sign_)
        .Execute(QStringLiteral("update tessara.tblFiles set file='../../fuga.jpg'"));
    EXPECT_TRUE(patient_->Files().EstraiFile(id).startsWith(desk::SignedInUser(*database_, {}).TempDir()))
        << "stays in its folder";
    EXPECT_EQ(other_->Files().EstraiFile(id), QString());
    EXPECT_TRUE(patient_->Files().Elimina(id));
    EXPECT_EQ(patient_->Files().EstraiFile(id), QString());
}

TEST_F(PatientCollectionsTest, WindowsComeFromTheShellOrNotAtAll) {
    EXPECT_THROW(patient_->Appunti().EditForm({}), host::HostError);
    EXPECT_THROW(patient_->VisiteAmbDom().EditForm({}), host::HostError);
    EXPECT_THROW(patient_->scadenze().EditForm({}), host::HostError);
    EXPECT_THROW(patient_->Files().Visualizza({}), host::HostError);
    EXPECT_NO_THROW(patient_->GeneraEvento(patient_->Appunti()));

    QObject form;
    QStringList asked;
    desk::PatientHooks hooks;
    hooks.noteForm = [&](host::Paziente& patient, const QString& id) {
        asked << patient.Cognome() + id;
        return &form;
    };
    hooks.raiseEvent = [&](host::Paziente& patient, host::Raccolta& source) {
        if (&source == &patient.Eventi()) asked << QStringLiteral("diario");
    };
    desk::PatientRecord withShell(*database_, sign_, hooks);
    ASSERT_TRUE(withShell.Init(patientId_));
    EXPECT_EQ(withShell.Appunti().EditForm(QStringLiteral("-7")), &form);
    withShell.GeneraEvento(withShell.Eventi());
    withShell.GeneraEvento(withShell.Files());
    EXPECT_EQ(asked, (QStringList{QStringLiteral("Bianchi-7"), QStringLiteral("diario")}));
}

TEST_F(PatientCollectionsTest, SettingsOutliveTheRunAndBelongToTheirUser) {
    desk::UserDirectory users(*database_);
    const desk::UserData anna = *users.forSignIn({});
    desk::UserData other{{}, QStringLiteral("B"), QStringLiteral("B"), QStringLiteral("B"), {}, 3, {}};
    ASSERT_TRUE(users.insert(other));
    {
        desk::SignedInUser user(*database_, anna);
        EXPECT_EQ(user.Items().GetITEM(QStringLiteral("finestra")), QString());
        user.Items().SetITEM(QStringLiteral("finestra"), QStringLiteral("10;20"));
        user.Items().SetITEM(QStringLiteral("finestra"), QStringLiteral("30;40"));
        EXPECT_TRUE(QFileInfo(user.LogDir()).isDir());
        EXPECT_TRUE(QFileInfo(user.TempDir()).isDir());
    }
    database_ = reopened();
    EXPECT_EQ(desk::SignedInUser(*database_, anna).Items().GetITEM(QStringLiteral("finestra")),
              QStringLiteral("30;40"));
    EXPECT_EQ(desk::SignedInUser(*database_, other).Items().GetITEM(QStringLiteral("finestra")), QString());
    EXPECT_THROW(desk::SignedInUser(*database_, {}).Items().SetITEM(QStringLiteral("a"), {}), host::HostError);
}

TEST_F(PatientCollectionsTest, FreeDataLiesInFolders) {
    desk::FreeData data(*database_, sign_);
    const auto add = [&data](const char* folder, const char* text) {
        host::ItemDati item = data.GetEmptyItem();
        item.Cartella = QString::fromUtf8(folder);
        item.descrizione = QString::fromUtf8(text);
        item.file = QStringLiteral("<movimento/>");
        EXPECT_TRUE(data.Salva(item, true));
        return item;
    };
    host::ItemDati first = add("Prima Nota Magazzino/A%_🦷", "uno");
    add("Prima Nota Magazzino/AB", "due");
    add("Prima Nota", "tre");
    EXPECT_EQ(data.Lista(QStringLiteral("Prima Nota Magazzino"), true).size(), 2);
    EXPECT_EQ(data.Lista(QStringLiteral("Prima Nota Magazzino"), false).size(), 0);
    EXPECT_EQ(data.Lista(QStringLiteral("Prima Nota Magazzino/A%_🦷"), true).size(), 1);
    EXPECT_EQ(data.Lista(QStringLiteral("Prima Nota"), true).size(), 1)
        << "a folder whose name only begins alike is another";

    first.descrizione = QStringLiteral("cambiato");
    EXPECT_FALSE(data.Salva(first, false));
    EXPECT_EQ(data.Carica(first.ID)->descrizione, QStringLiteral("uno"));
    EXPECT_TRUE(data.Salva(first, true));
    EXPECT_EQ(data.Carica(first.ID)->descrizione, QStringLiteral("cambiato"));
    EXPECT_TRUE(data.Elimina(first.ID));
    EXPECT_FALSE(data.Elimina(first.ID));
    EXPECT_FALSE(data.Carica(first.ID));
}

TEST_F(PatientCollectionsTest, UnreadIsNotNone) {
    desk::FreeData data(*database_, sign_);
    desk::UserDirectory users(*database_);
    desk::DatabaseService sql(*database_, sign_);
    const QString none = QStringLiteral("nessuno");
    const struct {
        const char* table;
        std::function<void()> all, one;
    } cases[] = {
        {"tblWorkspace", [&] { patient_->corvala().Lista(); }, [&] { patient_->corvala().Carica(none); }},
        {"tblFiles", [&] { patient_->Files().Lista(); }, [&] { patient_->Files().Carica(none); }},
        {"tblEventi", [&] { patient_->Eventi().Lista(); }, [&] { patient_->Eventi().Carica(none); }},
        {"tblAppunti", [&] { patient_->Appunti().Lista(); }, [&] { patient_->Appunti().Carica(none); }},
        {"tblVisite", [&] { patient_->VisiteAmbDom().Lista(); }, [&] { patient_->VisiteAmbDom().Carica(none); }},
        {"tblScadenze", [&] { patient_->scadenze().Lista(); }, [&] { patient_->scadenze().Carica(none); }},
        {"tblDati", [&] { data.Lista(none, true); }, [&] { data.Carica(none); }},
        {"tblUtenti", [&] { users.Lista(); }, [&] { users.byCode(none); }},
        {"tblPazienti", [&] { sql.OpenRecordset(QStringLiteral("select * from tessara.tblPazienti")); },
         [&] { patient_->Init(none); }},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.table);
        const QString table = QLatin1String(c.table);
        EXPECT_NO_THROW(c.all());
        EXPECT_NO_THROW(c.one());
        place_.execute(QStringLiteral("alter table %1 rename to altrove").arg(table));
        EXPECT_THROW(c.all(), host::HostError);
        EXPECT_THROW(c.one(), host::HostError);
        place_.execute(QStringLiteral("alter table altrove rename to %1").arg(table));
        EXPECT_NO_THROW(c.all());
    }
}
