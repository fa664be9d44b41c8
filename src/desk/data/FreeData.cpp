#include "desk/data/FreeData.h"

#include "desk/data/Database.h"
#include "desk/data/Identity.h"
#include "desk/data/Transaction.h"
#include "platform/Clock.h"

namespace desk {

namespace {

host::ItemDati itemOf(const Query& query) {
    return {query.text(0), query.text(1), query.text(2), query.text(3)};
}

QString selectItems() {
    return QStringLiteral("select ID, Cartella, descrizione, file from {schema}.tblDati");
}

} // namespace

QList<host::ItemDati> FreeData::Lista(const QString& cartella, bool sottocartelle) {
    QString condition = QStringLiteral(" where Cartella = ?");
    QVariantList values{cartella};
    if (sottocartelle) {
        condition += QStringLiteral(" or substr(Cartella, 1, length(?)) = ?");
        const QString below = cartella + QLatin1Char('/');
        values << below << below;
    }
    QList<host::ItemDati> list;
    for (Query query =
             database_.run(selectItems() + condition + QStringLiteral(" order by Cartella, descrizione, ID"), values);
         query.next();)
        list << itemOf(query);
    return list;
}

std::optional<host::ItemDati> FreeData::Carica(const QString& id) {
    Query query = database_.run(selectItems() + QStringLiteral(" where ID = ?"), {id});
    if (!query.next()) return std::nullopt;
    return itemOf(query);
}

bool FreeData::Salva(host::ItemDati& item, bool sovrascrivi) {
    const QVariant now = storedMoment(platform::now());
    const QString id = item.ID.isEmpty() ? newIdentity() : item.ID;
    const QString replace = QStringLiteral(
        " on conflict (ID) do update set Cartella = excluded.Cartella, descrizione = excluded.descrizione, "
        "file = excluded.file, ModificatoDa = excluded.ModificatoDa, "
        "DataModifica = excluded.DataModifica, LastUpdate = excluded.LastUpdate");
    try {
        Transaction transaction(database_);
        database_.run(QStringLiteral("insert into {schema}.tblDati (ID, Cartella, descrizione, file, ModificatoDa, "
                                     "DataModifica, LastUpdate) "
                                     "values (?, ?, ?, ?, ?, ?, ?)") +
                          (sovrascrivi ? replace : QString()),
                      {id, item.Cartella, item.descrizione, item.file, sign_, now, now});
        transaction.commit();
    } catch (const DatabaseError&) {
        return false;
    }
    item.ID = id;
    return true;
}

bool FreeData::Elimina(const QString& id) {
    try {
        Transaction transaction(database_);
        if (database_.run(QStringLiteral("delete from {schema}.tblDati where ID = ?"), {id}).affectedRows() != 1)
            return false;
        transaction.commit();
        return true;
    } catch (const DatabaseError&) {
        return false;
    }
}

bool FreeData::isFolderName(const QString& folder) {
    for (const QString& level : folder.split(QLatin1Char('/')))
        if (level.trimmed().isEmpty()) return false;
    return true;
}

QStringList FreeData::folders() {
    QStringList folders;
    for (Query query =
             database_.run(QStringLiteral("select distinct Cartella from {schema}.tblDati order by Cartella"));
         query.next();)
        folders << query.text(0);
    return folders;
}

bool FreeData::moveFolder(const QString& from, const QString& to) {
    const QVariant now = storedMoment(platform::now());
    return changeFolder(QStringLiteral("update {schema}.tblDati set "
                                       "Cartella = cast(? as text) || substr(Cartella, length(cast(? as text)) + 1), "
                                       "ModificatoDa = ?, DataModifica = ?, LastUpdate = ?"),
                        {to, from, sign_, now, now}, from);
}

bool FreeData::removeFolder(const QString& folder) {
    return changeFolder(QStringLiteral("delete from {schema}.tblDati"), {}, folder);
}

bool FreeData::changeFolder(const QString& statement, const QVariantList& values, const QString& folder) {
    const QString below = folder + QLatin1Char('/');
    try {
        Transaction transaction(database_);
        const Query query =
            database_.run(statement + QStringLiteral(" where Cartella = ? or substr(Cartella, 1, length(?)) = ?"),
                          QVariantList(values) << folder << below << below);
        if (query.affectedRows() < 1) return false;
        transaction.commit();
        return true;
    } catch (const DatabaseError&) {
        return false;
    }
}

} // namespace desk
