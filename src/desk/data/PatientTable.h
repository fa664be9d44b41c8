#pragma once

#include "desk/data/PatientScope.h"
#include "desk/data/Query.h"

#include <QStringList>
#include <QVariantList>
#include <functional>

namespace desk {

/// The rows of one table that belong to one patient, in the shape all those tables share: identity, patient, columns of
/// their own, and who changed the row when. Reading throws DatabaseError; writing is one transaction and answers false.
class PatientTable {
public:
    /// `condition`, such as " and a=1", narrows the table down.
    PatientTable(const PatientScope& scope, QString name, QStringList columns, QString condition = {});
    /// That this column holds texts long enough for the way in which they are read to matter.
    void setLongText(const QString& column) { longText_ = column; }

    Query rows(const QString& order) const; ///< ID, then the columns.
    Query row(const QString& id) const;
    /// Inserts when `id` is empty and writes the new identity into it; else updates, false when the row is gone.
    /// `beforeInsert` runs within the transaction; what it throws, save a DatabaseError, reaches the caller.
    bool save(QString& id, const QVariantList& values, const std::function<void()>& beforeInsert = {}) const;
    bool remove(const QString& id) const;

private:
    void insert(const QString& id, const QVariantList& values) const;
    bool update(const QString& id, const QVariantList& values) const;
    QVariantList stamped(const QVariantList& values) const;
    QString selected() const;

    PatientScope scope_;
    QString name_;
    QStringList columns_;
    QString condition_;
    QString longText_;
};

} // namespace desk
