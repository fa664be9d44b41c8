#include "treatments/modTrattamenti.h"

#include "host/context.h"
#include "treatments/clsTrattamenti.h"

void rereadPlans() {
    if (host::Paziente* paziente = PazienteAperto()) paziente->corvala().Refresh();
    oTrattamenti->Refresh();
}

qint16 ContaTrattamentiAperti() {
    qint16 aperti = 0;
    for (const clsItemTrattamento& item : oTrattamenti->Lista()) {
        if (item.lavoriaperti > 0) ++aperti;
    }
    return aperti;
}

QString UltimoTrattamentoAperto() {
    QString id;
    for (const clsItemTrattamento& item : oTrattamenti->Lista()) {
        if (item.lavoriaperti > 0) id = item.ID;
    }
    return id;
}

QString PrimoTrattamento() {
    const auto& lista = oTrattamenti->Lista();
    return lista.empty() ? QString() : lista[0].ID;
}
