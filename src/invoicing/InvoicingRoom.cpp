#include "invoicing/InvoicingRoom.h"

#include "store/PlainRoom.h"

Room invoicingRoom() {
    return makePlainRoom(
        {QStringLiteral("FTT"), QStringLiteral("Corvala: Lista Fatture"), QStringLiteral("Fatture"), 101013});
}
