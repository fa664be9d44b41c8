#include "chart/ToothBox.h"

#include "chart/PictureFiles.h"
#include "chart/PictureLabel.h"
#include "chart/StatusMark.h"
#include "chart/ToothPicture.h"
#include "platform/FormLayout.h"

#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

using platform::form::arrayName;

namespace {

constexpr int FRAME = 2;
constexpr int TWIPS_PER_PIXEL = 15;
constexpr int MARK_TWIPS_FROM_EDGE = 240;
constexpr QSize PICTURE(40, 84); ///< The box that offsets and picture sizes are meant for.
constexpr int MARK = 14;
constexpr double LARGEST_MARK = 1.7;

PictureLabel* layer(const QString& name, QWidget* parent) {
    auto* label = platform::form::named(new PictureLabel(parent), name);
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    label->hide();
    return label;
}

} // namespace

ToothBox::ToothBox(int index, QWidget* panel)
    : QFrame(panel)
    , index_(index) {
    setObjectName(arrayName("pbTooh", index));
    imTooth_ = platform::form::named(new ToothPicture(index, this), arrayName("imTooth", index));
    connect(imTooth_, &ToothPicture::clicked, this, [this] { emit clicked(index_); });
    connect(imTooth_, &ToothPicture::rightClicked, this, [this] { emit rightClicked(index_); });
    imTrt_ = {layer(arrayName("imTrt01", index), this), layer(arrayName("imTrt02", index), this),
              layer(arrayName("imTrt03", index), this)};
    imStatusLavori_ = layer(arrayName("imStatusLavori", index), this);
    laDente_ = platform::form::named(new QLabel(DenteDaIndice(index), panel), arrayName("laDente", index));
    laDente_->setAlignment(Qt::AlignCenter);
    describe();
}

QSize ToothBox::naturalSize(int index) {
    const QSize picture = isDeciduous(index) ? QSize(33, 69) : PICTURE;
    return picture + QSize(2 * FRAME, 2 * FRAME);
}

void ToothBox::setTooth(const ComposedTooth& tooth) {
    if (shown_ && tooth_ == tooth) return; // most teeth stay as they are when a row changes
    shown_ = true;
    tooth_ = tooth;
    imTooth_->setPicture(tooth.picture);
    imTooth_->setProperty("tag", tooth.situation);
    imTooth_->setToolTip(tooth.text);
    placeLayers();
    placeMark();
    describe();
}

void ToothBox::setMarked(bool marked) {
    if (marked_ == marked) return;
    marked_ = marked;
    describe();
    update();
}

void ToothBox::setCurrent(bool current) {
    if (current_ == current) return;
    current_ = current;
    update();
}

void ToothBox::placeLayers() {
    const double scale = double(imTooth_->height()) / PICTURE.height();
    for (std::size_t place = 0; place < imTrt_.size(); ++place) {
        const ToothLayer& shown = tooth_.layers[place];
        PictureLabel* label = imTrt_[place];
        label->setProperty("tag", shown.service);
        label->setVisible(!shown.service.isEmpty());
        if (shown.service.isEmpty()) {
            label->clearDrawing();
            continue;
        }
        const QSize size = pictureSize(shown.picture).boundedTo(2 * PICTURE) * scale;
        const QPoint offset(qRound(shown.left * scale / TWIPS_PER_PIXEL), qRound(shown.top * scale / TWIPS_PER_PIXEL));
        label->setDrawing(
            size, [file = shown.picture](const QSize& room, qreal ratio) { return loadPicture(file, room, ratio); });
        label->setGeometry(QRect(imTooth_->pos() + offset, size));
    }
}

void ToothBox::placeMark() {
    imStatusLavori_->setProperty("tag", tooth_.statusTag());
    imStatusLavori_->setVisible(tooth_.state != ToothState::None);
    if (tooth_.state == ToothState::None) return;
    const double scale = double(imTooth_->height()) / PICTURE.height();
    const QSize size = QSize(MARK, MARK) * std::min(scale, LARGEST_MARK); // a large tooth is there to be seen
    imStatusLavori_->setDrawing(size,
                                [file = tooth_.statePicture, state = tooth_.state](const QSize& room, qreal ratio) {
                                    const QPixmap own = loadPicture(file, room, ratio);
                                    return own.isNull() ? statusMark(state, room, ratio) : own;
                                });
    const int inset = qRound(MARK_TWIPS_FROM_EDGE * scale / TWIPS_PER_PIXEL);
    const int top = isUpper(index_) ? height() - size.height() - inset : inset;
    imStatusLavori_->setGeometry(QRect(QPoint((width() - size.width()) / 2, top), size));
}

void ToothBox::describe() {
    QString name = QStringLiteral("Dente %1").arg(DenteDaIndice(index_));
    if (!tooth_.text.isEmpty()) name += QStringLiteral(", ") + tooth_.text;
    if (tooth_.state != ToothState::None)
        name += QStringLiteral(", %1 %2").arg(tooth_.stateService, statusText(tooth_.state));
    if (marked_) name += QStringLiteral(", evidenziato");
    setAccessibleName(name);
    imTooth_->setAccessibleName(name);
}

void ToothBox::resizeEvent(QResizeEvent* event) {
    QFrame::resizeEvent(event);
    imTooth_->setGeometry(rect().adjusted(FRAME, FRAME, -FRAME, -FRAME));
    placeLayers();
    placeMark();
}

void ToothBox::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const int width = marked_ ? 2 : 1;
    painter.setPen(QPen(marked_ ? QColor(255, 0, 0) : QColor(128, 128, 128), width));
    painter.setBrush(marked_ ? QColor(255, 240, 240) : QColor(255, 255, 255));
    painter.setRenderHint(QPainter::Antialiasing);
    const double inset = width / 2.0;
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), 4, 4);
    if (!current_) return;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 1.5, Qt::DotLine));
    painter.drawRoundedRect(QRectF(rect()).adjusted(2.5, 2.5, -2.5, -2.5), 3, 3);
}

void ToothBox::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) emit clicked(index_);
    if (event->button() == Qt::RightButton) emit rightClicked(index_);
}
