#include "desk/data/UserSettings.h"

#include "desk/data/Database.h"
#include "desk/data/Transaction.h"
#include "host/contract/HostError.h"
#include "platform/Clock.h"

namespace desk {

QString UserSettings::GetITEM(const QString& name) const {
    try {
        Query query =
            database_.run(QStringLiteral("select valore from {schema}.tblImpostazioni where idutente = ? and nome = ?"),
                          {userId_, name});
        return query.next() ? query.text(0) : QString();
    } catch (const DatabaseError&) {
        return {};
    }
}

void UserSettings::SetITEM(const QString& name, const QString& value) {
    try {
        Transaction transaction(database_);
        database_.run(
            QStringLiteral(
                "insert into {schema}.tblImpostazioni (idutente, nome, valore, LastUpdate) values (?, ?, ?, ?) "
                "on conflict (idutente, nome) do update set valore = excluded.valore, LastUpdate = "
                "excluded.LastUpdate"),
            {userId_, name, value, storedMoment(platform::now())});
        transaction.commit();
    } catch (const DatabaseError& error) {
        throw host::HostError(error.text());
    }
}

} // namespace desk
