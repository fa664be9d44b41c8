#pragma once

#include "platform/Dialogs.h"

#include <QDialog>
#include <QTimer>

class QCheckBox;
class QGridLayout;
class QLabel;

namespace platform {

/// The window of a task request: main instruction, text, check box, the request's buttons, and a footer with the
/// address for further information and the count-down. Counting to 0 gives the first button as the answer.
class TaskDialog : public QDialog {
    Q_OBJECT

public:
    TaskDialog(const TaskRequest& request, QWidget* parent);
    TaskAnswer answer() const;

private:
    QWidget* message(const TaskRequest& request);
    QWidget* footer(const TaskRequest& request);
    void addButtons(const QStringList& captions);
    void choose(const QString& caption);
    void count();
    void showCount();

    QTimer timer_;
    QLabel* count_ = nullptr;
    QCheckBox* check_ = nullptr;
    QString first_;
    QString chosen_;
    bool plainCount_;
    int seconds_;
};

} // namespace platform
