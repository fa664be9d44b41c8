#include "desk/data/PatientFiles.h"

#include "desk/data/Database.h"
#include "desk/data/WorkFolders.h"
#include "host/contract/HostError.h"
#include "platform/Clock.h"
#include "platform/Files.h"

#include <QDir>
#include <QFileInfo>

namespace desk {

namespace {

host::VoceFile fileOf(const Query& query) {
    return {query.text(0), query.text(1), query.moment(2), query.text(3)};
}

// A folder per file, so that two pictures of the same name do not meet; only the name's last part counts, whatever was
// stored.
QString temporaryPath(const host::VoceFile& file) {
    const QDir folder(workFolders::temporary() + QLatin1Char('/') + QFileInfo(file.ID).fileName());
    const QString name = QFileInfo(file.file).fileName();
    if (!folder.mkpath(QStringLiteral("."))) return {};
    return folder.filePath(name.isEmpty() || name == QLatin1String("..") ? file.ID : name);
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
    try {
        QList<host::VoceFile> list;
        for (Query query = table_.rows(QStringLiteral("Data, ID")); query.next();)
            list << fileOf(query);
        return list;
    } catch (const DatabaseError&) {
        return {};
    }
}

std::optional<host::VoceFile> PatientFiles::Carica(const QString& id) {
    try {
        Query query = table_.row(id);
        if (!query.next()) return std::nullopt;
        return fileOf(query);
    } catch (const DatabaseError&) {
        return std::nullopt;
    }
}

bool PatientFiles::SalvaFile(QString& id, const QString& descrizione, const QString& path) {
    const std::optional<QByteArray> content = platform::files::read(path);
    if (!content) return false;
    // A picture that was edited keeps the date on which it was taken in.
    QDateTime date = platform::now();
    if (!id.isEmpty()) {
        if (const auto known = Carica(id)) date = known->Data;
    }
    const QString name = QFileInfo(platform::files::resolve(path)).fileName();
    return contents_.save(id, {descrizione, storedMoment(date), name, *content});
}

bool PatientFiles::Elimina(const QString& id) {
    return table_.remove(id);
}

void PatientFiles::Refresh() {
    scope_.database.noticeOthers();
}

QString PatientFiles::EstraiFile(const QString& id) {
    try {
        Query query = contents_.row(id);
        if (!query.next()) return {};
        const QString path = temporaryPath(fileOf(query));
        if (path.isEmpty() || !platform::files::writeAtomically(path, query.value(4).toByteArray())) return {};
        return path;
    } catch (const DatabaseError&) {
        return {};
    }
}

void PatientFiles::Visualizza(const QString& id) {
    if (!scope_.hooks.showFile) throw host::HostError(QStringLiteral("I file non possono essere mostrati."));
    const QString path = EstraiFile(id);
    if (!path.isEmpty()) scope_.hooks.showFile(path);
}

} // namespace desk
