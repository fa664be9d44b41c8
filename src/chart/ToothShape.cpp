#include "chart/ToothShape.h"

#include "chart/modDenti.h"

#include <QLinearGradient>
#include <QPainter>
#include <QTransform>
#include <vector>

namespace {

// Drawn for the upper arch in a box of 40 by 84: apexes above, biting edge below. The lower arch is the same turned
// over.
constexpr double WIDTH = 40;
constexpr double HEIGHT = 84;
constexpr double MIDDLE = WIDTH / 2;
constexpr double NECK = 47;
constexpr double FURCATION = 33;

struct Form {
    double crown; ///< Widths.
    double neck;
    int cusps;                  ///< 0 for the straight edge of an incisor.
    double valley;              ///< Where the edge lies between cusps, and at the corners.
    std::vector<double> apexes; ///< Across, one a root.
    double apex;                ///< Where the roots end.
};

Form formOf(int indice) {
    const int position = PosizioneDente(indice);
    const bool upper = DenteSuperiore(indice);
    if (position == 1) return upper ? Form{27, 17, 0, 80, {20}, 7} : Form{20, 13, 0, 80, {20}, 9};
    if (position == 2) return upper ? Form{22, 14, 0, 79, {21}, 8} : Form{21, 13, 0, 80, {20}, 8};
    if (position == 3) return Form{25, 17, 1, 74, {20.5}, 2};
    const bool premolar = !DenteDeciduo(indice) && position <= 5;
    if (premolar && upper && position == 4) return Form{27, 19, 2, 77, {14, 26}, 9};
    if (premolar) return Form{26, 18, 2, 77, {20}, 7};
    const double crown = position == 8 ? 33 : 37;
    if (upper) return Form{crown, crown - 9, 3, 78, {8, 20, 32}, position == 8 ? 16.0 : 11.0};
    return Form{crown, crown - 9, 3, 78, {10, 30}, position == 8 ? 15.0 : 10.0};
}

QPainterPath crownOf(const Form& form) {
    const double left = MIDDLE - form.crown / 2;
    const double right = MIDDLE + form.crown / 2;
    const double neckLeft = MIDDLE - form.neck / 2;
    const double neckRight = MIDDLE + form.neck / 2;
    QPainterPath path(QPointF(neckLeft, NECK));
    path.cubicTo(left + 1, NECK + 6, left, NECK + 12, left, NECK + 17);
    path.quadTo(left, form.valley - 4, left + 2, form.valley);
    if (form.cusps == 0) {
        path.quadTo(left + 3, HEIGHT - 1, left + 6, HEIGHT - 1);
        path.lineTo(right - 6, HEIGHT - 1);
        path.quadTo(right - 3, HEIGHT - 1, right - 2, form.valley);
    } else {
        const double step = (form.crown - 4) / form.cusps;
        for (int cusp = 0; cusp < form.cusps; ++cusp) {
            const double start = left + 2 + step * cusp;
            path.cubicTo(start + step * 0.25, HEIGHT, start + step * 0.75, HEIGHT, start + step, form.valley);
        }
    }
    path.quadTo(right, form.valley - 4, right, NECK + 17);
    path.cubicTo(right, NECK + 12, right - 1, NECK + 6, neckRight, NECK);
    path.quadTo(MIDDLE, NECK - 6, neckLeft, NECK);
    return path;
}

QPainterPath rootsOf(const Form& form) {
    const double neckLeft = MIDDLE - form.neck / 2;
    const double neckRight = MIDDLE + form.neck / 2;
    const auto roots = static_cast<int>(form.apexes.size());
    QPainterPath path(QPointF(neckLeft, NECK));
    for (int root = 0; root < roots; ++root) {
        const double across = form.apexes[static_cast<std::size_t>(root)];
        const double end = neckLeft + form.neck * (root + 1) / roots;
        const double start = neckLeft + form.neck * root / roots;
        const double from = root == 0 ? NECK : FURCATION;
        const double to = root + 1 == roots ? NECK : FURCATION;
        path.cubicTo(start, from - 14, across - 5, form.apex + 12, across - 2, form.apex + 1.5);
        path.quadTo(across, form.apex - 1, across + 2, form.apex + 1.5);
        path.cubicTo(across + 5, form.apex + 12, end, to - 14, end, to);
    }
    path.lineTo(neckRight, NECK);
    path.quadTo(MIDDLE, NECK - 6, neckLeft, NECK);
    return path;
}

QPainterPath groovesOf(const Form& form) {
    QPainterPath path;
    const double step = (form.crown - 4) / std::max(form.cusps, 1);
    for (int cusp = 1; cusp < form.cusps; ++cusp) {
        const double across = MIDDLE - form.crown / 2 + 2 + step * cusp;
        path.moveTo(across, form.valley);
        path.quadTo(across + 0.6, form.valley - 5, across, form.valley - 11);
    }
    return path;
}

void shade(QPainter& painter, const QPainterPath& path, const QColor& light, const QColor& dark) {
    const QRectF area = path.boundingRect();
    QLinearGradient gradient(area.topLeft(), area.topRight());
    gradient.setColorAt(0, dark);
    gradient.setColorAt(0.35, light);
    gradient.setColorAt(1, dark);
    painter.setBrush(gradient);
    painter.drawPath(path);
}

} // namespace

ToothShape ToothShape::of(int indice, const QRectF& box) {
    const Form form = formOf(indice);
    QTransform place;
    place.translate(box.left(), box.top());
    place.scale(box.width() / WIDTH, box.height() / HEIGHT);
    if (!DenteSuperiore(indice)) place = QTransform(1, 0, 0, -1, 0, HEIGHT) * place;
    // The left half of the mouth mirrors the right one.
    const int quadrant = QuadranteDente(indice);
    if (quadrant == 2 || quadrant == 3 || quadrant == 6 || quadrant == 7)
        place = QTransform(-1, 0, 0, 1, WIDTH, 0) * place;
    return {place.map(crownOf(form)), place.map(rootsOf(form)), place.map(groovesOf(form))};
}

void paintTooth(QPainter& painter, int indice, const QRectF& box, bool faded) {
    const ToothShape shape = ToothShape::of(indice, box);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    if (faded) painter.setOpacity(0.45);
    painter.setPen(QPen(QColor(176, 150, 112), 1));
    shade(painter, shape.roots, QColor(248, 236, 208), QColor(228, 206, 164));
    painter.setPen(QPen(QColor(140, 146, 156), 1));
    shade(painter, shape.crown, QColor(255, 255, 255), QColor(226, 231, 238));
    painter.setPen(QPen(QColor(168, 174, 184), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(shape.grooves);
    painter.restore();
}
