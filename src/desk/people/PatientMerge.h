#pragma once

#include "desk/data/PatientData.h"
#include "desk/data/UserData.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace desk {

/// A patient's card that two workstations changed, both starting from the same one, brought together so that neither
/// loses anything: each keeps the fields that it alone changed. A plain value.
struct PatientMerge {
    PatientData merged;    ///< Where both changed a field, ours; of the notes both texts.
    QStringList taken;     ///< Captions of the fields that are the other's.
    QStringList contested; ///< Captions of those that both changed, with what the other wrote.

    QString toText() const; ///< What the user has to know of it.
};

PatientMerge mergePatients(const PatientData& start, const PatientData& ours, const PatientData& theirs,
                           const QList<UserData>& users);

} // namespace desk
