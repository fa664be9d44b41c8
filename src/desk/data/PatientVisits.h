#pragma once

#include "desk/data/PatientScope.h"
#include "desk/data/PatientTable.h"

namespace desk {

/// The patient's visits, in `tblVisite`, newest first.
class PatientVisits : public host::VisiteAmbDom {
public:
    explicit PatientVisits(const PatientScope& scope);

    QList<host::Visita> Lista() override;
    QObject* EditForm(const QString& id) override;

    std::optional<host::Visita> Carica(const QString& id);
    bool Salva(host::Visita& visit); ///< Inserts when `ID` is empty and writes the new identity into it.
    bool Elimina(const QString& id);

private:
    PatientScope scope_;
    PatientTable table_;
};

} // namespace desk
