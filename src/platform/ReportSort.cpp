#include "platform/ReportSort.h"

#include "platform/Regional.h"

#include <QLocale>

namespace platform {

ReportSortKey::ReportSortKey(const QString& text, const QCollator& collator) {
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty()) return;
    // Letters first mean text: most cells are, and the two readings below cost more than a look.
    if (!trimmed.front().isLetter()) {
        if (const auto number = regional().toNumber(trimmed)) {
            kind_ = Kind::Number;
            number_ = *number;
            return;
        }
        if (const auto date = regional().toDate(trimmed)) {
            kind_ = Kind::Date;
            number_ = static_cast<double>(date->toJulianDay());
            return;
        }
    }
    kind_ = Kind::Text;
    text_ = collator.sortKey(trimmed);
}

QCollator ReportSortKey::collator() {
    QCollator italian{QLocale(QLocale::Italian, QLocale::Italy)};
    italian.setNumericMode(true);
    italian.setCaseSensitivity(Qt::CaseInsensitive);
    return italian;
}

int ReportSortKey::compare(const ReportSortKey& other) const {
    if (kind_ != other.kind_) return kind_ < other.kind_ ? -1 : 1;
    if (kind_ == Kind::Text) return text_->compare(*other.text_);
    if (number_ == other.number_) return 0;
    return number_ < other.number_ ? -1 : 1;
}

} // namespace platform
