#pragma once

#include "host/Room.h"

/// The invoices of a patient, as far as their rows tell them.
Room invoicingRoom();
