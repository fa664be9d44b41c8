#include "ClinicalDesk.h"

#include "desk/clinical/ShowFile.h"
#include "desk/data/FileNames.h"
#include "desk/data/PatientFiles.h"
#include "platform/Files.h"
#include "support/FullDisk.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QSet>

namespace {

// The sanitizer keeps freed memory apart, which hides what the program itself needs.
#ifdef __SANITIZE_ADDRESS__
constexpr bool MEMORY_TELLS = false;
#else
constexpr bool MEMORY_TELLS = true;
#endif

/// Most memory that this process has ever held, in kilobytes.
qint64 peakMemory() {
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly)) return 0;
    for (const QByteArray& line : status.readAll().split('\n'))
        if (line.startsWith("VmHWM:")) return line.mid(6).simplified().split(' ').first().toLongLong();
    return 0;
}

} // namespace

class FileRoom : public ClinicalDesk {
protected:
    FileRoom() {
        before_ = desk::installSystemOpener([this](const QString& path) {
            opened_ << path;
            return true;
        });
        EXPECT_TRUE(desk_->pressCommand(QStringLiteral("File allegati")));
    }
    ~FileRoom() override { desk::installSystemOpener(before_); }

    QString onDisk(const char* name, const QByteArray& content) {
        const QString path = folder_.filePath(QString::fromUtf8(name));
        EXPECT_TRUE(platform::files::writeAtomically(path, content));
        return path;
    }
    void add(const QString& path) {
        dialogs_.file = path;
        whenModal("frmEditFile", [](QWidget& window) { press(window, "cbConferma"); });
        click("cbNuovoFile");
    }
    bool insideTemp(const QString& path) {
        const QString real = QFileInfo(path).canonicalFilePath();
        return !real.isEmpty() &&
               real.startsWith(QFileInfo(host().Utente().TempDir()).canonicalFilePath() + QLatin1Char('/'));
    }

    desk::SystemOpener before_;
    QStringList opened_;
};

TEST_F(FileRoom, AFileIsAddedShownDescribedExtractedAndDeleted) {
    add(onDisk("lettera d'invio.txt", "Gentile collega, già visto"));
    ASSERT_EQ(grid("rcFiles").rowCount(), 1);
    EXPECT_EQ(cell("rcFiles", 0, 1), QStringLiteral("lettera d'invio"));
    EXPECT_EQ(cell("rcFiles", 0, 2), QStringLiteral("lettera d'invio.txt"));
    EXPECT_EQ(cell("rcFiles", 0, 3), QStringLiteral("27 byte"));

    click("cbApriFile");
    auto* viewer = control<QDialog>("frmVisualizzaFile");
    EXPECT_EQ(viewer->findChild<QPlainTextEdit*>()->toPlainText(), QStringLiteral("Gentile collega, già visto"));
    viewer->close();

    whenModal("frmEditFile", [](QWidget& window) {
        paste(window, "tbDescrizione", QStringLiteral("Lettera"));
        press(window, "cbConferma");
    });
    click("cbModificaFile");
    EXPECT_EQ(stored(QStringLiteral("Descrizione"), QStringLiteral("tblFiles")),
              QStringList{QStringLiteral("Lettera")});

    click("cbEstraiFile");
    ASSERT_EQ(dialogs_.messages.size(), 1);
    EXPECT_TRUE(dialogs_.messages.first().contains(host().Utente().TempDir()));

    dialogs_.file = folder_.filePath(QStringLiteral("di già.txt"));
    for (const char* before : {"", "un altro testo, più lungo di quello che viene"}) {
        if (*before) onDisk("di già.txt", before);
        click("cbSalvaFile");
        EXPECT_EQ(platform::files::read(dialogs_.file), QByteArray("Gentile collega, già visto"));
    }
    EXPECT_EQ(dialogs_.messages.size(), 1);
    dialogs_.file = folder_.filePath(QStringLiteral("manca/copia.txt"));
    click("cbSalvaFile");
    EXPECT_TRUE(dialogs_.messages.value(1).startsWith(QStringLiteral("Il file non può essere salvato")));
}

TEST_F(FileRoom, AFullDiskIsToldAndTheFileThatWasThereStays) {
    add(onDisk("referto.txt", QByteArray(5000, 'r'))); // less than a buffer holds
    dialogs_.file = onDisk("copia.txt", "quello di prima");
    const FullDisk disk(4096);
    click("cbSalvaFile");
    ASSERT_EQ(dialogs_.messages.size(), 1);
    EXPECT_TRUE(dialogs_.messages.first().startsWith(QStringLiteral("Il file non può essere salvato")));
    EXPECT_EQ(platform::files::read(dialogs_.file), QByteArray("quello di prima"));
    EXPECT_EQ(patient().Files().EstraiFile(patient().Files().Lista().first().ID), QString());
}

