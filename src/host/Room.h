#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <memory>

class Commands;

namespace host {
class View;
}

/// What a room is to the rest of the module: all that the table of the rooms knows of it. Each room makes its own, with
/// its manager and its view, in one function. What a room does not have stays empty.
struct Room {
    QString t1;    ///< Record type code of its records.
    QString panel; ///< Name under which the host shows the list of the open patient.
    /// What the practice-wide list is called: "Trattamenti" stands for the window "frmMDITrattamenti" with its members
    /// "RefreshTrattamenti" and "RefreshGraficaTrattamenti".
    QString list;
    QStringList summaries;      ///< Windows that show its records among others, and rebuild themselves by "plbRefresh".
    host::View* view = nullptr; ///< The list behind the panel.
    std::function<void()> forget; ///< Whatever is listed from here on is read anew.
    std::function<void(Commands&)> addCommands;
    std::function<void()> changed; ///< What else follows a change of its records.
    std::shared_ptr<void> objects; ///< Manager and view; out of reach when the room goes.
};
