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

/// Lets the user set the situation of one tooth in `frmEditDente`; `tooth` is what the chart shows on it. True only on
/// a confirm: `situation` is then the new one.
bool ScegliSituazioneDente(const ToothPlan& plan, const ComposedTooth& tooth, ToothSituation& situation,
                           QWidget* parent = nullptr);

/// Name of a situation in the practice's list; empty when it is not there.
QString situationName(const QString& id);
