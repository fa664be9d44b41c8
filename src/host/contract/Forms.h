#pragma once

#include <QList>
#include <QMetaType>
#include <QString>

namespace host {

/// A window of the host, as the event "form.load" hands it over.
class HostForm {
public:
    virtual ~HostForm() = default;
    virtual QString Name() const = 0;
};

class Pane {
public:
    virtual ~Pane() = default;
    virtual QString Title() const = 0;
    virtual void Close() = 0;
};

/// The host's main window, "frmMain".
class MainForm : public HostForm {
public:
    virtual QList<Pane*> DockingPane1() = 0;
    /// Adds an entry to the main menu; an empty `parentKey` makes a menu of the bar. The key is "I" and the command id.
    virtual void AddMenu(const QString& key, const QString& caption, const QString& parentKey) = 0;
};

} // namespace host

Q_DECLARE_METATYPE(host::HostForm*)
