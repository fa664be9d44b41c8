#include "desk/data/UserDirectory.h"

#include "desk/data/Database.h"
#include "desk/data/Identity.h"
#include "desk/data/Transaction.h"
#include "platform/Clock.h"

#include <algorithm>

namespace desk {

namespace {

constexpr const char* signedTables[] = {"tblPazienti", "tblWorkspace", "tblFiles",    "tblEventi",
                                        "tblAppunti",  "tblVisite",    "tblScadenze", "tblDati"};

} // namespace

QList<host::VoceUtente> UserDirectory::Lista() {
    QList<host::VoceUtente> list;
    for (const UserData& user : all())
        list << host::VoceUtente{user.ID, user.codicefiscale, user.Cognome, user.Nome, user.tipo, user.attivo};
    return list;
}

QList<UserData> UserDirectory::all() {
    QList<UserData> list;
    Query query =
        database_.run(QStringLiteral("select ID, codice, Cognome, Nome, codicefiscale, tipo, codiceattivita, attivo, "
                                     "case when improntapassword is null then 0 else 1 end "
                                     "from {schema}.tblUtenti order by attivo desc, tipo, Cognome, Nome, ID"));
    while (query.next()) {
        list << UserData{query.text(0),   query.text(1), query.text(2),        query.text(3),       query.text(4),
                         query.number(5), query.text(6), query.number(7) != 0, query.number(8) != 0};
    }
    return list;
}

QList<UserData> UserDirectory::active() {
    QList<UserData> users = all();
    users.removeIf([](const UserData& user) { return !user.attivo; });
    return users;
}

std::optional<UserData> UserDirectory::byCode(const QString& code) {
    const QList<UserData> users = all();
    const auto found = std::find_if(users.cbegin(), users.cend(), [&code](const UserData& user) {
        return user.codice.compare(code, Qt::CaseInsensitive) == 0;
    });
    if (found == users.cend()) return std::nullopt;
    return *found;
}

std::optional<UserData> UserDirectory::forSignIn(const QString& code) {
    const QList<UserData> users = active();
    if (users.isEmpty()) {
        UserData first{{}, QStringLiteral("MEDICO"), QStringLiteral("Medico"), QStringLiteral("dello studio"), {},
                       0,  QStringLiteral("OD")};
        if (!all().isEmpty() || !insert(first)) return std::nullopt;
        return code.isEmpty() ? std::optional(first) : byCode(code);
    }
    if (code.isEmpty()) return users.first();
    const std::optional<UserData> named = byCode(code);
    return named && named->attivo ? named : std::nullopt;
}

bool UserDirectory::insert(UserData& user) {
    UserData added = user;
    added.ID.clear();
    try {
        save(added);
    } catch (const DatabaseError&) {
        return false;
    }
    user = added;
    return true;
}

bool UserDirectory::save(UserData& user, const std::optional<QString>& passwordHash) {
    UserData saved = user;
    Transaction transaction(database_);
    if (saved.ID.isEmpty())
        add(saved);
    else if (!change(saved))
        return false;
    if (passwordHash) {
        database_.run(QStringLiteral("update {schema}.tblUtenti set improntapassword = ?, tentativi = 0, "
                                     "istante = null where ID = ?"),
                      {passwordHash->isEmpty() ? QVariant() : QVariant(*passwordHash), saved.ID});
        saved.asksPassword = !passwordHash->isEmpty();
    }
    transaction.commit();
    user = saved;
    return true;
}

void UserDirectory::add(UserData& user) {
    user.ID = newIdentity();
    const QVariant now = storedMoment(platform::now());
    database_.run(
        QStringLiteral("insert into {schema}.tblUtenti (ID, codice, Cognome, Nome, codicefiscale, tipo, "
                       "codiceattivita, attivo, DataModifica, LastUpdate) values (?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
        {user.ID, user.codice, user.Cognome, user.Nome, user.codicefiscale, user.tipo, user.codiceAttivita,
         user.attivo ? 1 : 0, now, now});
}

bool UserDirectory::change(const UserData& user) {
    const QVariant now = storedMoment(platform::now());
    return database_
               .run(QStringLiteral(
                        "update {schema}.tblUtenti set codice = ?, Cognome = ?, Nome = ?, codicefiscale = ?, tipo = ?, "
                        "codiceattivita = ?, attivo = ?, DataModifica = ?, LastUpdate = ? where ID = ?"),
                    {user.codice, user.Cognome, user.Nome, user.codicefiscale, user.tipo, user.codiceAttivita,
                     user.attivo ? 1 : 0, now, now, user.ID})
               .affectedRows() == 1;
}

bool UserDirectory::hasRecords(const UserData& user) {
    const auto anyRow = [this](const QString& table, const QString& condition, const QString& value) {
        return database_
            .run(QStringLiteral("select 1 from {schema}.%1 where %2 limit 1").arg(table, condition), {value})
            .next();
    };
    if (anyRow(QStringLiteral("tblPazienti"), QStringLiteral("idmedico = ?"), user.ID)) return true;
    // Rows carry the signature of their last writer, plans the tax code of their doctors and assistants.
    for (const char* table : signedTables) {
        if (anyRow(QLatin1String(table), QStringLiteral("ModificatoDa = ?"), user.fullName())) return true;
    }
    return !user.codicefiscale.isEmpty() &&
           anyRow(QStringLiteral("tblWorkspace"), database_.dialect().contains(QStringLiteral("m1")),
                  user.codicefiscale);
}

bool UserDirectory::remove(const QString& id) {
    const QList<UserData> users = all();
    const auto found =
        std::find_if(users.cbegin(), users.cend(), [&id](const UserData& user) { return user.ID == id; });
    if (found == users.cend()) return false;
    Transaction transaction(database_);
    if (hasRecords(*found)) return false;
    database_.run(QStringLiteral("delete from {schema}.tblImpostazioni where idutente = ?"), {id});
    database_.run(QStringLiteral("delete from {schema}.tblUtenti where ID = ?"), {id});
    transaction.commit();
    return true;
}

} // namespace desk
