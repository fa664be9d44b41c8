#pragma once

#include "desk/data/PatientScope.h"
#include "desk/data/PatientTable.h"

#include <QDate>

namespace desk {

struct DueDate {
    QString ID;
    QDate Data;
    QString descrizione;
    bool chiusa = false;
};

/// The patient's due dates (recalls, checks, payments to ask for), in `tblScadenze`, earliest first.
class PatientDueDates : public host::Scadenze {
public:
    explicit PatientDueDates(const PatientScope& scope);

    QObject* EditForm(const QString& id) override;

    QList<DueDate> Lista();
    std::optional<DueDate> Carica(const QString& id);
    bool Salva(DueDate& dueDate); ///< Inserts when `ID` is empty and writes the new identity into it.
    bool Elimina(const QString& id);

private:
    PatientScope scope_;
    PatientTable table_;
};

} // namespace desk
