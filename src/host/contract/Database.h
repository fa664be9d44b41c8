#pragma once

#include <QString>
#include <QVariant>
#include <memory>

namespace host {

/// Rows of a query, at the first row when opened. Column names ignore case. Owned by the caller.
class Recordset {
public:
    virtual ~Recordset() = default;
    virtual int RecordCount() const = 0;
    virtual bool isEOF() const = 0;
    virtual void MoveNext() = 0;
    /// Value in the current row; a null variant for a null value, an unknown column or past the end. A long text may
    /// come as its bytes in UTF-8, which convert to text as a variant does.
    virtual QVariant value(const QString& column) const = 0;
    /// The value as text: empty for a null, dates as "yyyy-MM-dd HH:mm:ss".
    virtual QString text(const QString& column) const = 0;
};

/// The host's database, for queries across patients and for numbering.
class DB {
public:
    virtual ~DB() = default;
    /// Throws HostError when the statement fails; nothing for a statement that gives no rows.
    virtual std::unique_ptr<Recordset> OpenRecordset(const QString& sql) = 0;
    /// Runs one statement in a transaction of its own; throws HostError when it fails.
    virtual void Execute(const QString& sql) = 0;
    /// Text that identifies the signed-in operator in the columns `ModificatoDa`.
    virtual QString Sign() const = 0;
};

} // namespace host
