#include "platform/Clock.h"
#include "platform/Dialogs.h"
#include "store/RecordFixture.h"
#include "store/modCifra.h"
#include "store/modLock.h"
#include "store/modProgressivi.h"
#include "store/modWorkspace.h"
#include "support/ScriptedDialogs.h"
#include "support/Text.h"

#include <QDir>
#include <QFile>
#include <atomic>
#include <functional>
#include <gtest/gtest.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

struct NoteItem : WorkspaceItem {
    QString text;
};

/// The smallest record type there can be: its memo is its text.
class NoteManager : public WorkspaceManager<NoteItem> {
public:
    explicit NoteManager(const QString& t1 = u8("NTA"))
        : WorkspaceManager(t1) {}
    void DeserializzaMEMO(NoteItem& item, const QString& memo) const override { item.text = memo; }

protected:
    QString SerializzaMEMO(const NoteItem& item) const override { return item.text; }
};

NoteItem noteItem(const char* year, const char* progressive, const char* data = "10/03/2025") {
    NoteItem item;
    item.anno = u8(year);
    item.progressivo = u8(progressive);
    item.Data = u8(data);
    item.descrizione = u8("Visita dell'età");
    item.text = u8("<testo è='€'/>");
    return item;
}

class RecordsTest : public RecordFixture {
protected:
    bool store(const char* t1, const char* idrif1) {
        QString id;
        return host_->patient->corvala().Salva(id, {u8("10/03/2025"), u8(idrif1), QString(), u8(t1), QString()});
    }
};

/// For its life the folder can be read but not written, by the administrator neither, whom no permission stops.
class ReadOnlyFolder {
public:
    explicit ReadOnlyFolder(const QString& folder)
        : folder_(folder)
        , administrator_(::geteuid() == 0) {
        QFile::setPermissions(folder_, QFile::Permissions(0x5555));
        if (administrator_) {
            EXPECT_EQ(::seteuid(65534), 0);
        }
    }
    ~ReadOnlyFolder() {
        if (administrator_) {
            EXPECT_EQ(::seteuid(0), 0);
        }
        QFile::setPermissions(folder_, QFile::Permissions(0x7700));
    }
    ReadOnlyFolder(const ReadOnlyFolder&) = delete;
    ReadOnlyFolder& operator=(const ReadOnlyFolder&) = delete;

private:
    QString folder_;
    bool administrator_;
};

} // namespace

TEST_F(RecordsTest, NumbersRunPerTypeAndYearAcrossPatients) {
    EXPECT_EQ(ProssimoProgressivo(u8("TRT"), u8("2025")), u8("0001"));
    ASSERT_TRUE(store("TRT", "2025-0007"));
    ASSERT_TRUE(store("TRT", "2025-0003"));
    ASSERT_TRUE(store("PRV", "2025-0050"));
    ASSERT_TRUE(store("TRT", "2024-0300"));
    EXPECT_EQ(ProssimoProgressivo(u8("TRT"), u8("2025")), u8("0008"));
    EXPECT_EQ(ProssimoProgressivo(u8("TRT"), u8("2024")), u8("0301"));
    EXPECT_EQ(ProssimoProgressivo(u8("TRT"), u8("2026")), u8("0001"));

    openPatient(addPatient("Bianchi"));
    EXPECT_EQ(ProssimoProgressivo(u8("TRT"), u8("2025")), u8("0008"));
    ASSERT_TRUE(store("FTT", "2025-0004BIS"));
    EXPECT_EQ(ProssimoProgressivo(u8("FTT"), u8("2025")), u8("0005"));

    EXPECT_TRUE(EsisteProgressivo(u8("TRT"), u8("2025-0007")));
    EXPECT_FALSE(EsisteProgressivo(u8("TRT"), u8("2025-0008")));
    EXPECT_FALSE(EsisteProgressivo(u8("PRV"), u8("2025-0007")));
}

TEST_F(RecordsTest, NumbersBeyondFourDigitsAndMalformedOnesKeepTheirKnownAnswers) {
    ASSERT_TRUE(store("TRT", "2025-9999"));
    EXPECT_EQ(ProssimoProgressivo(u8("TRT"), u8("2025")), u8("10000"));
    ASSERT_TRUE(store("TRT", "2025-10000")); // As text it is below 2025-9999.
    EXPECT_EQ(ProssimoProgressivo(u8("TRT"), u8("2025")), u8("10000"));
    for (const char* malformed : {"2030", "2031-0004-1", "2032-AB"}) {
        SCOPED_TRACE(malformed);
        ASSERT_TRUE(store("TRT", malformed));
        EXPECT_EQ(ProssimoProgressivo(u8("TRT"), u8(malformed).left(4)), u8("0001"));
    }
}

