#include "documents/CellNotice.h"

#include "catalogues/modServizi.h"
#include "chart/ToothList.h"
#include "platform/Regional.h"

#include <QStringList>

using platform::Notice;

CellNotice noticeOfTeeth(const ToothList& teeth, const QString& unread) {
    if (!unread.isEmpty() || (teeth.isEmpty() && teeth.isList()))
        return {Notice::Error, QStringLiteral("Non è un dente: non verrà memorizzato")};
    QStringList unknown = teeth.unknown();
    if (unknown.isEmpty()) return {};
    unknown.removeAll(QString());
    const QString which = unknown.isEmpty() ? QStringLiteral("una voce") : unknown.join(QStringLiteral(", "));
    return {Notice::Error, QStringLiteral("Non è un dente e non verrà memorizzato: ") + which};
}

CellNotice noticeOfDate(const QString& stored, const QString& unread) {
    if (unread.isEmpty()) {
        const bool isDate = stored.isEmpty() || platform::regional().toDate(stored);
        return isDate ? CellNotice() : CellNotice{Notice::Error, QStringLiteral("Non è una data")};
    }
    const QString stays =
        stored.isEmpty() ? QStringLiteral("non verrà memorizzata") : QStringLiteral("resta memorizzato ") + stored;
    return {Notice::Error, QStringLiteral("Non è una data: ") + stays};
}

CellNotice noticeOfService(const QString& code) {
    if (code.isEmpty() || !serviceCode(code).isEmpty()) return {};
    return {Notice::Warning, QStringLiteral("Il servizio non è nel catalogo")};
}

CellNotice noticeOfChoice(const QString& unread) {
    if (unread.isEmpty()) return {};
    return {Notice::Error, QStringLiteral("Non è nell'elenco: non verrà memorizzato")};
}
