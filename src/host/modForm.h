#pragma once

#include <QString>
#include <QStringList>

class QSize;
class QWidget;

// What all windows share: the title rule, the set-up when a window is made, the geometry kept from run to run and the
// task dialog.

/// The title rule of all windows: the text, ". " and the name of the module.
QString TitoloForm(const QString& text);

/// Puts a new window among the open forms and applies the host's appearance to it. Every window calls it at the end of
/// its constructor, when its controls exist and its `objectName` is set. Passes on a HostError.
void InizializzaForm(QWidget* form);

/// With `flag`, the window no longer closes by its frame, only by its own buttons.
void DisabilitaChiudi(QWidget* form, bool flag);

/// Gives a window the size that it has at its first opening: `size`, less high on a screen that has not that much room
/// below a title.
void resizeToScreen(QWidget* form, const QSize& size);

/// Keeps size, place and state of a window in the user's folder, under its `objectName`. Does nothing without a folder.
void SalvaGeometria(const QWidget* form);

/// Takes back what SalvaGeometria kept. Without a file the window stays as designed; values that make no sense are
/// passed over, and the window always lands on a screen that is there.
void CaricaGeometria(QWidget* form);

/// Takes the kept geometry now and keeps the new one whenever the window leaves the screen. Editors and lists call it
/// after InizializzaForm.
void keepGeometry(QWidget* form);

/// The optional parts of a task dialog.
struct TaskOptions {
    QString footer;       ///< Footer.
    QString url;          ///< Address for further information.
    QString checkCaption; ///< Caption of the check box; empty for none.
    bool checked = false; ///< State of the check box, in and out.
    int seconds = 0;      ///< Time-out; 0 for none.
};

/// The task dialog with the button "Chiudi". Texts may hold the markup of task dialogs.
void MessaggioTask(const QString& text, int icon, const QString& title, TaskOptions* options = nullptr);

/// The same with the caller's own buttons, of which the first is the default. The caption of the one pressed; empty
/// when the dialog was closed without one.
QString askTask(const QString& text, int icon, const QString& title, const QStringList& buttons,
                TaskOptions* options = nullptr);
