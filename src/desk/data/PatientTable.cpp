#include "desk/data/PatientTable.h"

#include "desk/data/Database.h"
#include "desk/data/Identity.h"
#include "desk/data/Transaction.h"
#include "platform/Clock.h"

namespace desk {

PatientTable::PatientTable(const PatientScope& scope, QString name, QStringList columns, QString condition)
    : scope_(scope)
    , name_(std::move(name))
    , columns_(std::move(columns))
    , condition_(std::move(condition)) {}

QString PatientTable::selected() const {
    QStringList columns = columns_;
    const qsizetype memo = columns.indexOf(longText_);
    if (memo >= 0) columns[memo] = scope_.database.dialect().longText(longText_);
    return QStringLiteral("ID, ") + columns.join(QStringLiteral(", "));
}

Query PatientTable::rows(const QString& order) const {
    return scope_.database.run(QStringLiteral("select %1 from {schema}.%2 where idpaziente = ?%3 order by %4")
                                   .arg(selected(), name_, condition_, order),
                               {scope_.patient.ID()});
}

Query PatientTable::row(const QString& id) const {
    return scope_.database.run(QStringLiteral("select %1 from {schema}.%2 where ID = ? and idpaziente = ?%3")
                                   .arg(selected(), name_, condition_),
                               {id, scope_.patient.ID()});
}

bool PatientTable::save(QString& id, const QVariantList& values, const std::function<void()>& beforeInsert) const {
    if (scope_.patient.ID().isEmpty()) return false;
    try {
        Transaction transaction(scope_.database);
        QString saved = id;
        if (id.isEmpty()) {
            if (beforeInsert) beforeInsert();
            saved = newIdentity();
            insert(saved, values);
        } else if (!update(id, values)) {
            return false;
        }
        transaction.commit();
        id = saved;
        return true;
    } catch (const DatabaseError&) {
        return false;
    }
}

void PatientTable::insert(const QString& id, const QVariantList& values) const {
    const QString columns = columns_.join(QStringLiteral(", "));
    const QString places = QStringLiteral("?, ").repeated(columns_.size());
    scope_.database.run(
        QStringLiteral("insert into {schema}.%1 (%2, ModificatoDa, DataModifica, LastUpdate, ID, idpaziente) "
                       "values (%3?, ?, ?, ?, ?)")
            .arg(name_, columns, places),
        stamped(values) << id << scope_.patient.ID());
}

bool PatientTable::update(const QString& id, const QVariantList& values) const {
    const QString places = columns_.join(QStringLiteral(" = ?, "));
    const Query query = scope_.database.run(
        QStringLiteral("update {schema}.%1 set %2 = ?, ModificatoDa = ?, DataModifica = ?, LastUpdate = ? "
                       "where ID = ? and idpaziente = ?%3")
            .arg(name_, places, condition_),
        stamped(values) << id << scope_.patient.ID());
    return query.affectedRows() == 1;
}

bool PatientTable::remove(const QString& id) const {
    try {
        Transaction transaction(scope_.database);
        const int removed =
            scope_.database
                .run(QStringLiteral("delete from {schema}.%1 where ID = ? and idpaziente = ?%2").arg(name_, condition_),
                     {id, scope_.patient.ID()})
                .affectedRows();
        if (removed != 1) return false;
        transaction.commit();
        return true;
    } catch (const DatabaseError&) {
        return false;
    }
}

QVariantList PatientTable::stamped(const QVariantList& values) const {
    const QVariant now = storedMoment(platform::now());
    return QVariantList(values) << scope_.sign << now << now;
}

} // namespace desk
