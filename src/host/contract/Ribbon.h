#pragma once

#include <QList>
#include <QString>

namespace host {

/// How a ribbon button looks; the numbers stand in configuration files.
enum class StileBottone : int { Automatico = 0, Icona = 1, Didascalia = 2, IconaEDidascalia = 3, IconaSopraDidascalia = 4 };

/// A button as a module describes it. `key` is the module's own name for the command; its picture comes from
/// `Framework::AddFileBitmap` under the same id.
struct BottoneRibbon {
    qint32 id = 0;
    QString key;
    QString caption;
    QString tooltip;
    StileBottone style = StileBottone::IconaEDidascalia;
    bool begingroup = false;
    bool enabled = true;
};

class RibbonControl;

class RibbonGroup {
public:
    virtual ~RibbonGroup() = default;
    virtual QString Caption() const = 0;
    virtual RibbonControl* InsertGroupButton(const BottoneRibbon& button) = 0;
    /// A picture without a command, such as a logo, loaded before under `id` with `Framework::AddFileBitmap`.
    virtual void InsertGroupControl(qint32 id) = 0;
};

class RibbonTab {
public:
    virtual ~RibbonTab() = default;
    virtual QString Caption() const = 0;
    virtual RibbonGroup* AddGroup(const QString& caption, qint32 id) = 0;
    virtual RibbonGroup* InsertTabGroup(const QString& caption) = 0; ///< A group without an id of its own.
};

/// One control of the host's ribbon, found by its command id. Owned by the host.
class RibbonControl {
public:
    virtual ~RibbonControl() = default;
    virtual qint32 ID() const = 0;
    virtual QString Caption() const = 0;
    virtual bool Visible() const = 0;
    virtual void setVisible(bool visible) = 0;
    virtual bool Enabled() const = 0;
    virtual void setEnabled(bool enabled) = 0;
    virtual StileBottone Style() const = 0;
    virtual void setStyle(StileBottone style) = 0;
    virtual QList<RibbonControl*> CommandBarControls() = 0; ///< Entries of the menu behind the control; may be empty.
    virtual RibbonTab* RibbonGroupGroups() = 0;             ///< The groups beside the one that holds the control.
};

} // namespace host
