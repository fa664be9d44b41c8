#pragma once

#include <QKeyCombination>
#include <QPoint>
#include <QString>
#include <chrono>

class QWidget;

/// What hands on keyboard and mouse do to a window, as real events, so that every handler runs that would run for a
/// person.
namespace desk::gestures {

void bringForward(QWidget* window); ///< Raised and active, as a page of tabs or a child window too.
void focus(QWidget* control);
void leave(QWidget* control);              ///< Moves the focus on, with the Tab key where the control lets it.
void rest(std::chrono::milliseconds time); ///< Lets the program run, as it does between two movements of a hand.

QWidget* keyTarget(); ///< What takes the keys now: the focus, an open menu or list before it. Null without a window.
void press(QKeyCombination key); ///< To `keyTarget`.
/// Types key by key, each to what has the focus then, with the program running in between; of a long text only the
/// beginning, the rest many letters at a time. A letter that no keyboard has is a ScenarioFault.
void typeKeys(const QString& text);
/// Replaces the whole content of a field by typing, then leaves it. False when the control is no field for text; a
/// ScenarioFault when the focus went elsewhere on the way.
bool typeText(QWidget* control, const QString& text);
bool isReadOnly(QWidget* control);
/// The program runs while the button is down, so that the release meets what the press brought about.
void click(QWidget* target, const QPoint& position, Qt::MouseButton button = Qt::LeftButton);
void doubleClick(QWidget* target, const QPoint& position);
void scrollIntoView(QWidget* control);

} // namespace desk::gestures
