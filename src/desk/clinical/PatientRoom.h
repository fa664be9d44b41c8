#pragma once

#include "desk/clinical/Room.h"
#include "desk/clinical/RoomServices.h"

namespace desk {

class PatientRecord;

/// A room of one patient, who is borrowed.
class PatientRoom : public Room {
public:
    PatientRoom(PatientRecord& patient, RoomServices services)
        : patient_(patient)
        , services_(std::move(services)) {}

protected:
    PatientRecord& patient_;
    RoomServices services_;
};

} // namespace desk
