#pragma once

#include "platform/ReportColumn.h"

#include <QDialog>
#include <QList>
#include <QString>
#include <QStringList>

class QLabel;

namespace platform {
class ReportGrid;
} // namespace platform

/// Modal choice of one row of a list: cbPiglia, Enter and a double click take the selected one, cbChiudi, Escape and
/// the frame's cross none; `laOUTB` holds "OK" or "CANCEL" once the window has hidden itself. A choice gives its columns
/// and its rows.
class ChoiceWindow : public QDialog {
    Q_OBJECT

public:
    struct Texts {
        QString name; ///< Of the window.
        QString title;
        QString heading;
    };
    struct Row {
        QString tag;
        QStringList cells;
    };

    /// A filter stands to the left of the list, and is the window's.
    ChoiceWindow(const Texts& texts, const QList<platform::ReportColumn>& columns, QWidget* parent = nullptr,
                 QWidget* filter = nullptr);

    void setRows(const QList<Row>& rows); ///< The first one is selected.
    bool confirmed() const;
    QString tag() const; ///< Of the selected row; empty without one.
    QString cell(int column) const;

protected:
    void reject() override;

private:
    void buildGrid(const QList<platform::ReportColumn>& columns);
    void take();
    void finish(const QString& result);

    platform::ReportGrid* rcLista_ = nullptr;
    QLabel* laOUTB_ = nullptr;
};
