#include "desk/report/ReportComposer.h"
#include "desk/report/ReportDocument.h"
#include "desk/report/ReportLayout.h"
#include "desk/report/ReportLayoutError.h"
#include "desk/report/ReportValues.h"

namespace desk {

namespace {

constexpr qreal LEAST_ROOM = fromMillimetres(30);
const QString PAGE = QStringLiteral("Pagina");
const QString PAGES = QStringLiteral("Pagine");

/// The parts that stand on each page around the body, made anew for each of them, since they may tell its number.
class PageFrame {
public:
    PageFrame(const ReportLayout& layout, ReportValues& values, const ReportStyle& style)
        : layout_(layout)
        , values_(values)
        , style_(style) {
        const QSizeF size = layout.pageSize();
        const QMarginsF margins = layout.margins();
        const QRectF paper(0, 0, fromMillimetres(size.width()), fromMillimetres(size.height()));
        area_ = paper.marginsRemoved({fromMillimetres(margins.left()), fromMillimetres(margins.top()),
                                      fromMillimetres(margins.right()), fromMillimetres(margins.bottom())});
    }

    qreal width() const { return area_.width(); }
    /// Height left for the body, measured with numbers as wide as they may get.
    qreal room(bool isFirst) {
        count(isFirst ? 1 : 888, 888);
        return area_.height() - top(isFirst).height() - part("piede").height();
    }
    ReportBox around(const ReportBox& body, int number, int count) {
        this->count(number + 1, count);
        const ReportBox head = top(number == 0);
        const ReportBox foot = part("piede");
        ReportBox page;
        page.place(head, area_.topLeft());
        page.place(body, {area_.left(), area_.top() + head.height()});
        page.place(foot, {area_.left(), area_.bottom() - foot.height()});
        return page;
    }

private:
    void count(int number, int count) {
        values_.set(PAGE, QString::number(number));
        values_.set(PAGES, QString::number(count));
    }
    ReportBox top(bool isFirst) { return part(isFirst ? "intestazione" : "seguito"); }
    ReportBox part(const char* name) {
        const ReportElement* section = layout_.section(name);
        return section ? ReportComposer(values_, style_).box(*section, area_.width()) : ReportBox();
    }

    const ReportLayout& layout_;
    ReportValues& values_;
    ReportStyle style_;
    QRectF area_;
};

QPageLayout pageLayout(const ReportLayout& layout) {
    const bool isSmall = layout.page().value("formato") == QLatin1String("A5");
    QPageLayout page(QPageSize(isSmall ? QPageSize::A5 : QPageSize::A4),
                     layout.isLandscape() ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF(0, 0, 0, 0));
    // The margins of a printer are none of ours: they would move what stands on the page.
    page.setMode(QPageLayout::FullPageMode);
    return page;
}

} // namespace

ReportDocument ReportDocument::compose(const ReportLayout& layout, const QMap<QString, QVariant>& variables) {
    ReportValues values(variables);
    const ReportStyle style = ReportStyle().changedBy(layout.page());
    // The body first: the page numbers are no variables of its own.
    PageFrame frame(layout, values, style);
    if (frame.width() < LEAST_ROOM)
        throw ReportLayoutError(QStringLiteral("I margini non lasciano spazio al corpo della pagina."));
    ReportFlow body = ReportComposer(values, style).flow(*layout.section("corpo"), frame.width());
    const qreal firstRoom = frame.room(true);
    const qreal otherRoom = frame.room(false);
    if (std::min(firstRoom, otherRoom) < LEAST_ROOM)
        throw ReportLayoutError(
            QStringLiteral("Margini, intestazione e piede non lasciano spazio al corpo della pagina."));
    const std::vector<ReportBox> bodies = paginated(std::move(body), firstRoom, otherRoom);

    ReportDocument document;
    document.title = values.expanded(layout.title());
    document.page = pageLayout(layout);
    for (std::size_t i = 0; i < bodies.size(); ++i)
        document.pages.push_back(frame.around(bodies[i], static_cast<int>(i), static_cast<int>(bodies.size())));
    document.missing = values.missing();
    document.notes = values.notes();
    return document;
}

} // namespace desk
