#include "treatments/modTrattamenti.h"

#include "host/context.h"
#include "treatments/clsTrattamenti.h"

void rereadPlans() {
    if (host::Paziente* patient = currentPatient()) patient->corvala().Refresh();
    oTrattamenti->Refresh();
}

qint16 ContaTrattamentiAperti() {
    qint16 open = 0;
    for (const clsItemTrattamento& item : oTrattamenti->Lista()) {
        if (item.lavoriaperti > 0) ++open;
    }
    return open;
}

QString UltimoTrattamentoAperto() {
    QString id;
    for (const clsItemTrattamento& item : oTrattamenti->Lista()) {
        if (item.lavoriaperti > 0) id = item.ID;
    }
    return id;
}

QString PrimoTrattamento() {
    const auto& list = oTrattamenti->Lista();
    return list.empty() ? QString() : list[0].ID;
}
