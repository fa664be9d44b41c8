#include "desk/data/CorvalaRecords.h"

#include "desk/data/Database.h"
#include "platform/Regional.h"

namespace desk {

namespace {

host::RigaCorvala rowOf(const Query& query) {
    return {query.text(0), query.moment(1), query.text(2), query.text(3), query.text(4), query.text(5)};
}

/// Plans, estimates and invoices, whose number the whole practice shares.
bool isNumbered(const QString& t1) {
    return t1 == QLatin1String("TRT") || t1 == QLatin1String("PRV") || t1 == QLatin1String("FTT");
}

} // namespace

CorvalaRecords::CorvalaRecords(const PatientScope& scope)
    : database_(scope.database)
    , table_(scope, QStringLiteral("tblWorkspace"),
             {QStringLiteral("Data"), QStringLiteral("idrif1"), QStringLiteral("descrizione"), QStringLiteral("m1"),
              QStringLiteral("t1"), QStringLiteral("tiporecord")},
             QStringLiteral(" and tiporecord = %1").arg(tiporecord)) {
    table_.setLongText(QStringLiteral("m1"));
}

QList<host::RigaCorvala> CorvalaRecords::Lista() {
    // A patient who opens is asked for the same rows by list after list.
    database_.noticeOthers();
    if (listed_ != database_.generation()) {
        listed_ = 0;
        list_.clear();
        for (Query query = table_.rows(QStringLiteral("Data, idrif1, ID")); query.next();)
            list_ << rowOf(query);
        listed_ = database_.generation();
    }
    return list_;
}

std::optional<host::RigaCorvala> CorvalaRecords::Carica(const QString& id) {
    Query query = table_.row(id);
    if (!query.next()) return std::nullopt;
    return rowOf(query);
}

bool CorvalaRecords::Salva(QString& id, const host::DatiCorvala& data) {
    const std::optional<QDate> date = platform::regional().toDate(data.Data);
    if (!date) return false;
    return table_.save(id,
                       {storedMoment(date->startOfDay()), data.idrif1, data.descrizione, data.m1, data.t1, tiporecord},
                       [&] { claimNumber(data.t1, data.idrif1); });
}

// Within the transaction of the save, and held until its end. A unique index would refuse an archive in which some
// numbers are doubled already.
void CorvalaRecords::claimNumber(const QString& t1, const QString& number) {
    if (!isNumbered(t1) || number.isEmpty()) return;
    const QString claim = database_.dialect().claim();
    if (!claim.isEmpty()) database_.run(claim, {QString(t1 + QLatin1Char(' ') + number)});
    Query taken = database_.run(
        QStringLiteral("select 1 from {schema}.tblWorkspace where tiporecord = ? and t1 = ? and idrif1 = ?"),
        {tiporecord, t1, number});
    if (taken.next()) throw host::NumberTakenError(QStringLiteral("Il numero %1 è già assegnato.").arg(number));
}

bool CorvalaRecords::Elimina(const QString& id) {
    return table_.remove(id);
}

void CorvalaRecords::Refresh() {
    database_.noticeOthers();
}

} // namespace desk
