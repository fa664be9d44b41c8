#pragma once

#include "host/contract/Ribbon.h"

#include <QList>
#include <QWidget>

class QHBoxLayout;
class QLabel;

namespace desk {

class Command;
class CommandList;
class RibbonButton;

/// A titled group of buttons on a ribbon tab. Small buttons stand in columns of three; a large one fills the height.
/// The group hides itself while none of its buttons is visible.
class RibbonGroupBox : public QWidget, public host::RibbonGroup {
    Q_OBJECT

public:
    RibbonGroupBox(const QString& caption, CommandList& commands, host::RibbonTab& tab, QWidget* parent);

    QString Caption() const override { return caption_; }
    host::RibbonControl* InsertGroupButton(const host::BottoneRibbon& button) override;
    void InsertGroupControl(qint32 id) override;

    /// Shows a command that is already in the list.
    void addButton(Command& command);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void arrange();

    QString caption_;
    CommandList& commands_;
    host::RibbonTab& tab_;
    QList<RibbonButton*> buttons_;
    QHBoxLayout* row_;
    QLabel* logo_ = nullptr;
};

} // namespace desk
