#pragma once

#include <QColor>
#include <QFont>
#include <QImage>
#include <QRectF>
#include <QString>
#include <vector>

namespace desk {

/// Tenths of a point, the unit in which reports are laid out; fonts have their size in it too, so that a page looks the
/// same on screen, on paper and in a file.
inline constexpr qreal REPORT_UNITS_PER_INCH = 720;
inline constexpr qreal fromMillimetres(qreal millimetres) {
    return millimetres * REPORT_UNITS_PER_INCH / 25.4;
}
inline constexpr qreal fromPoints(qreal points) {
    return points * 10;
}

/// One thing to be drawn: a line of text, a filled area, a frame or a picture.
struct ReportItem {
    enum class Kind { Text, Fill, Frame, Picture };
    Kind kind = Kind::Fill;
    QRectF rect; ///< Where it stands; for a text its line, as wide as the text.
    QColor colour;
    qreal width = 0;  ///< Of a frame's pen.
    qreal radius = 0; ///< Of the corners of fill and frame.
    qreal ascent = 0; ///< From the top of a text's line to its base line.
    QString text;
    QFont font;
    QImage picture;
};

using ReportItems = std::vector<ReportItem>;

} // namespace desk
