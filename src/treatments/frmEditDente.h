#pragma once

#include "host/ListReading.h"
#include "treatments/modSituazioneDente.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;
class ToothBox;

struct clsItemTrattamento;

namespace platform {
class ReportGrid;
}

/// One tooth of a plan: its situation with a text, and what the patient's plans have done to it. Modal, one per call of
/// ScegliSituazioneDente.
class frmEditDente : public QDialog {
    Q_OBJECT

public:
    frmEditDente(const ToothPlan& plan, int index, const ComposedTooth& tooth, QWidget* parent = nullptr);

    void load(const ToothSituation& situation);
    ToothSituation situation() const; ///< As it stands in the controls.
    bool confirmed() const { return result() == Accepted; }

private:
    QLayout* toothColumn();
    void buildFields();
    void buildLists();
    void layOut();
    void fillSituations();
    void fillTreatments();
    void showRows();
    QString chosen() const;                     ///< The situation in the list; empty for none.
    void showPicture(const QString& situation); ///< Of the tooth in that situation.
    void clearSituation();

    ToothPlan plan_;
    int index_;
    QString name_; ///< Of the tooth.
    ComposedTooth tooth_;
    ToothBox* picture_ = nullptr;
    QLabel* laDente_ = nullptr;
    QComboBox* cbSituazione_ = nullptr;
    QPushButton* cbNessuna_ = nullptr;
    QLineEdit* tbDati_ = nullptr;
    platform::ReportGrid* rcTrattamenti_ = nullptr;
    platform::ReportGrid* rcRighi_ = nullptr;
    ListReading reading_{[this] { fillTreatments(); }, this};
    ListReading readingRows_{[this] { showRows(); }, this};
    QPushButton* cbConferma_ = nullptr;
    QPushButton* cbAnnulla_ = nullptr;
};
