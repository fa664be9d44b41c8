#include "desk/report/ReportViewer.h"

#include "desk/report/ReportLayout.h"
#include "desk/report/ReportLayoutError.h"
#include "desk/report/ReportPrinting.h"
#include "desk/report/frmAnteprima.h"
#include "desk/report/frmModelli.h"
#include "host/contract/HostError.h"
#include "platform/Dialogs.h"

namespace desk {

namespace {

const QString TITLE = QStringLiteral("Tessara 5000");

} // namespace

void ReportViewer::view(const QString& id, const QMap<QString, QVariant>& variables, bool preview, QWidget* parent) {
    std::optional<ReportDocument> document = compose(id, variables);
    if (!document) return;
    if (!preview && !printReport(*document, true)) return;
    frmAnteprima window(std::move(*document), parent);
    window.exec();
}

void ReportViewer::manage(QWidget* parent) {
    layouts_.provide();
    frmModelli window(archive_, parent);
    window.exec();
}

std::optional<ReportDocument> ReportViewer::compose(const QString& id, const QMap<QString, QVariant>& variables) {
    std::optional<ReportLayouts::Found> found;
    try {
        found = layouts_.find(id);
    } catch (const host::HostError& error) {
        return composeShipped(
            id, QStringLiteral("Il modello di stampa non si pu\u00f2 leggere dall'archivio.\n%1").arg(error.text()),
            variables);
    }
    if (!found)
        return composeShipped(
            id, QStringLiteral("Il modello di stampa \u201c%1\u201d non \u00e8 nell'archivio.").arg(id), variables);
    try {
        return ReportDocument::compose(ReportLayout::read(found->xml), variables);
    } catch (const ReportLayoutError& error) {
        return composeShipped(id,
                              QStringLiteral("Il modello di stampa \u201c%1\u201d non si pu\u00f2 usare.\n%2")
                                  .arg(found->title, error.text()),
                              variables);
    }
}

std::optional<ReportDocument> ReportViewer::composeShipped(const QString& id, const QString& why,
                                                           const QMap<QString, QVariant>& variables) const {
    const ShippedReport* shipped = ReportLayouts::fallback(id, variables);
    if (!shipped) {
        platform::dialogs().message(why, platform::MB_WARNING, TITLE);
        return std::nullopt;
    }
    const QString question =
        why + QStringLiteral("\n\nUsare il modello \u201c%1\u201d fornito con il programma?").arg(shipped->title);
    if (platform::dialogs().message(question, platform::MB_QUESTION, TITLE) != platform::Answer::Yes)
        return std::nullopt;
    return ReportDocument::compose(ReportLayout::read(shipped->xml), variables);
}

} // namespace desk
