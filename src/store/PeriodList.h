#pragma once

#include "host/ListReading.h"

#include <QList>
#include <QString>
#include <QWidget>
#include <array>
#include <functional>
#include <memory>

class QDateEdit;
class QLabel;

namespace host {
class Paziente;
class Recordset;
} // namespace host

namespace platform {
class ReportGrid;
class ReportRecord;
} // namespace platform

/// What all practice-wide lists share: the period with cbFiltra, the title, the wait panel, the grid with its look, the
/// reload straight from the database that keeps the selected record, the bold marks of the open patient, and the way
/// from a row to its patient. A list gives its columns, its rows and what its commands do. The host owns it as a child
/// window. A row whose patient the host refuses is left out; one whose memo cannot be read shows what the row itself
/// gave. A list that the host cannot read shows no rows and says so.
class PeriodList : public QWidget {
    Q_OBJECT

public:
    struct Settings {
        QString name; ///< Name of the window.
        QString gridName;
        QString titleName;  ///< Name of the title's label.
        QString title;      ///< "ELENCO TRATTAMENTI "; the period follows it.
        QString t1;         ///< Record type code.
        int sortColumn = 0; ///< Sorted by it, descending.
    };

protected:
    /// `prepare` must be called at the end of the constructor of the list.
    PeriodList(const Settings& settings, QWidget* parent);
    void prepare();

    virtual void buildColumns(platform::ReportGrid& grid) = 0;
    /// Fills the cells of one row, whose tag is already there; the tag of its first cell is the list's own. May throw.
    virtual void fill(platform::ReportRecord& record, const host::Recordset& row, host::Paziente& patient) = 0;
    /// Columns whose text is bold for the open patient.
    virtual QList<int> patientColumns() const = 0;
    virtual void
    open(const QString& id) = 0; ///< Opens the editor on a record, or a new one; its patient is the open one.
    virtual bool remove(host::Paziente& patient, const QString& id) = 0;
    virtual void print(const QString& id);

    void reload(const QString& idToSelect); ///< Empty keeps the selected record.
    void refreshMarks();                    ///< The bold marks only.
    platform::ReportGrid& grid() const { return *grid_; }

private:
    static std::unique_ptr<host::Paziente> patient(const QString& id); ///< Null when the host has no such one.
    void buildWindow();
    void read();
    void attempt(const std::function<void()>& step); ///< Tells what it throws.
    void add(const host::Recordset& row);
    void markPatient(platform::ReportRecord& record, const QString& patientId) const;
    void select(const QString& id);
    void centreWait();
    void showMenu();
    void edit(const platform::ReportRecord& record);
    void newRecord();
    void removeRow(platform::ReportRecord* record);
    bool recallPatient(const platform::ReportRecord& record) const;

    Settings settings_;
    std::array<QDateEdit*, 2> dtpData_{};
    QLabel* title_ = nullptr;
    QLabel* pbAttesa_ = nullptr;
    platform::ReportGrid* grid_ = nullptr;
    ListReading reading_{[this] { read(); }, this};
};
