#pragma once

#include "platform/Dialogs.h"

namespace platform {

/// The dialogs as a person sees them, with Qt's widgets and Italian captions ("Sì", "No", "OK", "Annulla").
class QtDialogs : public Dialogs {
public:
    Answer message(const QString& text, int value, const QString& title) override;
    TaskAnswer task(const TaskRequest& request) override;
    int popup(const QList<MenuEntry>& entries) override;
    QString openFile(const QString& title, const FileKinds& kinds, const QString& folder) override;
    QString saveFile(const QString& title, const FileKinds& kinds, const QString& proposedName) override;
    PrintAnswer choosePrinter(QPrinter& printer, const PrintRequest& request) override;
};

} // namespace platform
