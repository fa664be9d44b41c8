#pragma once

#include <QFont>
#include <QFontMetrics>
#include <array>

class QRect;

namespace platform {

/// A font in which cells are written, with the widths of its common letters: most texts of a list fit their column with
/// room to spare, and to see that needs no layout of the text. Made once per font, for many cells.
class CellFont {
public:
    explicit CellFont(const QFont& font);

    const QFont& font() const { return font_; }
    QString fitting(const QString& text, int width) const; ///< Shortened at the end, with an ellipsis, where need be.
    int width(const QString& text) const { return metrics_.horizontalAdvance(text); }
    int baseline(const QRect& area) const; ///< Of a line in the middle of the area.

private:
    bool surelyFits(const QString& text, int width) const;

    QFont font_;
    QFontMetrics metrics_;
    std::array<int, 256> widths_{}; ///< Rounded up; 0 for what is no letter.
};

} // namespace platform
