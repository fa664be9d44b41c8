#include "desk/data/Dialect.h"

#include "desk/data/PostgresDialect.h"
#include "desk/data/SqliteDialect.h"

namespace desk {

std::unique_ptr<Dialect> Dialect::forKind(DatabaseUrl::Kind kind) {
    if (kind == DatabaseUrl::Kind::PostgreSql) return std::make_unique<PostgresDialect>();
    return std::make_unique<SqliteDialect>();
}

void Dialect::enter(QSqlDatabase&, const QString&) const {}

bool Dialect::tellsDamage(const QSqlError&) const {
    return false;
}

std::optional<int> Dialect::socketOf(const QSqlDatabase&) const {
    return std::nullopt;
}

} // namespace desk
