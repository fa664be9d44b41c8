#include "desk/data/CorvalaRecords.h"

#include "desk/data/Database.h"
#include "platform/Regional.h"

namespace desk {

namespace {

host::RigaCorvala rowOf(const Query& query) {
    return {query.text(0), query.moment(1), query.text(2), query.text(3), query.text(4), query.text(5)};
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
    try {
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
    } catch (const DatabaseError&) {
        return {};
    }
}

std::optional<host::RigaCorvala> CorvalaRecords::Carica(const QString& id) {
    try {
        Query query = table_.row(id);
        if (!query.next()) return std::nullopt;
        return rowOf(query);
    } catch (const DatabaseError&) {
        return std::nullopt;
    }
}

bool CorvalaRecords::Salva(QString& id, const host::DatiCorvala& dati) {
    const std::optional<QDate> date = platform::regional().toDate(dati.Data);
    if (!date) return false;
    return table_.save(id,
                       {storedMoment(date->startOfDay()), dati.idrif1, dati.descrizione, dati.m1, dati.t1, tiporecord});
}

bool CorvalaRecords::Elimina(const QString& id) {
    return table_.remove(id);
}

void CorvalaRecords::Refresh() {
    database_.noticeOthers();
}

} // namespace desk
