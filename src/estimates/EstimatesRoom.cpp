#include "estimates/EstimatesRoom.h"

#include "store/PlainRoom.h"

Room estimatesRoom() {
    return makePlainRoom(
        {QStringLiteral("PRV"), QStringLiteral("Corvala: Lista Preventivi"), QStringLiteral("Preventivi"), 101012});
}
