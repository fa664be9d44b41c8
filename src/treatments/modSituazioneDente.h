#pragma once

#include "chart/ChartComposition.h"
#include "store/RecordNumber.h"

#include <QString>

class QWidget;

/// The plan whose tooth is being looked at, as its window shows it now; it need not be stored yet.
struct ToothPlan {
    RecordNumber number;
    QString date;
    bool readOnly = false;
};

/// Lets the user set the situation of one tooth in `frmEditDente`. `entry` is the tooth's entry "index:situation:text",
/// empty parts included; `tooth` what the chart shows on it. True only on a confirm: `entry` is then the new entry,
/// whose text holds neither ":" nor ";", which part the entries of a plan.
bool ScegliSituazioneDente(const ToothPlan& plan, int index, const ComposedTooth& tooth, QString& entry,
                           QWidget* parent = nullptr);

/// Name of a situation in the practice's list; empty when it is not there.
QString situationName(const QString& id);
