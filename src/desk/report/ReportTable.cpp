#include "desk/report/ReportTable.h"

#include "desk/report/ReportElement.h"
#include "desk/report/ReportText.h"

#include <numeric>

namespace desk {

namespace {

constexpr QChar ROW_MARK(8);
constexpr QChar FIELD_MARK(7);
constexpr qreal PADDING_ACROSS = fromPoints(4);
constexpr qreal PADDING_DOWN = fromPoints(3.2);
constexpr qreal LINE = fromPoints(0.5);

Qt::Alignment alignmentOf(const QString& letter) {
    const QString upper = letter.trimmed().toUpper();
    if (upper == QLatin1String("R")) return Qt::AlignRight;
    return upper == QLatin1String("C") ? Qt::AlignHCenter : Qt::AlignLeft;
}

QStringList commaList(const QString& text) {
    return text.trimmed().isEmpty() ? QStringList() : text.split(QLatin1Char(','));
}

} // namespace

ReportTable::ReportTable(const ReportTableTexts& texts, const ReportTableLook& look, qreal width)
    : look_(look) {
    readColumns(texts);
    readRows(texts.rows);
    shareWidth(texts.percentages, width);
    widen(width);
    build();
}

void ReportTable::readColumns(const ReportTableTexts& texts) {
    heads_ = commaList(texts.heads);
    // Without heads the shares tell how many columns there are, or at last the first row.
    qsizetype count = heads_.size();
    if (count == 0) count = commaList(texts.percentages).size();
    if (count == 0) count = texts.rows.section(ROW_MARK, 0, 0).split(FIELD_MARK).size();
    while (heads_.size() < count)
        heads_.append(QString());
    const QStringList letters = commaList(texts.alignments);
    for (qsizetype i = 0; i < count; ++i)
        alignments_.append(alignmentOf(letters.value(i)));
}

void ReportTable::readRows(const QString& text) {
    if (text.isEmpty()) return;
    for (const QString& row : text.split(ROW_MARK)) {
        QStringList fields = row.split(FIELD_MARK);
        if (fields.size() > heads_.size()) ++rowsWithMoreFields_;
        while (fields.size() < heads_.size())
            fields.append(QString());
        fields_.append(fields);
    }
    // Whoever ends each row with the mark, instead of dividing rows by it, means no empty row.
    if (text.endsWith(ROW_MARK)) fields_.removeLast();
}

void ReportTable::shareWidth(const QString& percentages, qreal width) {
    const QStringList given = commaList(percentages);
    QList<qreal> shares;
    qreal sum = 0;
    for (qsizetype i = 0; i < heads_.size(); ++i) {
        const qreal share = ReportElement::readNumber(given.value(i)).value_or(0);
        shares.append(std::max<qreal>(share, 0));
        sum += shares.last();
    }
    // Columns without a share have an equal part of what the others leave.
    const auto unshared = static_cast<qreal>(shares.count(0));
    const qreal part = unshared > 0 ? std::max(100 - sum, 5 * unshared) / unshared : 0;
    for (qreal& share : shares)
        if (share <= 0) share = part;
    sum = std::accumulate(shares.cbegin(), shares.cend(), qreal(0));
    // Shares below a hundred leave the rest of the width free; above it they can only be proportions.
    const qreal whole = std::max<qreal>(sum, 100);
    for (const qreal share : shares)
        widths_.append(share / whole * width);
}

/// The least width in which the column looks right: amounts in one line, words in one piece.
qreal ReportTable::needed(qsizetype column, qreal width) const {
    const bool isAmount = alignments_[column] & Qt::AlignRight;
    const ReportStyle style = look_.style;
    qreal widest = longestWordWidth(heads_[column], style.bolder());
    for (const QStringList& row : fields_)
        widest =
            std::max(widest, isAmount ? reportLineWidth(row[column], style) : longestWordWidth(row[column], style));
    return std::min(widest + 2 * PADDING_ACROSS + 1, width * (isAmount ? 0.4 : 0.25));
}

void ReportTable::widen(qreal width) {
    QList<qreal> spare;
    qreal shortage = 0;
    qreal surplus = 0;
    for (qsizetype i = 0; i < widths_.size(); ++i) {
        const qreal least = needed(i, width);
        spare.append(widths_[i] - least);
        if (spare.last() < 0)
            shortage -= spare.last();
        else
            surplus += spare.last();
    }
    if (shortage <= 0) return;
    const qreal rest = std::max<qreal>(width - std::accumulate(widths_.cbegin(), widths_.cend(), qreal(0)), 0);
    const qreal free = std::min(rest, shortage);
    const qreal given = std::min(shortage - free, surplus);
    for (qsizetype i = 0; i < widths_.size(); ++i) {
        if (spare[i] < 0)
            widths_[i] -= spare[i] * (free + given) / shortage;
        else if (surplus > 0)
            widths_[i] -= spare[i] * given / surplus;
    }
}

ReportBox ReportTable::cells(const QStringList& texts, const ReportStyle& style) const {
    ReportBox row;
    qreal left = 0;
    for (qsizetype i = 0; i < widths_.size(); ++i) {
        const ReportBox cell = layOutText(texts[i], style.aligned(alignments_[i]), widths_[i] - 2 * PADDING_ACROSS);
        row.place(cell, {left + PADDING_ACROSS, PADDING_DOWN});
        left += widths_[i];
    }
    // An empty row is still as high as a line.
    row.reach(PADDING_DOWN + layOutText(QStringLiteral("X"), style, fromPoints(100)).height());
    row.addSpace(PADDING_DOWN);
    return row;
}

void ReportTable::build() {
    const qreal width = std::accumulate(widths_.cbegin(), widths_.cend(), qreal(0));
    const auto fill = [width](qreal top, qreal height, const QColor& colour) {
        ReportItem item;
        item.rect = QRectF(0, top, width, height);
        item.colour = colour;
        return item;
    };
    const bool hasHeads = !heads_.join(QString()).trimmed().isEmpty();
    if (hasHeads) {
        head_ = cells(heads_, look_.style.bolder().coloured(look_.headColour));
        if (look_.headFill.isValid()) head_.addBehind(fill(0, head_.height(), look_.headFill));
        head_.add(fill(head_.height(), 2 * LINE, look_.headColour));
    }
    for (qsizetype i = 0; i < fields_.size(); ++i) {
        const bool isTotal = look_.totalLast && i > 0 && i + 1 == fields_.size();
        ReportBox row = cells(fields_[i], isTotal ? look_.style.bolder() : look_.style);
        if (isTotal) row.addBehind(fill(0, 2 * LINE, look_.headColour));
        row.add(fill(row.height(), LINE, look_.lineColour));
        rows_.push_back(std::move(row));
    }
}

} // namespace desk
