#pragma once

#include "host/Room.h"

/// The treatment plans of a patient: `oTrattamenti` and `oViewTrattamenti` are there as long as the room.
Room treatmentsRoom();
