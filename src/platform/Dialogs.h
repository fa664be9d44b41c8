#pragma once

#include <QList>
#include <QString>
#include <QStringList>

class QObject;
class QPrinter;

namespace platform {

enum class Answer { Ok, Cancel, Yes, No };

/// Values of message boxes: the sum of buttons, icon and default.
inline constexpr int MB_CRITICAL = 16;
inline constexpr int MB_WARNING = 48;
inline constexpr int MB_INFORMATION = 64;
inline constexpr int MB_QUESTION = 36;             ///< Yes and No.
inline constexpr int MB_QUESTION_DEFAULT_NO = 292; ///< Yes and No, No as default.

/// A task dialog: a message with a check box, captions of its own and a count-down. Texts may hold the markup of the
/// task dialogs, such as <TextBlock TextWrapping='Wrap'>; shown without it.
struct TaskRequest {
    QString title; ///< Main instruction.
    QString text;
    int icon = MB_INFORMATION;
    QString footer;
    QString url; ///< For further information.
    QString checkCaption;
    bool checked = false;
    QStringList buttons; ///< The first is the default; none gives "Chiudi".
    QString windowTitle; ///< Empty for the name of the application.
    int seconds = 0;     ///< Closes with the default answer after so long; 0 never.
};
struct TaskAnswer {
    QString button; ///< Caption; empty when closed without a button.
    bool checked = false;
};

/// One entry of a context menu. An empty caption is skipped; "-" at the start of a long line stays a text.
struct MenuEntry {
    QString caption;
    bool enabled = true;
};

struct PrintRequest {
    QString title;
    int pages = 1;
    bool offerPreview = false; ///< Whether the user may look at the pages instead.
};
enum class PrintAnswer { Cancel, Print, Preview };

/// One choice of a file dialog, such as {"Archivi", {"*.db"}}. The name of a file to save gets the extension of the
/// kind that is chosen.
struct FileKind {
    QString caption;
    QStringList patterns;
};
using FileKinds = QList<FileKind>; ///< None shows all files.
FileKind everyFile();

/// Everything that asks the user outside a window of one's own. Replaceable, so that tests and scenarios answer and see
/// what was said.
class Dialogs {
public:
    virtual ~Dialogs() = default;
    virtual Answer message(const QString& text, int value, const QString& title) = 0;
    virtual TaskAnswer task(const TaskRequest& request) = 0;
    /// Context menu at the cursor; the index of the chosen entry in the list, or -1.
    virtual int popup(const QList<MenuEntry>& entries) = 0;
    virtual QString openFile(const QString& title, const FileKinds& kinds,
                             const QString& folder) = 0; ///< Empty on cancel.
    /// The path with its extension; that of a file that is there only after the user agreed to replace it.
    virtual QString saveFile(const QString& title, const FileKinds& kinds, const QString& proposedName) = 0;
    /// Lets the user choose printer, pages and copies. A service that knows no printers cancels.
    virtual PrintAnswer choosePrinter(QPrinter& printer, const PrintRequest& request);
};

/// The service in force. Before one is installed every question is answered with its safe default (No, Cancel, nothing
/// chosen).
Dialogs& dialogs();
/// Puts another service in force and returns the one before; null restores the safe default. Borrowed.
Dialogs* installDialogs(Dialogs* service);

/// The text of a task dialog without its markup; <LineBreak/> becomes a line end.
QString withoutMarkup(const QString& text);

} // namespace platform
