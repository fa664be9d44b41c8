#include "periodontal/PeriodontalRoom.h"

#include "store/PlainRoom.h"

Room periodontalRoom() {
    // Like no panel on purpose: the list has no column that repeats the patient.
    return makePlainRoom({QStringLiteral("CPD"), QStringLiteral("Corvala: Lista Sondaggi"), QString(), 101018, false});
}
