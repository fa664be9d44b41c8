#pragma once

#include "treatments/WorkStages.h"

#include <QList>
#include <QWidget>

class QCheckBox;
class QDateEdit;
class QLabel;

/// One stage in the row editor: pbStatus(i) with laStatus(i), cbStatusINI(i), dtpStatusINI(i), cbStatusFIN(i) and
/// dtpStatusFIN(i). Hidden and with an empty tag while the service has no such stage; "OK" otherwise.
class StagePanel : public QWidget {
    Q_OBJECT

public:
    StagePanel(int index, QWidget* parent);

    void release();                ///< No stage: hidden, without dates.
    void use(const QString& name); ///< A stage that has not been started.
    bool inUse() const;
    void setDate(const WorkStage& stage); ///< Its dates only.
    WorkStage stage() const;
    QList<QWidget*> fields() const; ///< In the order of the Tab key.

private:
    void showDates();

    QLabel* laStatus_;
    QCheckBox* cbStatusINI_;
    QDateEdit* dtpStatusINI_;
    QCheckBox* cbStatusFIN_;
    QDateEdit* dtpStatusFIN_;
};
