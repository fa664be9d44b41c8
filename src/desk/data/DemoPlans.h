#pragma once

#include "desk/data/DemoTable.h"
#include "desk/data/PatientData.h"
#include "desk/data/UserData.h"

namespace desk {

/// The treatment plans of the demo practice, in the form in which the dentistry module stores them.
class DemoPlans {
public:
    DemoPlans();

    int size() const { return plans_.size(); }
    QString number(int plan) const { return plans_.text(plan, "numero"); }
    QString taxCode(int plan) const { return plans_.text(plan, "codicefiscale"); }
    QString doctorCode(int plan) const { return plans_.text(plan, "medico"); }
    QString description(int plan) const { return plans_.text(plan, "descrizione"); }
    QString date(int plan) const; ///< Regional short form.
    QString memo(int plan, const PatientData& patient, const UserData& doctor) const;

private:
    QString row(int row) const;

    DemoTable plans_;
    DemoTable rows_;
};

} // namespace desk
