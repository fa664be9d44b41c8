#pragma once

#include "chart/ComposizioneDenti.h"

#include <QString>

class QWidget;

/// The plan whose tooth is being looked at, as its window shows it now; it need not be stored yet.
struct PianoDelDente {
    QString anno;
    QString progressivo;
    QString data;
    bool solaLettura = false;
};

/// Lets the user set the situation of one tooth in `frmEditDente`. `voce` is the tooth's entry "index:situation:text",
/// empty parts included; `dente` what the chart shows on it. True only on a confirm: `voce` is then the new entry,
/// whose text holds neither ":" nor ";", which part the entries of a plan.
bool ScegliSituazioneDente(const PianoDelDente& piano, int indice, const DenteComposto& dente, QString& voce,
                           QWidget* parent = nullptr);

/// Name of a situation in the practice's list; empty when it is not there.
QString NomeSituazioneDente(const QString& id);
