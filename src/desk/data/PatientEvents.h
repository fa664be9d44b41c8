#pragma once

#include "desk/data/PatientScope.h"
#include "desk/data/PatientTable.h"

namespace desk {

/// The patient's diary, in `tblEventi`, newest first.
class PatientEvents : public host::Eventi {
public:
    explicit PatientEvents(const PatientScope& scope);

    QList<host::Evento> Lista() override;
    bool Salva(host::Evento& evento) override; ///< False too when `Data` is no date.
    bool Elimina(const QString& id) override;
    void Refresh() override;

    std::optional<host::Evento> Carica(const QString& id);

private:
    Database& database_;
    PatientTable table_;
};

} // namespace desk