// Another workstation stores the same number between the look at it and the save.
TEST_F(RecordsTest, ANewRecordTakesTheNextNumberWhenItsOwnIsTakenMeanwhile) {
    class Plans : public NoteManager {
    public:
        Plans()
            : NoteManager(u8("TRT")) {}
        std::function<void(const NoteItem&)> meanwhile;

    protected:
        QString SerializzaMEMO(const NoteItem& item) const override {
            if (meanwhile) meanwhile(item);
            return item.progressivo;
        }
    } plans;
    NoteItem item = noteItem("2025", "0001");
    ASSERT_TRUE(store("TRT", "2025-0001"));
    int taken = 0;
    plans.meanwhile = [&](const NoteItem& composed) {
        if (++taken > 3) return;
        EXPECT_TRUE(store("TRT", qPrintable(composed.number().text())));
    };
    ASSERT_TRUE(plans.saveNew(item));
    EXPECT_EQ(item.progressivo, u8("0005"));
    EXPECT_EQ(plans.Carica(item.ID)->text, u8("0005")) << "the memo tells the number under which it stands";
    plans.meanwhile = {};
    EXPECT_TRUE(plans.Salva(item)) << "its own number is nobody else's";
    ASSERT_TRUE(store("TRT", "2024-0001BIS"));
    NoteItem twin = noteItem("2024", "0001BIS");
    ASSERT_TRUE(plans.saveNew(twin));
    EXPECT_EQ(twin.progressivo, u8("0002BIS")) << "the next number, and the suffix stays";
    ASSERT_TRUE(store("TRT", "2025-9999"));
    ASSERT_TRUE(store("TRT", "2025-10000"));
    NoteItem last = noteItem("2025", "9999");
    EXPECT_FALSE(plans.saveNew(last)) << "the numbers of the year are used up";

    place_.execute(QStringLiteral("alter table tblWorkspace rename to altrove"));
    NoteItem unread = noteItem("2025", "0001");
    EXPECT_FALSE(plans.saveNew(unread));
    EXPECT_THROW(ProssimoProgressivo(u8("TRT"), u8("2025")), host::HostError);
    EXPECT_THROW(plans.Carica(item.ID), host::HostError);
    for (int again = 0; again < 2; ++again)
        EXPECT_THROW(plans.Lista(), host::HostError) << "unread is not none, and is not kept";
    place_.execute(QStringLiteral("alter table altrove rename to tblWorkspace"));
    EXPECT_EQ(plans.Lista().size(), 9U);
    item.fault = u8("non letto per intero");
    EXPECT_FALSE(plans.Salva(item)) << "what was not read whole is never written over";
}

TEST_F(RecordsTest, ARecordComesBackAsItWasSaved) {
    NoteManager note;
    NoteItem item = noteItem("2025", "0004");
    ASSERT_TRUE(note.Salva(item));
    ASSERT_FALSE(item.ID.isEmpty());
    const auto back = note.Carica(item.ID);
    ASSERT_TRUE(back);
    EXPECT_EQ(back->ID, item.ID);
    EXPECT_EQ(back->anno, u8("2025"));
    EXPECT_EQ(back->progressivo, u8("0004"));
    EXPECT_EQ(back->Data, u8("10/03/2025"));
    EXPECT_EQ(back->descrizione, item.descrizione);
    EXPECT_EQ(back->text, item.text);

    const QString id = item.ID;
    item.text = u8("cambiato");
    ASSERT_TRUE(note.Salva(item));
    EXPECT_EQ(item.ID, id);
    EXPECT_EQ(note.Carica(id)->text, u8("cambiato"));
    EXPECT_FALSE(note.Carica(u8("inesistente")));

    NoteItem undated = noteItem("2025", "0005", "non una data");
    EXPECT_FALSE(note.Salva(undated)); // The host refuses the row.
    EXPECT_EQ(undated.ID, QString());
    host_->patient.reset();
    EXPECT_FALSE(note.Salva(item));
    EXPECT_FALSE(note.Carica(id));
}

TEST_F(RecordsTest, AListIsKeptUntilItIsRefreshed) {
    NoteManager note;
    NoteItem first = noteItem("2025", "0001");
    ASSERT_TRUE(note.Salva(first));
    ASSERT_TRUE(store("TRT", "2025-0001")); // Another type of the same patient.
    ASSERT_EQ(note.Lista().size(), 1U);
    EXPECT_TRUE(note.Lista().contains(first.ID));

    NoteItem second = noteItem("2025", "0002");
    ASSERT_TRUE(note.Salva(second));
    EXPECT_EQ(note.Lista().size(), 1U);
    note.Refresh();
    EXPECT_EQ(note.Lista().size(), 2U);

    EXPECT_FALSE(note.Elimina(*host_->patient, u8("inesistente")));
    EXPECT_TRUE(note.Elimina(*host_->patient, first.ID));
    EXPECT_EQ(note.Lista().size(), 1U); // A deletion empties the list by itself.
    EXPECT_FALSE(note.Carica(first.ID));
}

