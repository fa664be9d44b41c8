#pragma once

#include <QSqlDatabase>
#include <QString>
#include <QVariant>
#include <QVariantList>

class QSqlQuery;

namespace desk {

/// A file of the database system that is not the practice at work: a copy, looked into or made. Its own connection,
/// closed with the object. Throws DatabaseError.
class SqliteFile {
public:
    enum class Use { Look, Write }; ///< Looking changes nothing in the file and lays nothing beside it.
    SqliteFile(const QString& path, Use use);
    ~SqliteFile();
    SqliteFile(const SqliteFile&) = delete;
    SqliteFile& operator=(const SqliteFile&) = delete;

    /// The first answer; an invalid value where there is none or the question fails.
    QVariant ask(const QString& sql) const;
    QSqlQuery rows(const QString& sql) const; ///< None where the question fails. Ends before the file.
    void execute(const QString& sql, const QVariantList& values = {});

    static QString address(const QString& path, const QString& parameters); ///< For "attach" and opening.

private:
    QString name_;
    QSqlDatabase connection_;
};

/// A file that goes again unless it was put to use.
class DraftFile {
public:
    explicit DraftFile(const QString& finalPath);
    ~DraftFile();
    DraftFile(const DraftFile&) = delete;
    DraftFile& operator=(const DraftFile&) = delete;
    const QString& path() const { return path_; }
    /// Puts it in the place of another in one step, as a power cut may come at any moment.
    void moveOver(const QString& to) const;

private:
    QString path_;
};

/// The endings of the file itself and of what the database system lays beside it.
inline constexpr const char* SQLITE_ENDINGS[] = {"", "-wal", "-shm", "-journal"};

bool hasSqliteLog(const QString& path); ///< Changes beside the file that are not in it yet.
bool putOnDisk(const QString& path);    ///< Waits until the disk holds the file, or the folder's list of names.

} // namespace desk
