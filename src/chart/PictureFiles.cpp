#include "chart/PictureFiles.h"

#include "platform/Files.h"

#include <QCache>
#include <QFileInfo>
#include <QHash>
#include <QImageReader>
#include <algorithm>

namespace {

constexpr qint64 LARGEST_FILE = 8 << 20;
constexpr qint64 LARGEST_DRAWING = 1 << 20; ///< Bytes of an SVG: its parts are drawn one by one.
constexpr qint64 LARGEST_PIXELS = 16'000'000;
constexpr int KEPT_KIB = 48 * 1024;

bool isDrawing(const QImageReader& reader) {
    return reader.format().startsWith("svg");
}

/// The size asked for, or an empty one when the file had better not be read.
QSize readableSize(QImageReader& reader, const QString& file) {
    const qint64 bytes = QFileInfo(file).size();
    if (bytes <= 0 || bytes > LARGEST_FILE) return {};
    if (isDrawing(reader) && (bytes > LARGEST_DRAWING || reader.format() == "svgz")) return {};
    const QSize asked = reader.size();
    if (asked.isEmpty()) return {};
    const qint64 pixels = qint64{asked.width()} * asked.height();
    return isDrawing(reader) || pixels <= LARGEST_PIXELS ? asked : QSize();
}

QPixmap read(const QString& path, const QSize& size) {
    const QString file = platform::files::resolve(path);
    QImageReader reader(file);
    const QSize asked = readableSize(reader, file);
    if (asked.isEmpty()) return {};
    reader.setScaledSize(asked.scaled(size, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)));
    return QPixmap::fromImage(reader.read());
}

} // namespace

QPixmap loadPicture(const QString& path, const QSize& size, qreal ratio) {
    if (path.isEmpty() || size.isEmpty()) return {};
    static QCache<QString, QPixmap> kept(KEPT_KIB);
    const QSize pixels = size * ratio;
    const QString key = QStringLiteral("%1|%2x%3|%4").arg(path).arg(pixels.width()).arg(pixels.height()).arg(ratio);
    if (const QPixmap* known = kept.object(key)) return *known;
    QPixmap picture = read(path, pixels);
    if (picture.isNull()) return picture; // the practice may put the file there yet
    picture.setDevicePixelRatio(ratio);
    const auto kib = static_cast<qint64>(picture.width()) * picture.height() * 4 / 1024;
    kept.insert(key, new QPixmap(picture), static_cast<int>(std::max<qint64>(kib, 1)));
    return picture;
}

QSize pictureSize(const QString& path) {
    static QHash<QString, QSize> known;
    const auto found = known.constFind(path);
    if (found != known.cend()) return *found;
    const QString file = platform::files::resolve(path);
    QImageReader reader(file);
    const QSize size = readableSize(reader, file);
    if (!size.isEmpty()) known.insert(path, size);
    return size;
}
