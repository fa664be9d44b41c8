// Renders the pictures of the commands from their drawings: render_pictures DRAWINGS OUT. Exits with 1 at the first
// drawing that cannot be read or picture that cannot be written.

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QTextStream>

namespace {

/// As large as the drawing says: twice as large as it ever stands in a ribbon at 100%, so that it is sharp at 200% too.
bool render(const QString& drawing, const QString& picture) {
    QSvgRenderer renderer(drawing);
    if (!renderer.isValid()) return false;
    QImage image(renderer.defaultSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.end();
    return image.save(picture);
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 3) return 1;
    const QDir drawings(arguments[1]);
    const QDir out(arguments[2]);
    for (const QFileInfo& drawing : drawings.entryInfoList({QStringLiteral("*.svg")}, QDir::Files)) {
        const QString picture = out.filePath(drawing.completeBaseName() + QStringLiteral(".png"));
        if (out.mkpath(QStringLiteral(".")) && render(drawing.filePath(), picture)) continue;
        QTextStream(stderr) << drawing.filePath() << ": cannot be rendered\n";
        return 1;
    }
    return 0;
}
