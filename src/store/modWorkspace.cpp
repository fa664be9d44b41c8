#include "store/modWorkspace.h"

#include "platform/Regional.h"

#include <QStringList>

QString joinIdrif1(const WorkspaceItem& item) {
    return item.anno + QLatin1Char('-') + item.progressivo;
}

void splitIdrif1(const QString& idrif1, WorkspaceItem& item) {
    const QStringList parts = idrif1.split(QLatin1Char('-'));
    const bool numbered = parts.size() == 2;
    item.anno = numbered ? parts[0] : QString();
    item.progressivo = numbered ? parts[1] : QString();
}

void readRow(const host::RigaCorvala& row, WorkspaceItem& item) {
    item.ID = row.ID;
    item.Data = platform::regional().shortDate(row.Data.date());
    splitIdrif1(row.idrif1, item);
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
