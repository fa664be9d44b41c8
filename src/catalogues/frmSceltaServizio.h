#pragma once

#include <QDialog>
#include <functional>

class QLabel;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;
struct clsItemServizio;
namespace platform {
class ReportGrid;
class ReportRecord;
} // namespace platform

/// Modal choice of a service from the catalogue, with the goods groups as filter. `laOUTB` holds "OK" or "CANCEL" once
/// the window has hidden itself, `laSoloTrattamenti` "S" when only services for treatment plans are offered.
class frmSceltaServizio : public QDialog {
    Q_OBJECT

public:
    frmSceltaServizio(bool onlyTreatments, QWidget* parent = nullptr);

    /// Fills the list with the services whose code and description contain these texts, in any case; empty for all.
    void filter(const QString& codePart, const QString& descriptionPart);
    bool confirmed() const;
    QString code() const; ///< Of the chosen row; empty without one. The same for the one below.
    QString description() const;

protected:
    void reject() override;                                     ///< Escape and the frame's cross do as cbChiudi.
    bool eventFilter(QObject* watched, QEvent* event) override; ///< Enter on a group shows it, and no more.

private:
    void buildTree();
    void buildGrid();
    void buildButtons();
    void showGroup(QTreeWidgetItem* node);
    void fill(const std::function<bool(const clsItemServizio&)>& passes);
    void take();
    void finish(const QString& result);

    QTreeWidget* treeView1_ = nullptr;
    platform::ReportGrid* rcLista_ = nullptr;
    QPushButton* cbPiglia_ = nullptr;
    QPushButton* cbChiudi_ = nullptr;
    QLabel* laSoloTrattamenti_ = nullptr;
    QLabel* laOUTB_ = nullptr;
};