TEST_F(FileRoom, ADeletedFileTakesItsEntriesInTheDiaryAlong) {
    add(onDisk("lettera.txt", "Gentile collega"));
    const QString id = patient().Files().Lista().first().ID;
    for (const QString& file : {id, QString(), id}) {
        host::Evento entry{{}, QStringLiteral("01/02/2026"), QStringLiteral("voce ") + file.left(1), file};
        ASSERT_TRUE(patient().Eventi().Salva(entry));
    }
    dialogs_.answers = {platform::Answer::No};
    click("cbEliminaFile");
    EXPECT_EQ(dialogs_.messages.value(0).count(QStringLiteral("Anche la voce del diario del 01/02/2026")), 2);
    EXPECT_EQ(grid("rcFiles").rowCount(), 1);

    click("cbEliminaFile");
    settle();
    EXPECT_EQ(grid("rcFiles").rowCount(), 0);
    ASSERT_TRUE(desk_->pressCommand(QStringLiteral("Diario clinico")));
    EXPECT_EQ(grid("rcEventi").rowCount(), 1);
    EXPECT_EQ(stored(QStringLiteral("ID"), QStringLiteral("tblFiles")), QStringList());
    EXPECT_EQ(stored(QStringLiteral("descrizione"), QStringLiteral("tblEventi")), QStringList{QStringLiteral("voce ")});
}

TEST_F(FileRoom, PicturesHaveAWindowAndTheRestGoesToTheSystem) {
    const QString picture = folder_.filePath(QStringLiteral("panoramica.png"));
    ASSERT_TRUE(QImage(1600, 800, QImage::Format_Grayscale8).save(picture));
    const struct {
        QString path;
        bool own;
    } cases[] = {{picture, true},
                 {onDisk("referto.pdf", "%PDF-1.4\n%\xE2\xE3\xCF\xD3"), false},
                 {onDisk("guasta.png", "\x89PNG\r\n\x1a\n\0\0\0\0"), false},
                 {onDisk("scan.bin", QByteArray("\0\1\2", 3)), false},
                 {onDisk("latino.txt", "perch\xE9"), true}};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.path.toStdString());
        opened_.clear();
        QString id;
        ASSERT_TRUE(patient().Files().SalvaFile(id, QStringLiteral("x"), each.path));
        patient().Files().Visualizza(id);
        auto* viewer = desk_->window()->findChild<QDialog*>(QStringLiteral("frmVisualizzaFile"));
        EXPECT_EQ(viewer != nullptr, each.own);
        EXPECT_EQ(opened_.size(), each.own ? 0 : 1);
        if (auto* image = viewer ? viewer->findChild<QLabel*>(QStringLiteral("laImmagine")) : nullptr) {
            EXPECT_NEAR(image->pixmap().width(), viewer->width(), 40) << "fills the window";
            press(*viewer, "cbReale");
            EXPECT_EQ(image->pixmap().width(), 1600);
            press(*viewer, "cbRiduci");
            EXPECT_EQ(image->pixmap().width(), 1280);
        }
        delete viewer;
    }
    desk::installSystemOpener([](const QString&) { return false; });
    QString id;
    ASSERT_TRUE(patient().Files().SalvaFile(id, QStringLiteral("x"), cases[3].path));
    patient().Files().Visualizza(id);
    EXPECT_TRUE(dialogs_.messages.value(0).startsWith(QStringLiteral("Nessun programma del sistema")));
}

