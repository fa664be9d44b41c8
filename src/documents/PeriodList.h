#pragma once

#include "documents/DocumentKind.h"
#include "documents/LateMemos.h"
#include "host/ListReading.h"

#include <QHash>
#include <QString>
#include <QWidget>
#include <array>
#include <functional>
#include <memory>

class QBoxLayout;
class QDateEdit;
class QLabel;
class QPushButton;

namespace host {
class Recordset;
} // namespace host

namespace platform {
class ReportGrid;
} // namespace platform

/// The practice-wide list of one kind of documents: the period with cbFiltra, the title, the wait panel, the grid, the
/// reload straight from the database that keeps the selected record, the bold marks of the open patient, and the way
/// from a row to its patient. The host owns it as a child window. A row whose patient the host refuses is left out; one
/// whose memo cannot be read shows what the row itself gave. A list that the host cannot read shows no rows and says
/// so. In a long list all rows stand in their places at once, and the memos follow while the window stays alive;
/// cbInterrompi ends that, and the part that stays says what it is.
class PeriodList : public QWidget {
    Q_OBJECT

protected:
    explicit PeriodList(DocumentKind kind, QWidget* parent = nullptr);

    /// Empty keeps the selected record. Up to a thousand rows are there whole when it returns.
    void reload(const QString& idToSelect);
    void refreshMarks(); ///< The bold marks only.

private:
    void buildWindow();
    void buildHead(QBoxLayout& column);
    void buildFoot(QBoxLayout& column);
    void connectGrid();
    void prepare();

    void read();
    void add(const host::Recordset& row, bool memosToo);
    void readMemo(platform::ReportRecord& record, const DocumentRow& row);
    bool orderNeedsMemo(int column) const;
    bool orderNeedsMemos() const;
    void showProgress();
    void interrupt();

    void attempt(const std::function<void()>& step); ///< Tells what it throws.
    void markPatient(platform::ReportRecord& record, const QString& patientId) const;
    void select(const QString& id);
    void centreWait();
    void showMenu();
    void edit(const platform::ReportRecord& record);
    void newRecord();
    void removeRow(platform::ReportRecord* record);
    void print(const platform::ReportRecord& record);
    bool recallPatient(const platform::ReportRecord& record) const;

    DocumentKind kind_;
    std::array<QDateEdit*, 2> dtpData_{};
    QLabel* title_ = nullptr;
    QLabel* pbAttesa_ = nullptr;
    QWidget* foot_ = nullptr;
    QLabel* laLettura_ = nullptr;
    QPushButton* cbInterrompi_ = nullptr;
    platform::ReportGrid* grid_ = nullptr;
    ListReading reading_{[this] { read(); }, this};
    std::unique_ptr<LateMemos> late_;
    QHash<QString, QString> patients_; ///< Those of the rows by what the row calls them; empty for a refused one.
    int all_ = 0;                      ///< Rows of the period, when the last reading began.
    bool moved_ = false;               ///< A memo gave another number or date than its row.
};
