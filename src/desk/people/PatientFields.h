#pragma once

#include "desk/data/PatientData.h"
#include "desk/data/UserData.h"
#include "platform/FormField.h"

#include <QList>
#include <span>

namespace desk {

/// The fields of a patient's card, as the editor shows them.
std::span<const platform::BoundField<PatientData>> patientFields();

/// A patient's card that two workstations changed, both starting from the same one, brought together so that neither
/// loses anything: each keeps the fields that it alone changed. A plain value.
struct PatientMerge {
    PatientData merged; ///< Where both changed a field, ours; of the notes both texts.
    QString told;       ///< What the user has to know of it.
};

PatientMerge mergePatients(const PatientData& start, const PatientData& ours, const PatientData& theirs,
                           const QList<UserData>& users);

} // namespace desk
