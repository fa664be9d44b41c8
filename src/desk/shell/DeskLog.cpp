#include "desk/shell/DeskLog.h"

#include "desk/data/WorkFolders.h"
#include "platform/Clock.h"

#include <QDateTime>
#include <QFile>
#include <QMutex>
#include <QRegularExpression>
#include <cstdio>

namespace desk::log {

namespace {

constexpr qint64 FULL = 256 * 1024;
constexpr int KEPT = 3;

QString kept(int number) {
    return fileName() + QLatin1Char('.') + QString::number(number);
}

void rotate() {
    QFile::remove(kept(KEPT));
    for (int number = KEPT; number > 1; --number)
        QFile::rename(kept(number - 1), kept(number));
    QFile::rename(fileName(), kept(1));
}

/// One line, without what could tell of a patient.
QString clean(QString message) {
    static const QRegularExpression taxCode(
        QStringLiteral("\\b[A-Z]{6}[0-9A-Z]{2}[A-Z][0-9A-Z]{2}[A-Z][0-9A-Z]{3}[A-Z]\\b"),
        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression quoted(QStringLiteral("'[^']*'|(?<=: )\"[^\"]*\""));
    static const QRegularExpression lineBreaks(QStringLiteral("\\s*[\\r\\n]+\\s*"));
    message.replace(lineBreaks, QStringLiteral(" / "));
    message.replace(quoted, QStringLiteral("'…'"));
    return message.replace(taxCode, QStringLiteral("(codice fiscale)"));
}

/// A log that cannot be written is no reason to stop, and there is nobody to be told.
void append(const QString& message) {
    QFile file(fileName());
    if (file.size() >= FULL) rotate();
    if (!file.open(QIODevice::Append)) return;
    const QString time = platform::now().toString(Qt::ISODateWithMs);
    file.write((time + QLatin1Char(' ') + clean(message) + QLatin1Char('\n')).toUtf8());
}

void write(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    // What a platform without a window manager cannot do is no news.
    if (message.startsWith(QLatin1String("This plugin does not support"))) return;
    static QMutex oneAtATime;
    const QMutexLocker locker(&oneAtATime);
    const QString line = qFormatLogMessage(type, context, message);
    std::fprintf(stderr, "%s\n", qUtf8Printable(line));
    if (type != QtDebugMsg) append(line);
}

} // namespace

QString fileName() {
    return workFolders::log() + QStringLiteral("/tessara.log");
}

void install() {
    qInstallMessageHandler(write);
}

} // namespace desk::log
