#pragma once

#include "desk/clinical/Kind.h"

namespace desk {

/// A kind of thing that is kept for a patient, for whoever shows it.
struct ClinicalKind {
    const char16_t* caption;
    platform::ListSource (*list)(const RoomContext& context);
    /// The editor of one row, new with an empty id; owned by the caller, who executes it. Throws HostError when the row
    /// is gone or not for this user. Null for a kind that is edited in its list alone.
    platform::RecordForm* (*form)(const RoomContext& context, const QString& id, QWidget* parent);
};

/// In the order of the tabs.
enum class RoomKind { Events, Notes, Visits, DueDates, Files };
std::span<const ClinicalKind> clinicalKinds();

/// The files of a patient: added from the disk, shown, extracted into the folder of the run or saved to one of the
/// user. A file that is deleted takes its entries in the diary with it.
platform::ListSource fileList(const RoomContext& context);
void showPatientFile(const RoomContext& context, const QString& id); ///< Throws HostError.

} // namespace desk
