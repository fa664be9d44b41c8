#pragma once

#include "host/Room.h"

/// The payments of a patient, as far as their rows tell them.
Room paymentsRoom();
