#pragma once

#include "desk/data/PatientScope.h"
#include "desk/data/PatientTable.h"

#include <QHash>

class QFile;
class QIODevice;

namespace desk {

/// Files of one patient, content included, in `tblFiles` and, beyond their first part, in `tblFileParti`: a file passes
/// through memory part by part. A temporary copy is made in the run's own folder, each in a folder to itself.
class PatientFiles : public host::Files {
public:
    static constexpr qint64 largest = 500LL * 1024 * 1024; ///< Bytes; a longer file is refused.

    explicit PatientFiles(const PatientScope& scope);

    QList<host::VoceFile> Lista() override;
    std::optional<host::VoceFile> Carica(const QString& id) override;
    /// With an id the description and the content are replaced. False when the file cannot be read or is too large.
    bool SalvaFile(QString& id, const QString& description, const QString& path) override;
    bool Elimina(const QString& id) override;
    void Refresh() override;
    QString EstraiFile(const QString& id) override;
    void Visualizza(const QString& id) override;

    /// Writes the content to a place of the user's choice, over a file that is there only once all of it is written.
    bool copyTo(const QString& id, const QString& path);
    bool describe(const QString& id, const QString& description); ///< Changes the description alone.
    QHash<QString, qint64> sizes();                               ///< Length in bytes, by id. Throws DatabaseError.

private:
    bool storeContent(const QString& id, QFile& source);
    bool writeContent(const QString& id, QIODevice& copy);

    PatientScope scope_;
    PatientTable table_;
    PatientTable contents_; ///< The same table with the content, which lists leave out.
};

} // namespace desk
