#include "DeskFixture.h"

#include "desk/shell/DeskLog.h"
#include "host/Step.h"

#include <QFileInfo>
#include <QTemporaryDir>
#include <stdexcept>

namespace {

/// The desk's messages go to the log of a home of their own while the test runs.
class DeskLog : public testing::Test {
protected:
    DeskLog() {
        qputenv("XDG_DATA_HOME", QFile::encodeName(home.path()));
        former = qInstallMessageHandler(nullptr);
        desk::log::install();
        testing::internal::CaptureStderr();
    }
    ~DeskLog() override {
        testing::internal::GetCapturedStderr();
        qInstallMessageHandler(former);
        before.isNull() ? qunsetenv("XDG_DATA_HOME") : qputenv("XDG_DATA_HOME", before);
    }
    static QString read(const QString& name) {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

    QByteArray before = qgetenv("XDG_DATA_HOME");
    QTemporaryDir home;
    QtMessageHandler former = nullptr;
};

} // namespace

TEST_F(DeskLog, KeepsWhatAStepSwallowedWithoutThePatient) {
    step([] {
        throw std::runtime_error("lettura non riuscita di 'Rossi Maria',\r\nRSSMRA80A41H501U: \"nota riservata\"");
    });
    step([] { throw 7; });
    const QStringList lines = read(desk::log::fileName()).split(u'\n', Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 2) << "one line each, whatever the text holds";
    EXPECT_TRUE(lines[0].contains(QStringLiteral("CORVALA: lettura non riuscita di"))) << lines[0].toStdString();
    for (const char* secret : {"Rossi", "RSSMRA", "riservata"})
        EXPECT_FALSE(lines[0].contains(QLatin1String(secret))) << lines[0].toStdString();
    const QFile::Permissions folder = QFile::permissions(QFileInfo(desk::log::fileName()).path());
    EXPECT_FALSE(folder & (QFile::ReadOther | QFile::ReadGroup | QFile::ExeOther));
}

TEST_F(DeskLog, TurnsOverAndThrowsTheOldestAway) {
    const QByteArray half(128 * 1024, 'x');
    for (int i = 0; i < 12; ++i)
        qWarning("%d %s", i, half.constData());
    EXPECT_TRUE(read(desk::log::fileName()).contains(QStringLiteral(" 11 xx")));
    EXPECT_TRUE(read(desk::log::fileName() + QStringLiteral(".1")).contains(QStringLiteral(" 9 xx")));
    EXPECT_TRUE(read(desk::log::fileName() + QStringLiteral(".3")).contains(QStringLiteral(" 5 xx")));
    EXPECT_FALSE(QFile::exists(desk::log::fileName() + QStringLiteral(".4")));
}
