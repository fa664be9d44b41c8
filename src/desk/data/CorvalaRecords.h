#pragma once

#include "desk/data/PatientScope.h"
#include "desk/data/PatientTable.h"

namespace desk {

/// The module's rows of `tblWorkspace` under one patient. Reading throws DatabaseError, writing answers false. The list
/// is kept until something is written, here or by another workstation. A new numbered document never takes a number
/// that another one has, whichever workstation stored it; doubled numbers of former years stay.
class CorvalaRecords : public host::Corvala {
public:
    static constexpr int tiporecord = 906; ///< Marks the rows of this module among all others in the table.

    explicit CorvalaRecords(const PatientScope& scope);

    QList<host::RigaCorvala> Lista() override;
    std::optional<host::RigaCorvala> Carica(const QString& id) override;
    bool Salva(QString& id, const host::DatiCorvala& data) override;
    bool Elimina(const QString& id) override;
    void Refresh() override; ///< Notices what others wrote.

private:
    void claimNumber(const QString& t1, const QString& number);

    Database& database_;
    PatientTable table_;
    QList<host::RigaCorvala> list_;
    quint64 listed_ = 0; ///< Generation of the database that `list_` shows; 0 for none.
};

} // namespace desk
