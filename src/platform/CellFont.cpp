#include "platform/CellFont.h"

#include <QRect>
#include <cmath>

namespace platform {

namespace {

constexpr std::size_t FIRST_LETTER = 0x20;
constexpr std::size_t FIRST_CONTROL = 0x7F;
constexpr std::size_t FIRST_LATIN = 0xA0;

} // namespace

CellFont::CellFont(const QFont& font)
    : font_(font)
    , metrics_(font) {
    const QFontMetricsF exact(font);
    for (std::size_t code = FIRST_LETTER; code < widths_.size(); ++code) {
        if (code >= FIRST_CONTROL && code < FIRST_LATIN) continue;
        widths_[code] = static_cast<int>(std::ceil(exact.horizontalAdvance(QChar(static_cast<char16_t>(code)))));
    }
}

bool CellFont::surelyFits(const QString& text, int width) const {
    int taken = 0;
    for (const QChar letter : text) {
        const char16_t code = letter.unicode();
        const int own = code < widths_.size() ? widths_[code] : 0;
        if (own == 0) return false;
        taken += own;
        if (taken > width) return false;
    }
    return true;
}

QString CellFont::fitting(const QString& text, int width) const {
    return surelyFits(text, width) ? text : metrics_.elidedText(text, Qt::ElideRight, width);
}

int CellFont::baseline(const QRect& area) const {
    return area.top() + (area.height() - metrics_.height()) / 2 + metrics_.ascent();
}

} // namespace platform
