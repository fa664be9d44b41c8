#pragma once

#include "desk/clinical/Kind.h"

namespace desk {

class FreeData;

/// The items of one folder of the archive of free data, each with its folder, which moves it, description and content.
/// Archive and folder are borrowed; the folder may change.
platform::ListSource freeDataList(FreeData& archive, const QString& folder, const RoomServices& services);

/// The editor of a folder's name, "frmEditCartella". Another path moves all that is in it and below it; what it answers
/// as stored is the new path. Owned by the caller.
platform::RecordForm* makeFolderForm(FreeData& archive, const QString& folder, const RoomServices& services,
                                     QWidget* parent);

} // namespace desk
