#include "desk/report/ReportLayout.h"

#include "desk/report/ReportGrammar.h"
#include "desk/report/ReportLayoutError.h"
#include "platform/XmlDocument.h"

#include <QSet>

namespace desk {

ReportLayout ReportLayout::read(const QString& xml) {
    platform::XmlDocument document;
    if (!document.loadText(xml))
        throw ReportLayoutError(QStringLiteral("Il testo non \u00e8 XML ben formato. ") + document.lastError());
    if (document.root().name() != QLatin1String("report"))
        throw ReportLayoutError(QStringLiteral("La radice \u00e8 <%1>, non <report>.").arg(document.root().name()));
    ReportLayout layout;
    layout.root_ = readReportElement(document.root());
    QSet<QString> seen;
    for (const ReportElement& part : layout.root_.children) {
        if (seen.contains(part.name))
            throw ReportLayoutError(QStringLiteral("L'elemento <%1> c'\u00e8 due volte.").arg(part.name));
        seen.insert(part.name);
    }
    if (const ReportElement* page = layout.root_.child("pagina")) layout.page_ = *page;
    if (!layout.section("corpo")) throw ReportLayoutError(QStringLiteral("Manca l'elemento <corpo>."));
    return layout;
}

bool ReportLayout::isLandscape() const {
    return page_.value("orientamento") == QLatin1String("orizzontale");
}

QSizeF ReportLayout::pageSize() const {
    const QSizeF size = page_.value("formato") == QLatin1String("A5") ? QSizeF(148, 210) : QSizeF(210, 297);
    return isLandscape() ? size.transposed() : size;
}

QMarginsF ReportLayout::margins() const {
    const QList<qreal> given = page_.numbers("margini");
    if (given.size() != 4) return {18, 16, 18, 14};
    return {given[3], given[0], given[1], given[2]};
}

} // namespace desk
