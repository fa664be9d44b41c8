#pragma once

#include "desk/data/PatientScope.h"
#include "desk/data/PatientTable.h"

namespace desk {

/// The patient's notes, in `tblAppunti`, newest first. `b1` (private) and `b2` (important) are stored as 0 or 1.
class PatientNotes : public host::Appunti {
public:
    explicit PatientNotes(const PatientScope& scope);

    QList<host::Appunto> Lista() override;
    bool Elimina(const QString& id) override;
    QObject* EditForm(const QString& id) override;

    std::optional<host::Appunto> Carica(const QString& id);
    bool Salva(host::Appunto& note); ///< Inserts when `ID` is empty and writes the new identity into it.

private:
    PatientScope scope_;
    PatientTable table_;
};

} // namespace desk
