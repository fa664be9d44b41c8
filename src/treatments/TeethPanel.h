#pragma once

#include "chart/ChartComposition.h"

#include <QList>
#include <QString>
#include <QWidget>

class EvidencePanel;
class ToothChart;

/// The chart of the plan editor with what stands beside it. It follows the rows that it is given, keeps the situation
/// of the teeth, and tells what the user points at. Owned by the window.
class TeethPanel : public QWidget {
    Q_OBJECT

public:
    explicit TeethPanel(QWidget* parent = nullptr);

    void loadSituation(const QString& mouthSituation);
    QString mouthSituation() const { return composition_.mouthSituation(); }
    void setRows(const QList<ChartRow>& rows); ///< Services and status marks, from the rows.
    /// Marks the teeth of a selection ("1.1" or "+1.1;1.2"); empty clears all marks.
    void plbSelezionaTooh(const QString& teeth);
    ToothSituation situation(int index) const { return composition_.situation(index); }
    const ComposedTooth& tooth(int index) const { return composition_.tooth(index); }
    void apply(const ToothSituation& situation); ///< Gives it to its tooth.
    void setReadOnly() { readOnly_ = true; }

signals:
    void toothChosen(const QString& tooth); ///< Clicked and now marked; empty when the click took the marks away.
    void serviceChosen(const QString& service);
    void detailsRequested(int index); ///< The tooth's own window.

private:
    void clickTooth(int index);
    void toothMenu(int index);

    ToothChart* chart_;
    EvidencePanel* evidence_;
    ChartComposition composition_;
    bool readOnly_ = false;
};
