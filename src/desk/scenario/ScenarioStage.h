#pragma once

#include "desk/scenario/ScenarioDesk.h"

#include <QDir>
#include <QList>
#include <QPointer>
#include <QString>

class QWidget;

namespace platform {
class ReportGrid;
}

namespace desk {

class ScenarioDialogs;

/// Where the commands of a script find what they act on: the window spoken to, its controls by name, the desk and its
/// dialogs. What is not there (yet) is a passing ScenarioFault with a text that helps to find the slip.
class ScenarioStage {
public:
    ScenarioStage(ScenarioDesk desk, const QString& outDir, ScenarioDialogs& dialogs);

    const ScenarioDesk& desk() const { return desk_; }
    ScenarioDialogs& dialogs() { return dialogs_; }
    QString path(const QString& relative) const; ///< In the folder of the results.

    QWidget* windowOnScreen(const QString& name) const; ///< Null when there is none.
    static QStringList windowsOnScreen();
    void speakTo(QWidget* window);
    /// A modal window that came up since `speakTo`, else the window last spoken to that is still on screen, else the
    /// main one.
    QWidget* window() const;

    QWidget* control(const QString& name) const; ///< In the window, shown or not; the window itself too.
    QWidget*
    usableControl(const QString& name) const; ///< One that a person could reach now: shown, enabled, not covered.
    void requireUsable(QWidget* control, const QString& name) const;
    platform::ReportGrid* grid(const QString& name) const;
    platform::ReportGrid* usableGrid(const QString& name) const;

private:
    ScenarioDesk desk_;
    ScenarioDialogs& dialogs_;
    QDir out_;
    QList<QPointer<QWidget>> spokenTo_; ///< The latest last.
    QPointer<QWidget> modalWhenSpoken_;
};

} // namespace desk
