#pragma once

#include <QString>
#include <QStringList>

class QWidget;

namespace desk {

/// What became of picking an entry by its text.
struct Choice {
    bool made = false;
    bool isList = true;  ///< False for a control that has no entries.
    QStringList entries; ///< Those it has, when the wanted one is not among them.
};

/// Picks the entry of a drop-down, list, tree, tab control or report grid as a person would. The control is usable.
Choice choose(QWidget* control, const QString& text);

/// Clicks the tab with that caption in the window. False when no tab that is shown has it.
bool clickTabCaption(QWidget* window, const QString& caption);

} // namespace desk
