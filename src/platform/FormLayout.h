#pragma once

#include "platform/Notice.h"

#include <QList>
#include <QString>
#include <QWidget>

class QBoxLayout;
class QDateEdit;
class QFrame;
class QGridLayout;
class QGroupBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QVBoxLayout;

/// Helpers with which windows are laid out in code: every control gets its name, captions line up.
namespace platform::form {

/// "tbDati(3)": the name of one control of an array.
QString arrayName(const char* name, int index);

template <class Control>
Control* named(Control* control, const QString& name) {
    control->setObjectName(name);
    return control;
}

QLineEdit* textBox(const QString& name, QWidget* parent);
QDateEdit* dateBox(const QString& name, QWidget* parent); ///< With a calendar, "dd/MM/yyyy".
/// Enter presses it while it has the focus, also in windows where Enter otherwise belongs to the fields.
QPushButton* button(const QString& name, const QString& caption, QWidget* parent);
QLabel* heading(const QString& name, const QString& text, QWidget* parent); ///< Heading at the top of a window.
/// The white strip "picTop" along the upper edge of a dialog, with the heading "laTitoloForm" and, below it, a hint;
/// empty for none. A picture may go into column 0 of its grid.
QFrame* titleStrip(const QString& title, const QString& hint, QWidget* parent);
/// A caption and its control in one row of a grid; the caption is the control's buddy and accessible name.
QLabel* labelledRow(QGridLayout* grid, int row, int column, const QString& caption, QWidget* control, int span = 1);
/// Colours what a field holds and tells why in its tooltip; None takes both away.
void setNotice(QWidget* field, Notice notice, const QString& toolTip = QString());
/// Gives the focus to the next field in the order of Tab, past buttons.
void focusNextField(QWidget* field);
QGroupBox* titledArea(const QString& title, QWidget* parent);
QHBoxLayout* buttonRow(const QList<QPushButton*>& buttons); ///< Right aligned.

} // namespace platform::form
