#include "desk/report/ReportComposer.h"

#include "desk/report/ReportLogo.h"
#include "desk/report/ReportTable.h"
#include "desk/report/ReportText.h"
#include "desk/report/ReportTotals.h"
#include "desk/report/ReportValues.h"

#include <algorithm>

namespace desk {

namespace {

const QColor PALE(214, 221, 228);

ReportFlow one(ReportBox box) {
    ReportFlow flow;
    if (!box.isEmpty()) flow.push_back({.box = std::move(box)});
    return flow;
}

qreal leftFor(const ReportElement& element, qreal own, qreal width) {
    const Qt::Alignment alignment = reportAlignment(element);
    if (alignment & Qt::AlignRight) return width - own;
    return alignment & Qt::AlignHCenter ? (width - own) / 2 : 0;
}

/// Widths of the columns: those that say theirs have it, the others share what is left.
QList<qreal> columnWidths(const std::vector<const ReportElement*>& columns, qreal room) {
    qreal said = 0;
    int silent = 0;
    for (const ReportElement* column : columns) {
        if (const auto share = column->number("larghezza"))
            said += *share;
        else
            ++silent;
    }
    const qreal rest = silent > 0 ? std::max(100 - said, 5.0 * silent) / silent : 0;
    const qreal whole = std::max(said + rest * silent, 100.0);
    QList<qreal> widths;
    for (const ReportElement* column : columns)
        widths.append(column->number("larghezza", rest) / whole * room);
    return widths;
}

qreal topFor(const ReportElement& column, qreal own, qreal height) {
    const QString word = column.value("verticale");
    if (word == QLatin1String("basso")) return height - own;
    return word == QLatin1String("centro") ? (height - own) / 2 : 0;
}

} // namespace

ReportFlow ReportComposer::flow(const ReportElement& section, qreal width) {
    ReportFlow flow;
    for (const ReportElement& element : section.children) {
        if (!isWanted(element)) continue;
        ReportFlow made = blocks(element, width);
        if (made.empty()) continue;
        made.front().above += fromMillimetres(element.number("sopra", 0));
        made.back().below += fromMillimetres(element.number("sotto", 0));
        if (element.flag("unito")) made.back().withNext = true;
        std::move(made.begin(), made.end(), std::back_inserter(flow));
    }
    return flow;
}

bool ReportComposer::isWanted(const ReportElement& element) const {
    const QString condition = element.value("se");
    return condition.isEmpty() || values_.isFilled(condition);
}

ReportFlow ReportComposer::blocks(const ReportElement& element, qreal width) {
    if (element.name == QLatin1String("griglia")) return grid(element, width);
    if (element.name == QLatin1String("linea")) return one(rule(element, width));
    if (element.name == QLatin1String("logo")) return one(logo(element, width));
    if (element.name == QLatin1String("colonne")) return one(columns(element, width));
    if (element.name == QLatin1String("riquadro")) return one(frame(element, width));
    if (element.name == QLatin1String("totali")) return one(totals(element, width));
    if (element.name == QLatin1String("spazio"))
        return {{.box = {}, .above = fromMillimetres(element.number("altezza", 4)), .withNext = true}};
    ReportFlowBlock made = text(element, width);
    if (made.box.isEmpty()) return {};
    return {std::move(made)};
}

ReportFlowBlock ReportComposer::text(const ReportElement& element, qreal width) {
    const QString filled = values_.expanded(element.text);
    return {.box = layOutText(filled, style_.changedBy(element), width), .mayBreak = true};
}

ReportBox ReportComposer::rule(const ReportElement& element, qreal width) const {
    const qreal own = width * element.number("larghezza", 100) / 100;
    ReportItem item;
    item.rect = QRectF(leftFor(element, own, width), 0, own, fromPoints(element.number("spessore", 0.6)));
    item.colour = element.colour("colore", PALE);
    ReportBox box;
    box.add(item);
    return box;
}

ReportBox ReportComposer::logo(const ReportElement& element, qreal width) {
    const QImage picture = readReportLogo(element);
    ReportBox box;
    if (picture.isNull()) {
        if (!element.flag("facoltativo"))
            values_.note(QStringLiteral("Il logo %1 non si pu\u00f2 leggere.").arg(element.value("file")));
        return box;
    }
    QSizeF size(picture.size());
    // The attribute counts per cent of the width, as everywhere; the height is in millimetres.
    const QSizeF most(width * element.number("larghezza", 100) / 100, fromMillimetres(element.number("altezza", 20)));
    size.scale(most, Qt::KeepAspectRatio);
    ReportItem item;
    item.kind = ReportItem::Kind::Picture;
    item.picture = picture;
    item.rect = QRectF(QPointF(leftFor(element, size.width(), width), 0), size);
    box.add(item);
    return box;
}

ReportBox ReportComposer::columns(const ReportElement& element, qreal width) {
    std::vector<const ReportElement*> columns;
    for (const ReportElement& column : element.children)
        columns.push_back(&column);
    const qreal gap = fromMillimetres(element.number("spazio", 6));
    const qreal gaps = columns.empty() ? 0 : gap * static_cast<qreal>(columns.size() - 1);
    const QList<qreal> widths = columnWidths(columns, std::max(width - gaps, width / 2));
    std::vector<ReportBox> boxes;
    qreal height = 0;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        boxes.push_back(box(*columns[i], widths[static_cast<qsizetype>(i)]));
        height = std::max(height, boxes.back().height());
    }
    ReportBox row;
    qreal left = 0;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        row.place(boxes[i], {left, topFor(*columns[i], boxes[i].height(), height)});
        left += widths[static_cast<qsizetype>(i)] + gap;
    }
    return row;
}

