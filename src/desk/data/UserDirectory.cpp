#include "desk/data/UserDirectory.h"

#include "desk/data/Database.h"
#include "desk/data/Identity.h"
#include "desk/data/Transaction.h"
#include "platform/Clock.h"

#include <algorithm>

namespace desk {

QList<host::VoceUtente> UserDirectory::Lista() {
    QList<host::VoceUtente> list;
    for (const UserData& user : all())
        list << host::VoceUtente{user.ID, user.codicefiscale, user.Cognome, user.Nome, user.tipo};
    return list;
}

QList<UserData> UserDirectory::all() {
    QList<UserData> list;
    Query query = database_.run(QStringLiteral("select ID, codice, Cognome, Nome, codicefiscale, tipo, codiceattivita "
                                               "from {schema}.tblUtenti order by tipo, Cognome, Nome, ID"));
    while (query.next()) {
        list << UserData{query.text(0), query.text(1),   query.text(2), query.text(3),
                         query.text(4), query.number(5), query.text(6)};
    }
    return list;
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
    QList<UserData> users = all();
    if (users.isEmpty()) {
        UserData first{{}, QStringLiteral("MEDICO"), QStringLiteral("Medico"), QStringLiteral("dello studio"), {},
                       0,  QStringLiteral("OD")};
        if (!insert(first)) return std::nullopt;
        users << first;
    }
    if (code.isEmpty()) return users.first();
    return byCode(code);
}

bool UserDirectory::insert(UserData& user) {
    const QString id = newIdentity();
    const QVariant now = storedMoment(platform::now());
    try {
        Transaction transaction(database_);
        database_.run(
            QStringLiteral(
                "insert into {schema}.tblUtenti (ID, codice, Cognome, Nome, codicefiscale, tipo, codiceattivita, "
                "DataModifica, LastUpdate) values (?, ?, ?, ?, ?, ?, ?, ?, ?)"),
            {id, user.codice, user.Cognome, user.Nome, user.codicefiscale, user.tipo, user.codiceAttivita, now, now});
        transaction.commit();
    } catch (const DatabaseError&) {
        return false;
    }
    user.ID = id;
    return true;
}

} // namespace desk
