#include "desk/data/PatientFiles.h"

#include "desk/data/Database.h"
#include "desk/data/FileNames.h"
#include "desk/data/Transaction.h"
#include "desk/data/WorkFolders.h"
#include "host/contract/HostError.h"
#include "platform/Clock.h"
#include "platform/Files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

namespace desk {

namespace {

/// Bytes that pass through memory at a time; on a server some twenty times as much.
constexpr qint64 PART = 1024 * 1024;

host::VoceFile fileOf(const Query& query) {
    return {query.text(0), query.text(1), query.moment(2), query.text(3)};
}

// A folder per copy: two pictures of one name do not meet, nor does a copy that is being worked on and a new one.
QString temporaryPath(const host::VoceFile& file) {
    QTemporaryDir folder(workFolders::temporary() + QStringLiteral("/file-XXXXXX"));
    if (!folder.isValid()) return {};
    folder.setAutoRemove(false); // It goes with the folder of the run.
    return folder.filePath(safeFileName(file.file));
}

} // namespace

PatientFiles::PatientFiles(const PatientScope& scope)
    : scope_(scope)
    , table_(scope, QStringLiteral("tblFiles"),
             {QStringLiteral("Descrizione"), QStringLiteral("Data"), QStringLiteral("file")})
    , contents_(scope, QStringLiteral("tblFiles"),
                {QStringLiteral("Descrizione"), QStringLiteral("Data"), QStringLiteral("file"),
                 QStringLiteral("contenuto")}) {}

QList<host::VoceFile> PatientFiles::Lista() {
    QList<host::VoceFile> list;
    for (Query query = table_.rows(QStringLiteral("Data, ID")); query.next();)
        list << fileOf(query);
    return list;
}

std::optional<host::VoceFile> PatientFiles::Carica(const QString& id) {
    Query query = table_.row(id);
    if (!query.next()) return std::nullopt;
    return fileOf(query);
}

bool PatientFiles::SalvaFile(QString& id, const QString& description, const QString& path) {
    QFile source(platform::files::resolve(path));
    if (!QFileInfo(source).isFile() || source.size() > largest || !source.open(QIODevice::ReadOnly)) return false;
    // A picture that was edited keeps the date on which it was taken in.
    QDateTime date = platform::now();
    QString saved = id;
    try {
        if (!id.isEmpty()) {
            if (const auto known = Carica(id)) date = known->Data;
        }
        Transaction transaction(scope_.database);
        const QByteArray first = source.read(PART);
        const QString name = QFileInfo(source).fileName();
        if (!contents_.save(saved, {description, storedMoment(date), name, first})) return false;
        if (!storeContent(saved, source)) return false;
        transaction.commit();
    } catch (const DatabaseError&) {
        return false;
    }
    id = saved;
    return true;
}

/// What follows the part that was read already.
bool PatientFiles::storeContent(const QString& id, QFile& source) {
    scope_.database.run(QStringLiteral("delete from {schema}.tblFileParti where idfile = ?"), {id});
    qint64 stored = source.pos();
    for (int number = 1; !source.atEnd(); ++number) {
        const QByteArray part = source.read(PART);
        stored += part.size();
        if (part.isEmpty() || stored > largest) return false;
        scope_.database.run(
            QStringLiteral("insert into {schema}.tblFileParti (idfile, numero, contenuto) values (?, ?, ?)"),
            {id, number, part});
    }
    return source.error() == QFileDevice::NoError;
}

bool PatientFiles::describe(const QString& id, const QString& description) {
    try {
        const auto known = Carica(id);
        QString same = id;
        return known && table_.save(same, {description, storedMoment(known->Data), known->file});
    } catch (const DatabaseError&) {
        return false;
    }
}

QHash<QString, qint64> PatientFiles::sizes() {
    // Summed as text lengths are: neither system reads the bytes for it.
    Query query = scope_.database.run(
        QStringLiteral("select f.ID, coalesce(length(f.contenuto), 0) + coalesce((select sum(length(p.contenuto)) "
                       "from {schema}.tblFileParti p where p.idfile = f.ID), 0) "
                       "from {schema}.tblFiles f where f.idpaziente = ?"),
        {scope_.patient.ID()});
    QHash<QString, qint64> sizes;
    while (query.next())
        sizes.insert(query.text(0), query.value(1).toLongLong());
    return sizes;
}

bool PatientFiles::Elimina(const QString& id) {
    return table_.remove(id);
}

void PatientFiles::Refresh() {
    scope_.database.noticeOthers();
}

QString PatientFiles::EstraiFile(const QString& id) {
    const std::optional<host::VoceFile> file = Carica(id);
    const QString path = file ? temporaryPath(*file) : QString();
    if (path.isEmpty()) return {};
    if (copyTo(id, path)) return path;
    QDir().rmdir(QFileInfo(path).path());
    return {};
}

bool PatientFiles::writeContent(const QString& id, QIODevice& copy) {
    {
        Query query = contents_.row(id);
        if (!query.next()) return false;
        const QByteArray first = query.value(4).toByteArray();
        if (copy.write(first) != first.size()) return false;
    }
    Query query = scope_.database.run(
        QStringLiteral("select contenuto from {schema}.tblFileParti where idfile = ? order by numero"), {id});
    while (query.next()) {
        const QByteArray part = query.value(0).toByteArray();
        if (copy.write(part) != part.size()) return false;
    }
    return true;
}

bool PatientFiles::copyTo(const QString& id, const QString& path) {
    try {
        return platform::files::replace(path, [&](QIODevice& copy) { return writeContent(id, copy); });
    } catch (const DatabaseError&) {
        return false;
    }
}

void PatientFiles::Visualizza(const QString& id) {
    if (!scope_.hooks.showFile) throw host::HostError(QStringLiteral("I file non possono essere mostrati."));
    const QString path = EstraiFile(id);
    if (!path.isEmpty()) scope_.hooks.showFile(path);
}

} // namespace desk
