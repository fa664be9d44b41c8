#include "treatments/modSituazioneDente.h"

#include "config/clsItemSituazioneDente.h"
#include "host/context.h"
#include "platform/Collection.h"
#include "treatments/frmEditDente.h"

bool ScegliSituazioneDente(const ToothPlan& plan, const ComposedTooth& tooth, ToothSituation& situation,
                           QWidget* parent) {
    frmEditDente editor(plan, situation.tooth, tooth, parent);
    editor.load(situation);
    editor.exec();
    if (!editor.confirmed()) return false;
    situation = editor.situation();
    return true;
}

QString situationName(const QString& id) {
    if (!colSituazioniDenti) return {};
    for (const clsItemSituazioneDente& situation : *colSituazioniDenti) {
        if (situation.id == id) return situation.descrizione;
    }
    return {};
}