TEST_F(RecordsTest, AMalformedNumberStillLoads) {
    for (const char* number : {"senza numero", "2025-0001-2", ""}) {
        SCOPED_TRACE(number);
        ASSERT_TRUE(store("NTA", number));
    }
    NoteManager note; // the list is the manager's
    EXPECT_EQ(note.Lista().size(), 3U);
    for (const NoteItem& item : note.Lista())
        EXPECT_TRUE(item.anno.isEmpty());
}

TEST_F(RecordsTest, APeriodTakesBothItsDaysWhole) {
    EXPECT_EQ(periodQuery(u8("TRT"), QDate(2025, 3, 1), QDate(2025, 3, 31)),
              u8("Select * from ") + host_->Utente().idschema() +
                  u8(".tblWorkspace where data Between '2025-03-01 00:00:00' AND '2025-03-31 23:59:59' and "
                     "tiporecord=906 and t1='TRT'"));
    const QString longMemo = u8("perché € 🦷 ").repeated(400);
    NoteManager note;
    for (const char* day : {"28/02/2025", "01/03/2025", "31/03/2025", "01/04/2025"}) {
        NoteItem item = noteItem("2025", "0001", day);
        item.text = longMemo;
        ASSERT_TRUE(note.Salva(item));
    }
    const auto rows = host_->DB().OpenRecordset(periodQuery(u8("NTA"), QDate(2025, 3, 1), QDate(2025, 3, 31)));
    ASSERT_TRUE(rows);
    EXPECT_EQ(rows->RecordCount(), 2);
    EXPECT_EQ(rows->text(u8("m1")), longMemo);
    EXPECT_EQ(rows->value(u8("M1")).toString(), longMemo);
    EXPECT_EQ(host_->DB().OpenRecordset(periodQuery(u8("NTA"), QDate(), QDate(2025, 3, 31)))->RecordCount(), 4);
}

TEST_F(RecordsTest, ALockIsAFileThatOnlyItsRemovalEnds) {
    platform::setClock(QDateTime(QDate(2025, 3, 9), QTime(8, 5, 7)));
    EXPECT_FALSE(EsisteLock(u8("Trattamento"), u8("7F3A")));
    EXPECT_TRUE(RimuoviLock(u8("Trattamento"), u8("7F3A"))); // Nothing there to remove.
    EXPECT_TRUE(CreaLock(u8("Trattamento"), u8("7F3A")));
    platform::setClock(QDateTime(QDate(2026, 3, 9), QTime(8, 5, 7)));
    EXPECT_FALSE(CreaLock(u8("Trattamento"), u8("7F3A"))) << "it is somebody else's";
    platform::releaseClock();
    EXPECT_EQ(platform::files::read(path("DB/7F3A-Trattamento.lck")), QByteArray("09/03/2025 08:05:07"));
    EXPECT_TRUE(EsisteLock(u8("Trattamento"), u8("7F3A"))); // Age plays no part.
    EXPECT_FALSE(EsisteLock(u8("Fattura"), u8("7F3A")));
    EXPECT_FALSE(RimuoviLock(u8("Trattamento"), u8("7F3A")));
    EXPECT_FALSE(EsisteLock(u8("Trattamento"), u8("7F3A")));

    ASSERT_TRUE(QDir(path("DB")).removeRecursively());
    EXPECT_TRUE(CreaLock(u8("Trattamento"), u8("7F3A"))); // The shared folder is away: the work goes on without a lock.
    EXPECT_FALSE(EsisteLock(u8("Trattamento"), u8("7F3A")));
}

TEST_F(RecordsTest, OfManyWhoOpenOneRecordInTheSameInstantOneGetsTheLock) {
    for (int round = 0; round < 200; ++round) {
        const QString id = QString::number(round);
        std::atomic<int> ready = 0;
        std::atomic<int> got = 0;
        std::vector<std::thread> desks;
        for (int i = 0; i < 4; ++i) {
            desks.emplace_back([&] {
                for (++ready; ready < 4;)
                    ;
                if (CreaLock(u8("Fattura"), id)) ++got;
            });
        }
        for (std::thread& desk : desks)
            desk.join();
        ASSERT_EQ(got, 1) << round;
    }
}

