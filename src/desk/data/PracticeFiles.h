#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

namespace desk {

/// A file that belongs to the practice but does not lie in its archive. The name is the same wherever its folder is.
struct PracticeFile {
    QString name; ///< "Config.xml", or "DB/" and the name of a catalogue.
    QByteArray content;
};

/// The folders of such files: the settings of this user, and the catalogues, which several workstations may share and
/// which the settings name. A safety copy takes their files along.
class PracticeFolders {
public:
    static PracticeFolders ofUser();
    PracticeFolders(QString settings, QString catalogues)
        : settings_(std::move(settings))
        , catalogues_(std::move(catalogues)) {}

    QList<PracticeFile> files() const; ///< What can be read; formerly replaced ones are left out.
    /// Puts files of a copy into the folders, which are made when they are not there. The catalogues stay where they are
    /// found now. What another file takes the place of stays beside it, with the date in its name. Returns the names of
    /// the files that changed; throws DatabaseError for the first that cannot be written.
    QStringList putBack(const QList<PracticeFile>& files) const;

private:
    QString pathOf(const PracticeFile& file) const;
    QByteArray fitted(const PracticeFile& file) const;

    QString settings_; ///< Both without a final separator.
    QString catalogues_;
};

} // namespace desk
