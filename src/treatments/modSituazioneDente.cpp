#include "treatments/modSituazioneDente.h"

#include "config/clsItemSituazioneDente.h"
#include "host/context.h"
#include "platform/Collection.h"
#include "treatments/frmEditDente.h"

bool ScegliSituazioneDente(const PianoDelDente& piano, int indice, const DenteComposto& dente, QString& voce,
                           QWidget* parent) {
    frmEditDente editor(piano, indice, dente, parent);
    editor.carica(voce);
    editor.exec();
    if (!editor.confermato()) return false;
    voce = editor.voce();
    return true;
}

QString NomeSituazioneDente(const QString& id) {
    if (!colSituazioniDenti) return {};
    for (const clsItemSituazioneDente& situazione : *colSituazioniDenti) {
        if (situazione.id == id) return situazione.descrizione;
    }
    return {};
}
