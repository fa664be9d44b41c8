#include "store/modWorkspace.h"

#include "platform/Regional.h"

void readRow(const host::RigaCorvala& row, WorkspaceItem& item) {
    item.ID = row.ID;
    item.Data = platform::regional().shortDate(row.Data.date());
    item.setNumber(RecordNumber::parse(row.idrif1));
    item.descrizione = row.descrizione;
}

QString periodQuery(const QString& t1, const QDate& from, const QDate& to) {
    QString sql =
        QStringLiteral("Select * from ") + runningHost().Utente().idschema() + QStringLiteral(".tblWorkspace where ");
    if (from.isValid() && to.isValid()) {
        sql += QStringLiteral("data Between '%1 00:00:00' AND '%2 23:59:59' and ")
                   .arg(from.toString(Qt::ISODate), to.toString(Qt::ISODate));
    }
    return sql + QStringLiteral("tiporecord=906 and t1='") + t1 + QLatin1Char('\'');
}
