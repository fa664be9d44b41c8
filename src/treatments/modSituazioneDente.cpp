#include "treatments/modSituazioneDente.h"

#include "config/clsItemSituazioneDente.h"
#include "host/context.h"
#include "platform/Collection.h"
#include "treatments/frmEditDente.h"

bool ScegliSituazioneDente(const ToothPlan& plan, int index, const ComposedTooth& tooth, QString& entry,
                           QWidget* parent) {
    frmEditDente editor(plan, index, tooth, parent);
    editor.load(entry);
    editor.exec();
    if (!editor.confirmed()) return false;
    entry = editor.entry();
    return true;
}

QString situationName(const QString& id) {
    if (!colSituazioniDenti) return {};
    for (const clsItemSituazioneDente& situation : *colSituazioniDenti) {
        if (situation.id == id) return situation.descrizione;
    }
    return {};
}
