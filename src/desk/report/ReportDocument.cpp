#include "desk/report/ReportDocument.h"

#include <QBuffer>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPainterPath>
#include <QPdfWriter>
#include <numeric>
#include <utility>

namespace desk {

namespace {

void paintItem(QPainter& painter, const ReportItem& item) {
    switch (item.kind) {
    case ReportItem::Kind::Text:
        painter.setFont(item.font);
        painter.setPen(item.colour);
        painter.drawText(QPointF(item.rect.left(), item.rect.top() + item.ascent), item.text);
        break;
    case ReportItem::Kind::Fill:
        painter.setPen(Qt::NoPen);
        painter.setBrush(item.colour);
        if (item.radius > 0)
            painter.drawRoundedRect(item.rect, item.radius, item.radius);
        else
            painter.drawRect(item.rect);
        break;
    case ReportItem::Kind::Frame:
        painter.setPen(QPen(item.colour, item.width));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(item.rect, item.radius, item.radius);
        break;
    case ReportItem::Kind::Picture:
        painter.drawImage(item.rect, item.picture);
        break;
    }
}

} // namespace

QSizeF ReportDocument::pageSize() const {
    const QSizeF points = page.fullRectPoints().size();
    return {fromPoints(points.width()), fromPoints(points.height())};
}

QList<int> ReportDocument::allPages() const {
    QList<int> numbers(pageCount());
    std::iota(numbers.begin(), numbers.end(), 0);
    return numbers;
}

void ReportDocument::paint(QPainter& painter, int number) const {
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    for (const ReportItem& item : pages.at(static_cast<std::size_t>(number)).items())
        paintItem(painter, item);
}

bool ReportDocument::print(QPagedPaintDevice& device, const QList<int>& numbers) const {
    device.setPageLayout(page);
    QPainter painter;
    if (!painter.begin(&device)) return false;
    const qreal scale = device.logicalDpiX() / REPORT_UNITS_PER_INCH;
    bool isFirst = true;
    for (const int number : numbers) {
        if (!std::exchange(isFirst, false) && !device.newPage()) return false;
        painter.save();
        painter.scale(scale, scale);
        paint(painter, number);
        painter.restore();
    }
    return painter.end();
}

QByteArray ReportDocument::toPdf() const {
    QByteArray content;
    QBuffer buffer(&content);
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setTitle(title);
        writer.setCreator(QStringLiteral("Tessara 5000"));
        writer.setResolution(static_cast<int>(REPORT_UNITS_PER_INCH));
        if (!print(writer, allPages())) return {};
    }
    return content;
}

} // namespace desk
