#pragma once

#include <QKeyCombination>
#include <QPoint>
#include <QString>

class QWidget;

/// What hands on keyboard and mouse do to a window, as real events, so that every handler runs that would run for a
/// person.
namespace desk::gestures {

void bringForward(QWidget* window); ///< Raised and active, as a page of tabs or a child window too.
void focus(QWidget* control);
void leave(QWidget* control); ///< Moves the focus on, with the Tab key where the control lets it.
void press(QWidget* target, QKeyCombination key);
/// Replaces the whole content of a field key by key, then leaves it. False when the control is no field for text.
bool typeText(QWidget* control, const QString& text);
bool isReadOnly(QWidget* control);
void click(QWidget* target, const QPoint& position, Qt::MouseButton button = Qt::LeftButton);
void doubleClick(QWidget* target, const QPoint& position);
void scrollIntoView(QWidget* control);

} // namespace desk::gestures
