#include "desk/clinical/FileViewer.h"

#include "platform/FormLayout.h"
#include "platform/FormRegistry.h"
#include "platform/SingleByteText.h"

#include <QEvent>
#include <QFile>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QImageReader>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QStringDecoder>
#include <QVBoxLayout>
#include <cmath>

namespace desk {

namespace {

constexpr qint64 LONGEST_TEXT = 4 * 1024 * 1024;
constexpr double STEP = 1.25;
constexpr double SMALLEST = 0.05;
constexpr double LARGEST = 8;
constexpr double MOST_POINTS = 64e6; ///< Of an enlarged picture, all in memory at once.

QImage readPicture(const QString& path) {
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    return reader.read();
}

bool isPicture(const QString& path) {
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    return reader.canRead() && !reader.size().isEmpty() && reader.format() != "pdf";
}

/// Programs and documents of other kinds hold bytes that no text has.
bool isText(const QString& path) {
    QFile file(path);
    if (file.size() > LONGEST_TEXT || !file.open(QIODevice::ReadOnly)) return false;
    const QByteArray beginning = file.read(8192);
    if (beginning.startsWith("%PDF") || beginning.startsWith("{\\rtf")) return false;
    for (const char byte : beginning) {
        const auto code = static_cast<unsigned char>(byte);
        if (code < 32 && code != '\t' && code != '\n' && code != '\r' && code != '\f') return false;
    }
    return true;
}

QString readText(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return {};
    const QByteArray bytes = file.readAll();
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(bytes);
    return decoder.hasError() ? platform::fromSingleByte(bytes) : text;
}

} // namespace

bool FileViewer::canShow(const QString& path) {
    if (isPicture(path)) return !readPicture(path).isNull();
    return isText(path);
}

FileViewer::FileViewer(const QString& path, QWidget* parent)
    : QDialog(parent) {
    setObjectName(QStringLiteral("frmVisualizzaFile"));
    setWindowTitle(QFileInfo(path).fileName());
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(10, 10, 10, 10);
    column->setSpacing(10);
    if (isPicture(path)) picture_ = readPicture(path);
    resize(860, 640);
    if (picture_.isNull()) {
        buildText(path, *column);
    } else {
        buildPicture(*column);
    }
    platform::FormRegistry::add(this);
}

void FileViewer::buildText(const QString& path, QVBoxLayout& column) {
    auto* text = platform::form::named(new QPlainTextEdit(readText(path), this), QStringLiteral("tbTesto"));
    text->setReadOnly(true);
    text->setAccessibleName(QStringLiteral("Testo del file"));
    QPushButton* close = platform::form::button(QStringLiteral("cbChiudi"), QStringLiteral("&Chiudi"), this);
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::close);
    column.addWidget(text, 1);
    column.addLayout(platform::form::buttonRow({close}));
}

void FileViewer::buildPicture(QVBoxLayout& column) {
    canvas_ = platform::form::named(new QLabel(this), QStringLiteral("laImmagine"));
    canvas_->setAlignment(Qt::AlignCenter);
    canvas_->setAccessibleName(QStringLiteral("Immagine"));
    area_ = new QScrollArea(this);
    area_->setWidget(canvas_);
    area_->setWidgetResizable(true);
    area_->setBackgroundRole(QPalette::Dark);
    area_->viewport()->installEventFilter(this);
    column.addWidget(area_, 1);

    const auto add = [this](const char* name, const char16_t* caption, auto action) {
        QPushButton* button = platform::form::button(QLatin1String(name), QString::fromUtf16(caption), this);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, action);
        return button;
    };
    QPushButton* fit = add("cbAdatta", u"&Adatta", [this] { zoom(0); });
    QPushButton* whole = add("cbReale", u"&100%", [this] { zoom(1); });
    QPushButton* larger = add("cbIngrandisci", u"&Ingrandisci", [this] { zoom(shown() * STEP); });
    QPushButton* smaller = add("cbRiduci", u"&Riduci", [this] { zoom(shown() / STEP); });
    QPushButton* close = add("cbChiudi", u"&Chiudi", [this] { this->close(); });
    close->setDefault(true);
    column.addLayout(platform::form::buttonRow({fit, whole, larger, smaller, close}));
}

double FileViewer::shown() const {
    return canvas_->pixmap().deviceIndependentSize().width() / picture_.width();
}

void FileViewer::zoom(double factor) {
    const double points = devicePixelRatioF() * std::sqrt(double(picture_.width()) * picture_.height());
    const double largest = qBound(1.0, std::sqrt(MOST_POINTS) / points, LARGEST);
    zoom_ = factor == 0 ? 0 : qBound(SMALLEST, factor, largest);
    draw();
}

void FileViewer::draw() {
    const QSizeF room = area_->viewport()->size() - QSize(2, 2);
    const QSizeF whole = picture_.size();
    QSizeF size = zoom_ > 0 ? whole * zoom_ : whole;
    if (zoom_ == 0 && (whole.width() > room.width() || whole.height() > room.height()))
        size = whole.scaled(room, Qt::KeepAspectRatio);
    // In the points of the screen, of which a dense one has several for each of ours.
    const double density = devicePixelRatioF();
    const QSize points = (size * density).toSize().expandedTo(QSize(1, 1));
    QPixmap pixmap = QPixmap::fromImage(picture_.scaled(points, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    pixmap.setDevicePixelRatio(density);
    canvas_->setPixmap(pixmap);
}

// Not with the window: the room for the picture is known only after the layout.
bool FileViewer::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize && area_ && watched == area_->viewport() && zoom_ == 0) draw();
    return QDialog::eventFilter(watched, event);
}

} // namespace desk
