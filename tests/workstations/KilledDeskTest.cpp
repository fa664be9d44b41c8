#include "Workstation.h"

#include "support/Text.h"

#include <QDirIterator>
#include <QFileInfo>

namespace {

/// Whether nobody but the owner has any right on it.
bool ownersAlone(const QString& path) {
    return !(QFile::permissions(path) & QFile::Permissions(0x0077));
}

/// What lies below a folder and could be read or entered by others.
QStringList open(const QString& folder) {
    QStringList found;
    for (QDirIterator all(folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
         all.hasNext();) {
        const QString path = all.next();
        if (!ownersAlone(path)) found << path;
    }
    return found;
}

} // namespace

// The real program on a practice of its own: what it writes is its user's alone, under whatever habits it was started,
// and what it leaves when it is killed goes at the next start.
TEST(KilledDeskTest, LeavesNothingForOthersToReadAndNothingForEver) {
    const QTemporaryDir practice;
    const QString temporary = practice.filePath(u8("tmp"));
    const QString mark = practice.filePath(u8("pronto"));
    ASSERT_TRUE(QDir().mkpath(temporary));
    ASSERT_TRUE(platform::files::writeAtomically(practice.filePath(u8("lettera.txt")), "Gentile collega"));
    const auto start = [&](QProcess& desk, const QByteArray& script) {
        const QString file = practice.filePath(u8("lavoro.txt"));
        EXPECT_TRUE(platform::files::writeAtomically(file, script));
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u8("QT_QPA_PLATFORM"), u8("offscreen"));
        environment.insert(u8("XDG_RUNTIME_DIR"), practice.path());
        environment.insert(u8("TMPDIR"), temporary);
        desk.setProcessEnvironment(environment);
        desk.setProcessChannelMode(QProcess::MergedChannels);
        desk.start(places::app("/tessara"),
                   {u8("--demo"), u8("--db"), u8("sqlite:") + practice.filePath(u8("dati/studio.db")),
                    u8("--config-dir"), practice.filePath(u8("config")), u8("--scenario"), file, u8("--out"),
                    practice.filePath(u8("out"))});
        EXPECT_TRUE(desk.waitForStarted());
    };
    ASSERT_TRUE(QDir().mkpath(practice.filePath(u8("dati"))));
    {
        QProcess desk;
        start(desk,
              "patient RSSMRA80A01H501U\nwindow frmAmbulatorio\npress \"File allegati\"\nfile \"../lettera.txt\"\n"
              "click cbNuovoFile\nwindow frmEditFile\nclick cbConferma\nwindow frmAmbulatorio\nselect rcFiles 0\n"
              "answer ok\nclick cbEstraiFile\nfile \"salvata.txt\"\nclick cbSalvaFile\npress CRVL0301\n"
              "touch ../pronto\nwait-file ../mai\n");
        QElapsedTimer waiting;
        waiting.start();
        while (!QFile::exists(mark) && desk.state() == QProcess::Running && !waiting.hasExpired(60000))
            desk.waitForReadyRead(50);
        ASSERT_TRUE(QFile::exists(mark)) << desk.readAll().toStdString();
        desk.kill();
        ASSERT_TRUE(desk.waitForFinished());
    }
    const auto extracted = [&] {
        QDirIterator files(temporary, {u8("lettera.txt")}, QDir::Files, QDirIterator::Subdirectories);
        return files.hasNext();
    };
    EXPECT_TRUE(extracted()) << "it was killed before it could tidy up";
    for (const char* where : {"tmp", "dati", "config", "out"})
        EXPECT_EQ(open(practice.filePath(u8(where))).join(u'\n').toStdString(), "") << where;

    QProcess desk;
    start(desk, "patient RSSMRA80A01H501U\n");
    ASSERT_TRUE(desk.waitForFinished(60000));
    EXPECT_EQ(desk.exitCode(), 0) << desk.readAll().toStdString();
    EXPECT_FALSE(extracted());
}
