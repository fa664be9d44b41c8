#pragma once

#include "desk/data/PatientScope.h"
#include "desk/data/PatientTable.h"

namespace desk {

/// Files of one patient, content included, in `tblFiles`. A temporary copy is made in the run's own folder.
class PatientFiles : public host::Files {
public:
    explicit PatientFiles(const PatientScope& scope);

    QList<host::VoceFile> Lista() override;
    std::optional<host::VoceFile> Carica(const QString& id) override;
    /// With an id the description and the content are replaced. False when the file cannot be read.
    bool SalvaFile(QString& id, const QString& descrizione, const QString& path) override;
    bool Elimina(const QString& id) override;
    void Refresh() override;
    QString EstraiFile(const QString& id) override;
    void Visualizza(const QString& id) override;

private:
    PatientScope scope_;
    PatientTable table_;
    PatientTable contents_; ///< The same table with the content, which lists leave out.
};

} // namespace desk
