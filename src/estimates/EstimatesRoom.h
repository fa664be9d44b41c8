#pragma once

#include "host/Room.h"

/// The estimates of a patient, as far as their rows tell them.
Room estimatesRoom();
