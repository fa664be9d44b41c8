#include "desk/data/FileNames.h"

#include "platform/Regional.h"

#include <QRegularExpression>

namespace desk {

namespace {

constexpr qsizetype LONGEST_NAME = 200; ///< Bytes; the usual limit of 255 leaves room for a program's own suffixes.
constexpr qsizetype LONGEST_EXTENSION = 20;

QString lastPart(const QString& path) {
    const qsizetype slash = qMax(path.lastIndexOf(QLatin1Char('/')), path.lastIndexOf(QLatin1Char('\\')));
    return path.mid(slash + 1);
}

/// Devices of Windows, which are no files under any extension.
bool isReserved(const QString& name) {
    static const QRegularExpression devices(
        QRegularExpression::anchoredPattern(QStringLiteral("(con|prn|aux|nul|com[0-9]|lpt[0-9]) *(\\..*)?")),
        QRegularExpression::CaseInsensitiveOption);
    return devices.match(name).hasMatch();
}

QString shortened(const QString& name) {
    const qsizetype dot = name.lastIndexOf(QLatin1Char('.'));
    const bool hasExtension = dot > 0 && name.size() - dot <= LONGEST_EXTENSION;
    const QString extension = hasExtension ? name.mid(dot) : QString();
    QString base = hasExtension ? name.left(dot) : name;
    const qsizetype room = LONGEST_NAME - extension.toUtf8().size();
    while (base.toUtf8().size() > room)
        base.chop(base.size() > 1 && base.back().isLowSurrogate() ? 2 : 1);
    return base + extension;
}

} // namespace

QString safeFileName(const QString& stored) {
    static const QRegularExpression forbidden(QStringLiteral("[\\x{0}-\\x{1f}\\x{7f}-\\x{9f}<>:\"|?*]"));
    QString name = lastPart(stored).remove(forbidden).trimmed();
    while (name.endsWith(QLatin1Char('.')) || name.endsWith(QLatin1Char(' ')))
        name.chop(1);
    if (name.isEmpty()) return QStringLiteral("file");
    if (isReserved(name)) name.prepend(QLatin1Char('_'));
    return shortened(name);
}

QString fileSizeText(qint64 bytes) {
    constexpr double step = 1024;
    if (bytes < 1024) return QStringLiteral("%1 byte").arg(bytes);
    const double kilobytes = static_cast<double>(bytes) / step;
    if (kilobytes < step)
        return platform::regional().format(kilobytes, QStringLiteral("##,##0.0")) + QStringLiteral(" KB");
    return platform::regional().format(kilobytes / step, QStringLiteral("##,##0.0")) + QStringLiteral(" MB");
}

} // namespace desk