TEST_F(FileRoom, WhateverItsNameAFileStaysInTheTemporaryFolder) {
    const struct {
        QString stored;
        QString extracted;
    } cases[] = {
        {QStringLiteral("foto.scan.jpg"), QStringLiteral("foto.scan.jpg")},
        {QStringLiteral("../../fuga.jpg"), QStringLiteral("fuga.jpg")},
        {QStringLiteral("/etc/passwd"), QStringLiteral("passwd")},
        {QStringLiteral("C:\\Windows\\system.ini"), QStringLiteral("system.ini")},
        {QStringLiteral(".."), QStringLiteral("file")},
        {QStringLiteral("x/.."), QStringLiteral("file")},
        {QStringLiteral(" . "), QStringLiteral("file")},
        {QString(), QStringLiteral("file")},
        {QStringLiteral("a") + QChar(0) + QStringLiteral("b\n.txt"), QStringLiteral("ab.txt")},
        {QStringLiteral("CON"), QStringLiteral("_CON")},
        {QStringLiteral("nul.txt"), QStringLiteral("_nul.txt")},
        {QStringLiteral("console.txt"), QStringLiteral("console.txt")},
        {QStringLiteral("dente?*<1>|.png"), QStringLiteral("dente1.png")},
        {QStringLiteral("x").repeated(500) + QStringLiteral(".dcm"),
         QStringLiteral("x").repeated(196) + QStringLiteral(".dcm")},
        {QStringLiteral("🦷").repeated(200), QStringLiteral("🦷").repeated(50)},
    };
    QString id;
    ASSERT_TRUE(patient().Files().SalvaFile(id, QStringLiteral("x"), onDisk("a.txt", "contenuto")));
    QSet<QString> paths;
    for (const auto& each : cases) {
        SCOPED_TRACE(each.stored.toStdString());
        EXPECT_EQ(desk::safeFileName(each.stored), each.extracted);
        host().DB().Execute(
            QStringLiteral("update tessara.tblFiles set file = '%1'").arg(QString(each.stored).remove(QChar(0))));
        for (int copy = 0; copy < 2; ++copy) {
            const QString path = patient().Files().EstraiFile(id);
            EXPECT_TRUE(insideTemp(path)) << path.toStdString();
            EXPECT_FALSE(paths.contains(path)) << "an extraction that is being worked on";
            EXPECT_EQ(platform::files::read(path), QByteArray("contenuto"));
            paths.insert(path);
        }
    }
}

TEST_F(FileRoom, TooLargeOrMissingFilesAreRefusedWithTheReason) {
    const QString large = folder_.filePath(QStringLiteral("volume.dcm"));
    QFile sparse(large);
    ASSERT_TRUE(sparse.open(QIODevice::WriteOnly) && sparse.resize(desk::PatientFiles::largest + 1));
    const struct {
        QString path;
        const char* complaint;
    } cases[] = {{large, "fino a 500,0 MB"},
                 {folder_.filePath(QStringLiteral("manca.txt")), "non esiste"},
                 {folder_.path(), "non esiste"}};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.complaint);
        dialogs_.messages.clear();
        dialogs_.file = each.path;
        whenModal("frmEditFile", [](QWidget& window) {
            press(window, "cbConferma");
            EXPECT_TRUE(window.isVisible());
            press(window, "cbAnnulla");
        });
        click("cbNuovoFile");
        EXPECT_TRUE(dialogs_.messages.value(0).contains(QString::fromUtf8(each.complaint)))
            << dialogs_.messages.value(0).toStdString();
        QString id;
        EXPECT_FALSE(patient().Files().SalvaFile(id, QStringLiteral("x"), each.path));
        EXPECT_EQ(id, QString());
    }
    EXPECT_EQ(stored(QStringLiteral("ID"), QStringLiteral("tblFiles")), QStringList());
}

TEST_F(FileRoom, TwoHundredMegabytesPassThroughAFewOfMemory) {
    constexpr qint64 SIZE = 200LL * 1024 * 1024;
    const QString path = folder_.filePath(QStringLiteral("tac.dcm"));
    QFile scan(path);
    ASSERT_TRUE(scan.open(QIODevice::WriteOnly) && scan.resize(SIZE) && scan.seek(SIZE - 4));
    ASSERT_EQ(scan.write("fine"), 4);
    scan.close();
    const qint64 before = peakMemory();
    add(path);
    ASSERT_EQ(grid("rcFiles").rowCount(), 1);
    EXPECT_EQ(cell("rcFiles", 0, 3), QStringLiteral("200,0 MB"));
    const QString id = patient().Files().Lista().first().ID;
    QFile copy(patient().Files().EstraiFile(id));
    if (MEMORY_TELLS) {
        EXPECT_LT(peakMemory() - before, 64 * 1024);
    }
    ASSERT_TRUE(copy.open(QIODevice::ReadOnly));
    EXPECT_EQ(copy.size(), SIZE);
    ASSERT_TRUE(copy.seek(SIZE - 4));
    EXPECT_EQ(copy.readAll(), QByteArray("fine"));

    // A shorter content in its place leaves nothing of the long one behind.
    QString same = id;
    ASSERT_TRUE(patient().Files().SalvaFile(same, QStringLiteral("x"), onDisk("breve.txt", "breve")));
    EXPECT_EQ(platform::files::read(patient().Files().EstraiFile(id)), QByteArray("breve"));
    EXPECT_EQ(stored(QStringLiteral("numero"), QStringLiteral("tblFileParti")), QStringList());
}
