#include "desk/report/ReportLogo.h"

#include "desk/report/ReportElement.h"
#include "platform/Files.h"
#include "platform/SpecialFolders.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageReader>

namespace desk {

namespace {

constexpr int DRAWING_PIXELS = 1200; // Width at which drawings are turned into pictures: enough for paper.
constexpr qsizetype MOST_BYTES = 20 * 1024 * 1024;

QString pathOf(const QString& file) {
    const QString plain = platform::files::resolve(file);
    if (QFileInfo(plain).isAbsolute()) return plain;
    const QString folder = platform::specialFolder(platform::CSIDL_APPDATA);
    return platform::files::resolve(folder + QStringLiteral("/Lumetra/Tessara 5000 V6/") + file);
}

QByteArray contentOf(const ReportElement& element) {
    if (!element.text.isEmpty()) return QByteArray::fromBase64(element.text.toLatin1());
    const QString file = element.value("file");
    if (file.isEmpty()) return {};
    return platform::files::read(pathOf(file)).value_or(QByteArray());
}

} // namespace

QImage readReportLogo(const ReportElement& element) {
    QByteArray content = contentOf(element);
    if (content.isEmpty() || content.size() > MOST_BYTES) return {};
    QBuffer buffer(&content);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    if (reader.format().startsWith("svg")) {
        const QSize size = reader.size();
        if (size.isEmpty()) return {};
        reader.setScaledSize(size.scaled(DRAWING_PIXELS, DRAWING_PIXELS, Qt::KeepAspectRatio));
    }
    return reader.read();
}

} // namespace desk
