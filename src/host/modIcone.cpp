#include "host/modIcone.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace {

using Disegno = void (*)(QPainter&);

// Draws an icon at whatever size is asked, on a square of side 16, so that it is sharp at every scaling.
class MotoreDisegno : public QIconEngine {
public:
    explicit MotoreDisegno(Disegno disegno)
        : disegno_(disegno) {}
    QIconEngine* clone() const override { return new MotoreDisegno(disegno_); }
    void paint(QPainter* pittore, const QRect& area, QIcon::Mode modo, QIcon::State) override {
        const int lato = qMin(area.width(), area.height());
        pittore->save();
        pittore->setRenderHint(QPainter::Antialiasing);
        if (modo == QIcon::Disabled) pittore->setOpacity(0.35);
        pittore->translate(area.center() + QPointF(0.5, 0.5));
        pittore->scale(lato / 16.0, lato / 16.0);
        pittore->translate(-8, -8);
        disegno_(*pittore);
        pittore->restore();
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode modo, QIcon::State stato) override {
        QPixmap immagine(size);
        immagine.fill(Qt::transparent);
        QPainter pittore(&immagine);
        paint(&pittore, QRect(QPoint(0, 0), size), modo, stato);
        return immagine;
    }

private:
    Disegno disegno_;
};

QIcon icona(Disegno disegno) {
    return QIcon(new MotoreDisegno(disegno));
}

void disco(QPainter& pittore, const QColor& colore) {
    pittore.setPen(QPen(colore.darker(125), 1));
    pittore.setBrush(colore);
    pittore.drawEllipse(QRectF(1.5, 1.5, 13, 13));
    pittore.setPen(QPen(Qt::white, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    pittore.setBrush(Qt::NoBrush);
}

void spunta(QPainter& pittore) {
    disco(pittore, QColor(46, 139, 87));
    pittore.drawPolyline(QPolygonF({QPointF(4.8, 8.4), QPointF(7.2, 10.8), QPointF(11.4, 5.6)}));
}

void orologio(QPainter& pittore) {
    disco(pittore, QColor(222, 155, 0));
    pittore.drawPolyline(QPolygonF({QPointF(8, 4.4), QPointF(8, 8.2), QPointF(10.8, 9.8)}));
}

void daIniziare(QPainter& pittore) {
    disco(pittore, QColor(200, 55, 45));
    pittore.drawLine(QPointF(8, 4.6), QPointF(8, 8.6));
    pittore.drawPoint(QPointF(8, 11.4));
}

// A molar on the green of the module.
void dente(QPainter& pittore) {
    pittore.setPen(Qt::NoPen);
    pittore.setBrush(QColor(0, 122, 124));
    pittore.drawRoundedRect(QRectF(0.5, 0.5, 15, 15), 3, 3);
    QPainterPath forma(QPointF(4, 5));
    forma.cubicTo(4, 2.4, 6.6, 2.8, 8, 3.8);
    forma.cubicTo(9.4, 2.8, 12, 2.4, 12, 5);
    forma.cubicTo(12, 7.5, 11, 8, 10.6, 11);
    forma.cubicTo(10.4, 13.6, 9.4, 13.6, 9.1, 11.2);
    forma.cubicTo(8.9, 9.2, 7.1, 9.2, 6.9, 11.2);
    forma.cubicTo(6.6, 13.6, 5.6, 13.6, 5.4, 11);
    forma.cubicTo(5, 8, 4, 7.5, 4, 5);
    pittore.setBrush(Qt::white);
    pittore.drawPath(forma);
}

template <int Rosso, int Verde, int Blu>
void punto(QPainter& pittore) {
    const QColor colore(Rosso, Verde, Blu);
    pittore.setPen(QPen(colore.darker(130), 1));
    pittore.setBrush(colore);
    pittore.drawEllipse(QRectF(3.5, 3.5, 9, 9));
}

} // namespace

QIcon IconaStato(int indice) {
    switch (indice) {
    case 2:
        return icona(orologio);
    case 3:
    case 4:
        return icona(spunta);
    case 5:
        return icona(daIniziare);
    default:
        return {};
    }
}

QIcon ImStatus(int indice) {
    switch (indice) {
    case 0:
        return icona(punto<240, 190, 0>);
    case 1:
        return icona(punto<214, 48, 40>);
    case 2:
        return icona(punto<40, 160, 70>);
    case 3:
        return icona(punto<150, 150, 150>);
    default:
        return {};
    }
}

QIcon IconaModulo() {
    return icona(dente);
}
