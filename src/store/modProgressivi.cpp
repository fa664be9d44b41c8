#include "store/modProgressivi.h"

#include "host/context.h"
#include "host/contract/Host.h"
#include "store/RecordNumber.h"
#include "store/modConversioni.h"

namespace {

constexpr int DIGITS = 4;

/// The number in "2024-0007"; 0 for anything else.
int numberIn(const QString& idrif1) {
    // Four characters only, also of "10000": workstations of every age must propose the same number.
    return CastInteger(RecordNumber::parse(idrif1).progressive.left(DIGITS));
}

QString rowsOfType(const QString& t1) {
    return runningHost().Utente().idschema() + QStringLiteral(".tblWorkspace where tiporecord=906 and t1='") + t1 +
           QStringLiteral("' and idrif1");
}

} // namespace

QString ProssimoProgressivo(const QString& t1, const QString& year) {
    const auto rows =
        runningHost().DB().OpenRecordset(QStringLiteral("Select max(idrif1) AS HighestValue from ") + rowsOfType(t1) +
                                         QStringLiteral(" like '") + year + QStringLiteral("%'"));
    int highest = 0;
    if (rows && rows->RecordCount() == 1) {
        const QVariant value = rows->value(QStringLiteral("HighestValue"));
        if (!value.isNull()) highest = numberIn(value.toString());
    }
    return RecordNumber::fourDigits(highest + 1);
}

bool EsisteProgressivo(const QString& t1, const QString& idrif1) {
    const auto rows = runningHost().DB().OpenRecordset(QStringLiteral("Select id from ") + rowsOfType(t1) +
                                                       QStringLiteral("='") + idrif1 + QLatin1Char('\''));
    return rows && rows->RecordCount() > 0;
}
