#include "host/Fumetto.h"

#include "platform/MessageIcon.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>

namespace {

constexpr int PUNTA = 10;   // height of the tip
constexpr int RIENTRO = 24; // of the tip, from the left edge
constexpr int MARGINE = 12;
constexpr int LARGHEZZA = 320;

QLabel* etichetta(const char* nome, const QString& testo, bool grassetto, QWidget* parent) {
    auto* label = new QLabel(testo, parent);
    label->setObjectName(QLatin1String(nome));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(label->fontMetrics().horizontalAdvance(testo) > LARGHEZZA);
    if (label->wordWrap()) label->setFixedWidth(LARGHEZZA);
    QFont carattere = label->font();
    carattere.setBold(grassetto);
    label->setFont(carattere);
    label->setVisible(!testo.isEmpty());
    return label;
}

} // namespace

Fumetto::Fumetto(const QString& titolo, const QString& testo, int icona, QWidget* controllo)
    : QWidget(controllo->window(), Qt::ToolTip | Qt::FramelessWindowHint) {
    setObjectName(QStringLiteral("fumetto"));
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAccessibleName(titolo.isEmpty() ? testo : titolo + QStringLiteral(". ") + testo);
    QPalette tavolozza = palette();
    tavolozza.setColor(QPalette::WindowText, tavolozza.color(QPalette::ToolTipText));
    setPalette(tavolozza);
    auto* griglia = new QGridLayout(this);
    griglia->setContentsMargins(MARGINE, MARGINE + PUNTA, MARGINE, MARGINE + PUNTA);
    griglia->setHorizontalSpacing(10);
    griglia->setVerticalSpacing(4);
    griglia->setSizeConstraint(QLayout::SetFixedSize);
    if (const QPixmap figura = platform::messageIcon(icona, 24, devicePixelRatioF()); !figura.isNull()) {
        auto* segno = new QLabel(this);
        segno->setObjectName(QStringLiteral("icona"));
        segno->setPixmap(figura);
        griglia->addWidget(segno, 0, 0, 2, 1, Qt::AlignTop);
    }
    griglia->addWidget(etichetta("titolo", titolo, true, this), 0, 1);
    griglia->addWidget(etichetta("testo", testo, false, this), 1, 1);
    // What moves or hides the control takes the balloon away, which would point at nothing.
    controllo->installEventFilter(this);
    controllo->window()->installEventFilter(this);
}

void Fumetto::punta(const QWidget& controllo) {
    adjustSize();
    const QRect meta(controllo.mapToGlobal(QPoint(0, 0)), controllo.size());
    const QRect schermo = controllo.screen()->availableGeometry();
    sopra_ = meta.bottom() + height() > schermo.bottom() && meta.top() - height() >= schermo.top();
    const int tocco = meta.left() + qMin(meta.width() / 2, RIENTRO);
    const int destra = qMax(schermo.left(), schermo.right() + 1 - width());
    const int sinistra = qBound(schermo.left(), tocco - RIENTRO, destra);
    punta_ = qBound(PUNTA * 2, tocco - sinistra, qMax(PUNTA * 2, width() - PUNTA * 2));
    move(sinistra, sopra_ ? meta.top() - height() : meta.bottom() + 1);
    // Room for the tip on its side only.
    layout()->setContentsMargins(MARGINE, MARGINE + (sopra_ ? 0 : PUNTA), MARGINE, MARGINE + (sopra_ ? PUNTA : 0));
    adjustSize();
    if (sopra_) move(sinistra, meta.top() - height());
}

void Fumetto::paintEvent(QPaintEvent*) {
    const QRectF corpo = QRectF(rect()).adjusted(0.5, (sopra_ ? 0 : PUNTA) + 0.5, -0.5, (sopra_ ? -PUNTA : 0) - 0.5);
    QPainterPath scatola;
    scatola.addRoundedRect(corpo, 5, 5);
    const qreal base = sopra_ ? corpo.bottom() : corpo.top();
    const qreal vertice = sopra_ ? height() - 0.5 : 0.5;
    const QPolygonF freccia{
        {QPointF(punta_ - PUNTA * 0.8, base), QPointF(punta_, vertice), QPointF(punta_ + PUNTA * 0.8, base)}};
    QPainterPath triangolo;
    triangolo.addPolygon(freccia);
    triangolo.closeSubpath();
    QPainter pittore(this);
    pittore.setRenderHint(QPainter::Antialiasing);
    pittore.setPen(palette().color(QPalette::Mid));
    pittore.setBrush(palette().color(QPalette::ToolTipBase));
    pittore.drawPath(scatola.united(triangolo));
}

void Fumetto::mousePressEvent(QMouseEvent*) {
    hide();
}

bool Fumetto::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Hide:
    case QEvent::WindowDeactivate:
        hide();
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}
