#include "desk/report/ReportPrinting.h"

#include "desk/report/ReportDocument.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"

#include <QDir>
#include <QFileInfo>
#include <QPrinter>
#include <QRegularExpression>
#include <algorithm>

namespace desk {

namespace {

const QString TITLE = QStringLiteral("Tessara 5000");

/// The document's title as a file name: without what a file system may refuse.
QString fileNameOf(const ReportDocument& document) {
    static const QRegularExpression refused(QStringLiteral("[\\\\/:*?\"<>|\\x00-\\x1f]+"));
    QString name = document.title;
    name.replace(refused, QStringLiteral("-"));
    name = name.simplified().left(100);
    return (name.isEmpty() ? QStringLiteral("Documento") : name) + QStringLiteral(".pdf");
}

void tell(const QString& what) {
    platform::dialogs().message(what, platform::MB_CRITICAL, TITLE);
}

/// The pages that the user chose, as often as a printer that cannot repeat them itself must be given them.
QList<int> chosenPages(const QPrinter& printer, int count) {
    int first = 0;
    int last = count - 1;
    if (printer.printRange() == QPrinter::PageRange && printer.fromPage() > 0) {
        first = std::clamp(printer.fromPage() - 1, 0, last);
        last = std::clamp(printer.toPage() - 1, first, last);
    }
    const int copies = printer.supportsMultipleCopies() ? 1 : printer.copyCount();
    QList<int> pages;
    if (printer.collateCopies()) {
        for (int copy = 0; copy < copies; ++copy)
            for (int page = first; page <= last; ++page)
                pages.append(page);
    } else {
        for (int page = first; page <= last; ++page)
            pages.append(QList<int>(copies, page));
    }
    return pages;
}

} // namespace

bool printReport(const ReportDocument& document, bool offerPreview) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(document.title);
    printer.setCreator(TITLE);
    printer.setPageLayout(document.page);
    const platform::PrintAnswer answer = platform::dialogs().choosePrinter(
        printer, {QStringLiteral("Stampa: ") + document.title, document.pageCount(), offerPreview});
    if (answer != platform::PrintAnswer::Print) return answer == platform::PrintAnswer::Preview;
    if (document.print(printer, chosenPages(printer, document.pageCount()))) return false;
    tell(QStringLiteral("La stampa di \u201c%1\u201d non \u00e8 riuscita.\nControllare la stampante e riprovare.")
             .arg(document.title));
    return false;
}

void saveReport(const ReportDocument& document) {
    const QString path = platform::dialogs().saveFile(
        QStringLiteral("Salva come PDF"),
        {{QStringLiteral("Documenti PDF"), {QStringLiteral("*.pdf")}}, platform::everyFile()}, fileNameOf(document));
    if (path.isEmpty()) return;
    const QByteArray content = document.toPdf();
    if (!content.isEmpty() && platform::files::writeAtomically(path, content)) return;
    tell(QStringLiteral("Il file %1 non si pu\u00f2 scrivere.").arg(QDir::toNativeSeparators(path)));
}

} // namespace desk
