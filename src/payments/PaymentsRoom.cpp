#include "payments/PaymentsRoom.h"

#include "store/PlainRoom.h"

Room paymentsRoom() {
    return makePlainRoom(
        {QStringLiteral("PGM"), QStringLiteral("Corvala: Lista Pagamenti"), QStringLiteral("Pagamenti"), 101015});
}
