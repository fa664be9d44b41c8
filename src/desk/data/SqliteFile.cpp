#include "desk/data/SqliteFile.h"

#include "desk/data/DatabaseError.h"
#include "desk/data/SqliteDialect.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlError>
#include <QSqlQuery>
#include <QUrl>
#include <QUuid>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace desk {

namespace {

QString oneOfAKind() {
    return QUuid::createUuid().toString(QUuid::WithoutBraces).left(8);
}

} // namespace

SqliteFile::SqliteFile(const QString& path, Use use)
    : name_(QStringLiteral("copia-") + oneOfAKind())
    , connection_(QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name_)) {
    const bool looks = use == Use::Look;
    connection_.setConnectOptions(looks ? QStringLiteral("QSQLITE_OPEN_URI;QSQLITE_OPEN_READONLY")
                                        : QStringLiteral("QSQLITE_OPEN_URI"));
    connection_.setDatabaseName(address(path, looks ? QStringLiteral("?immutable=1") : QStringLiteral("?mode=rw")));
    if (!connection_.open()) throw DatabaseError(QStringLiteral("La copia non si può leggere."));
}

SqliteFile::~SqliteFile() {
    connection_.close();
    connection_ = QSqlDatabase();
    QSqlDatabase::removeDatabase(name_);
}

QVariant SqliteFile::ask(const QString& sql) const {
    QSqlQuery query = rows(sql);
    return query.next() ? query.value(0) : QVariant();
}

QSqlQuery SqliteFile::rows(const QString& sql) const {
    QSqlQuery query(connection_);
    query.setForwardOnly(true);
    query.exec(sql);
    return query;
}

void SqliteFile::execute(const QString& sql, const QVariantList& values) {
    QSqlQuery query(connection_);
    query.prepare(sql);
    for (const QVariant& value : values)
        query.addBindValue(value);
    if (!query.exec()) throw DatabaseError(SqliteDialect().explain(query.lastError()));
}

QString SqliteFile::address(const QString& path, const QString& parameters) {
    return QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded) + parameters;
}

DraftFile::DraftFile(const QString& finalPath)
    : path_(finalPath + QStringLiteral(".parte-") + oneOfAKind()) {}

DraftFile::~DraftFile() {
    QFile::remove(path_);
}

void DraftFile::moveOver(const QString& to) const {
    const bool moved =
        putOnDisk(path_) && std::rename(QFile::encodeName(path_).constData(), QFile::encodeName(to).constData()) == 0;
    if (!moved)
        throw DatabaseError(QStringLiteral("Il file %1 non si può scrivere.").arg(QDir::toNativeSeparators(to)));
    putOnDisk(QFileInfo(to).absolutePath());
}

bool hasSqliteLog(const QString& path) {
    return QFileInfo(path + QStringLiteral("-wal")).size() > 0 ||
           QFileInfo(path + QStringLiteral("-journal")).size() > 0;
}

bool putOnDisk(const QString& path) {
    const int file = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (file < 0) return false;
    const bool done = ::fsync(file) == 0;
    ::close(file);
    return done;
}

} // namespace desk
