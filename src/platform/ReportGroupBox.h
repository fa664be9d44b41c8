#pragma once

#include "platform/ReportCellPainter.h"

#include <QFrame>
#include <QList>
#include <QStringList>

class QHBoxLayout;
class QLabel;

namespace platform {

/// The strip above the column heads: takes the heads dropped on it and shows by what the rows are grouped, outermost
/// first.
class ReportGroupBox : public QFrame {
    Q_OBJECT

public:
    struct Entry {
        int column = 0;
        QString caption;
        bool descending = false;
    };

    ReportGroupBox(const ReportColours& colours, QWidget* parent);

    void setPrompt(const QString& prompt); ///< Shown while nothing is grouped.
    void setEntries(const QList<Entry>& entries);
    void setDropHint(bool shown); ///< While a head hovers over the strip.
    void coloursChanged();

signals:
    void orderToggled(int column);
    void removed(int column);

private:
    QWidget* chip(const Entry& entry);

    const ReportColours& colours_;
    QHBoxLayout* row_;
    QLabel* prompt_;
    QList<QWidget*> chips_;
};

} // namespace platform