TEST_F(RecordsTest, TheToolRemovesAllLocksButHiddenOnes) {
    ScriptedDialogs dialogs;
    EXPECT_TRUE(RimuoviTuttiLock());
    CreaLock(u8("Trattamento"), u8("1"));
    CreaLock(u8("Fattura"), u8("2"));
    ASSERT_TRUE(platform::files::writeAtomically(path("DB/.3-Fattura.lck"), "x"));
    ASSERT_TRUE(platform::files::writeAtomically(path("DB/listino.xml"), "x"));
    EXPECT_TRUE(RimuoviTuttiLock());
    EXPECT_EQ(QDir(path("DB")).entryList(QDir::Files | QDir::Hidden, QDir::Name),
              QStringList({u8(".3-Fattura.lck"), u8("listino.xml")}));
    EXPECT_TRUE(dialogs.heard.isEmpty());

    ASSERT_TRUE(QDir(path("DB")).removeRecursively());
    EXPECT_FALSE(RimuoviTuttiLock()) << "locks out of reach are not locks removed";
    ASSERT_EQ(dialogs.heard.size(), 1);
    EXPECT_TRUE(dialogs.heard.first().startsWith(
        u8("Tessara 5000. CORVALA|16|Attenzione! Errore critico in eliminazione LOCK!\r\nFile: ")));
}

TEST_F(RecordsTest, LocksLieInTheFolderHoweverItIsWrittenAndHaveItsRights) {
    const auto folders = QFile::Permissions(0x7770);
    ASSERT_TRUE(QFile::setPermissions(path("DB"), folders));
    for (const char* written : {"DB", "DB/", "db\\"}) {
        SCOPED_TRACE(written);
        oConfig->setDBPAth(path(written));
        CreaLock(u8("Fattura"), u8("1"));
        EXPECT_EQ(platform::files::list(path("DB"), u8("*")), QStringList{u8("1-Fattura.lck")});
        EXPECT_EQ(QFile::permissions(path("DB/1-Fattura.lck")) & QFile::Permissions(0x7077), QFile::Permissions(0x6060))
            << "the others of the practice may read and replace it";
        EXPECT_TRUE(RimuoviTuttiLock());
        EXPECT_FALSE(EsisteLock(u8("Fattura"), u8("1")));
    }
    EXPECT_EQ(platform::files::list(folder_.path(), u8("*.lck")), QStringList());
}

TEST_F(RecordsTest, AReadOnlyFolderTellsWhatCannotBeRemovedAndStopsNoWork) {
    QFile::setPermissions(folder_.path(), QFile::Permissions(0x7755));
    CreaLock(u8("Fattura"), u8("1"));
    CreaLock(u8("Fattura"), u8("2"));
    ScriptedDialogs dialogs;
    {
        const ReadOnlyFolder shared(path("DB"));
        CreaLock(u8("Trattamento"), u8("3"));
        EXPECT_FALSE(EsisteLock(u8("Trattamento"), u8("3")));
        EXPECT_TRUE(EsisteLock(u8("Fattura"), u8("1")));
        EXPECT_TRUE(dialogs.heard.isEmpty()) << "the work goes on without a lock and without a word";
        EXPECT_FALSE(RimuoviLock(u8("Fattura"), u8("1")));
        EXPECT_EQ(dialogs.heard, QStringList{u8("Tessara 5000|16|Attenzione! Errore critico in eliminazione LOCK "
                                                "Fattura!")});
        dialogs.heard.clear();
        EXPECT_FALSE(RimuoviTuttiLock());
        ASSERT_EQ(dialogs.heard.size(), 1) << "the first that fails ends it";
        const QString told = dialogs.heard.first();
        EXPECT_TRUE(told.startsWith(u8("Tessara 5000. CORVALA|16|Attenzione! Errore critico in eliminazione LOCK!\r\n"
                                       "File: 1-Fattura.lck\r\nErrore: ")));
        EXPECT_FALSE(told.endsWith(u8("Errore: ")));
    }
    EXPECT_TRUE(EsisteLock(u8("Fattura"), u8("1")));
    EXPECT_TRUE(RimuoviTuttiLock());
    EXPECT_FALSE(EsisteLock(u8("Fattura"), u8("1")));
    EXPECT_FALSE(EsisteLock(u8("Fattura"), u8("2")));
}

TEST_F(RecordsTest, SaltedTextsDifferAndComeBack) {
    const QString text = u8("segreto dell'età");
    EXPECT_NE(encryptText(text), encryptText(text));
    EXPECT_EQ(decryptText(encryptText(text)), text);
    EXPECT_EQ(encryptText(QString()), QString());
    EXPECT_EQ(decryptText(QString()), QString());
}
