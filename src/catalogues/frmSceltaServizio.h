#pragma once

#include "host/ChoiceWindow.h"

#include <functional>

class QTreeWidget;
class QTreeWidgetItem;
struct clsItemServizio;

/// Choice of a service from the catalogue, with the goods groups as filter. `laSoloTrattamenti` holds "S" when only
/// services for treatment plans are offered.
class frmSceltaServizio : public ChoiceWindow {
    Q_OBJECT

public:
    frmSceltaServizio(bool onlyTreatments, QWidget* parent = nullptr);

    /// Fills the list with the services whose code and description contain these texts, in any case; empty for all.
    void filter(const QString& codePart, const QString& descriptionPart);
    QString code() const { return tag(); } ///< Of the chosen row; empty without one. The same for the one below.
    QString description() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override; ///< Enter on a group shows it, and no more.

private:
    frmSceltaServizio(bool onlyTreatments, QWidget* parent, QTreeWidget* groups);
    void buildTree();
    void showGroup(QTreeWidgetItem* node);
    void fill(const std::function<bool(const clsItemServizio&)>& passes);

    QTreeWidget* treeView1_;
    QLabel* laSoloTrattamenti_ = nullptr;
};
