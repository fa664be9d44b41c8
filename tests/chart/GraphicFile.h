#pragma once

#include "chart/clsGraphical.h"
#include "host/context.h"
#include "platform/Files.h"
#include "support/Text.h"

#include <QImage>
#include <QTemporaryDir>

/// A Graphical.xml of its own with real pictures beside it; "[app.path]" is its folder for its lifetime.
class GraphicFile {
public:
    GraphicFile()
        : previousPath_(sAppPath) {
        sAppPath = folder_.path();
    }
    ~GraphicFile() { sAppPath = previousPath_; }
    GraphicFile(const GraphicFile&) = delete;
    GraphicFile& operator=(const GraphicFile&) = delete;

    bool load(const QByteArray& tooths, const QByteArray& inEvidenza = {}, const QByteArray& status = {}) {
        const QString file = folder_.filePath(QStringLiteral("Graphical.xml"));
        platform::files::writeAtomically(file, "<grafica><tooths>" + tooths + "</tooths><inEvidenza>" + inEvidenza +
                                                   "</inEvidenza><status>" + status + "</status></grafica>");
        return graphical_.Init(file);
    }
    /// "[app.path]\NAME.png", after making that picture.
    QByteArray picture(const char* name, const QSize& size = QSize(20, 10)) {
        QImage image(size, QImage::Format_ARGB32);
        image.fill(Qt::blue);
        image.save(path(name));
        return QByteArray("[app.path]\\") + name + ".png";
    }
    QString path(const char* name) const { return folder_.filePath(fileName(name)); }
    QString shown(const char* name) const { return folder_.path() + u'\\' + fileName(name); } ///< As look-ups give it.
    clsGraphical& graphical() { return graphical_; }
    QString folder() const { return folder_.path(); }

private:
    static QString fileName(const char* name) { return QString::fromLatin1(name) + QStringLiteral(".png"); }

    QTemporaryDir folder_;
    clsGraphical graphical_;
    QString previousPath_;
};
