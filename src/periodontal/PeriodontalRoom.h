#pragma once

#include "host/Room.h"

/// The periodontal probings of a patient, as far as their rows tell them.
Room periodontalRoom();