ReportBox ReportComposer::frame(const ReportElement& element, qreal width) {
    const qreal padding = fromMillimetres(element.number("margine", 3));
    const ReportBox inside = box(element, width - 2 * padding);
    ReportBox framed;
    if (inside.isEmpty()) return framed;
    framed.place(inside, {padding, padding});
    framed.addSpace(padding);
    ReportItem item;
    item.rect = QRectF(0, 0, width, framed.height());
    item.radius = fromMillimetres(element.number("raggio", 1.5));
    item.width = fromPoints(element.number("spessore", 0.6));
    if (const QColor border = element.colour("bordo"); border.isValid()) {
        item.kind = ReportItem::Kind::Frame;
        item.colour = border;
        framed.addBehind(item);
    }
    if (const QColor ground = element.colour("sfondo"); ground.isValid()) {
        item.kind = ReportItem::Kind::Fill;
        item.colour = ground;
        framed.addBehind(item);
    }
    return framed;
}

ReportFlow ReportComposer::grid(const ReportElement& element, qreal width) {
    const QString variable = element.value("variabile");
    // A list may have a name that does not follow from the others: a layout must ask for what the module gives.
    const auto list = [&](const char* attribute, const char* suffix) {
        const QString given = element.value(attribute);
        if (!given.isEmpty()) return values_.text(given);
        return variable.isEmpty() ? QString() : values_.text(variable + QLatin1Char('.') + QLatin1String(suffix));
    };
    const ReportTableTexts texts{list("intestazioni", "Header"), list("percentuali", "Percentuali"),
                                 list("allineamenti", "Allineamenti"), list("righi", "Righi")};
    const ReportTableLook look{style_.sized(element.number("dimensione", style_.size)),
                               element.colour("colore-testata", style_.colour), element.colour("sfondo-testata"),
                               element.colour("colore-linee", PALE), element.flag("totale")};
    const ReportTable table(texts, look, width);
    if (table.rowsWithMoreFields() > 0)
        values_.note(QStringLiteral("In %1 righe di %2 ci sono pi\u00f9 campi che colonne.")
                         .arg(table.rowsWithMoreFields())
                         .arg(variable.isEmpty() ? element.value("righi") : variable));
    if (table.rows().empty()) return one(table.head());
    ReportFlow flow;
    const auto head = std::make_shared<const ReportBox>(table.head());
    for (const ReportBox& row : table.rows())
        flow.push_back({.box = row, .head = head->isEmpty() ? nullptr : head});
    // What closes a table never stands alone on the last page.
    flow.back().withNext = true;
    return flow;
}

ReportBox ReportComposer::totals(const ReportElement& element, qreal width) {
    ReportTotalsLook look{style_.changedBy(element), element.colour("colore-linee", PALE), element.colour("sfondo")};
    std::vector<ReportTotal> entries;
    for (const ReportElement& entry : element.children) {
        if (isWanted(entry))
            entries.push_back({values_.expanded(entry.value("titolo")), values_.expanded(entry.value("valore")),
                               entry.flag("evidenza")});
    }
    if (const QString lines = element.value("righi"); !lines.isEmpty()) {
        for (ReportTotal& entry : totalsOfLines(values_.text(lines)))
            entries.push_back(std::move(entry));
    }
    const qreal own = width * element.number("larghezza", 100) / 100;
    const ReportBox inside = layOutTotals(values_.expanded(element.value("titolo")), entries, look, own);
    ReportBox placed;
    placed.place(inside, {leftFor(element, own, width), 0});
    return placed;
}

} // namespace desk
