#include "desk/scenario/Gestures.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPlainTextEdit>
#include <QPointer>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTextEdit>
#include <QtTest/qtestkeyboard.h>
#include <QtTest/qtestmouse.h>

namespace desk::gestures {
namespace {

/// The widget that takes the keys of a control: itself, or the editor inside it.
QWidget* editorOf(QWidget* control) {
    if (qobject_cast<QLineEdit*>(control) || qobject_cast<QTextEdit*>(control) ||
        qobject_cast<QPlainTextEdit*>(control))
        return control;
    if (auto* combo = qobject_cast<QComboBox*>(control)) return combo->lineEdit();
    if (auto* spin = qobject_cast<QAbstractSpinBox*>(control)) return spin->findChild<QLineEdit*>();
    if (auto* text = control->findChild<QTextEdit*>()) return text;
    return control->findChild<QLineEdit*>();
}

/// One character, which beyond the first 65,536 is two units of text but still one key.
void typeLetter(QWidget* editor, char32_t letter) {
    if (letter == U'\n') {
        QTest::keyClick(editor, Qt::Key_Return);
        return;
    }
    const Qt::Key key = letter < 128 ? QTest::asciiToKey(static_cast<char>(letter)) : Qt::Key_unknown;
    QTest::sendKeyEvent(QTest::Click, editor, key, QString::fromUcs4(&letter, 1), Qt::NoModifier);
}

QWidget* nextStop(QWidget* from) {
    for (QWidget* next = from->nextInFocusChain(); next && next != from; next = next->nextInFocusChain()) {
        const bool inside = from->isAncestorOf(next) || next->isAncestorOf(from);
        const bool takesTab = (next->focusPolicy() & Qt::TabFocus) == Qt::TabFocus;
        if (!inside && takesTab && next->isVisible() && next->isEnabled() && next->window() == from->window())
            return next;
    }
    return nullptr;
}

} // namespace

void bringForward(QWidget* window) {
    for (QWidget* inner = window; inner && !inner->isWindow(); inner = inner->parentWidget()) {
        if (auto* child = qobject_cast<QMdiSubWindow*>(inner); child && child->mdiArea()) {
            child->mdiArea()->setActiveSubWindow(child);
        } else if (auto* stack = qobject_cast<QStackedWidget*>(inner->parentWidget())) {
            auto* tabs = qobject_cast<QTabWidget*>(stack->parentWidget());
            if (tabs)
                tabs->setCurrentWidget(inner);
            else
                stack->setCurrentWidget(inner);
        }
    }
    QWidget* top = window->window();
    if (top->isActiveWindow()) return;
    top->raise();
    top->activateWindow();
    // Without a window manager nobody answers the request.
    if (!top->isActiveWindow()) QApplication::setActiveWindow(top);
}

void focus(QWidget* control) {
    bringForward(control);
    if (!control->hasFocus()) control->setFocus(Qt::TabFocusReason);
}

void leave(QWidget* control) {
    const QPointer<QWidget> left(control);
    if (qobject_cast<QLineEdit*>(control)) QTest::keyClick(control, Qt::Key_Tab);
    if (!left || !left->hasFocus()) return;
    if (QWidget* next = nextStop(left))
        next->setFocus(Qt::TabFocusReason);
    else
        left->clearFocus();
}

void press(QWidget* target, QKeyCombination key) {
    QTest::keyClick(target, key.key(), key.keyboardModifiers());
}

bool isReadOnly(QWidget* control) {
    QWidget* editor = editorOf(control);
    return editor && editor->property("readOnly").toBool();
}

bool typeText(QWidget* control, const QString& text) {
    const QPointer<QWidget> editor(editorOf(control));
    if (!editor) return false;
    focus(editor);
    press(editor, Qt::CTRL | Qt::Key_A);
    press(editor, Qt::Key_Delete);
    const auto letters = text.toUcs4();
    for (const char32_t letter : letters) {
        if (editor) typeLetter(editor, letter);
    }
    if (editor) leave(editor);
    return true;
}

void click(QWidget* target, const QPoint& position, Qt::MouseButton button) {
    const QPointer<QWidget> clicked(target);
    QTest::mousePress(target, button, Qt::NoModifier, position);
    if (button == Qt::RightButton && clicked) {
        QContextMenuEvent menu(QContextMenuEvent::Mouse, position, clicked->mapToGlobal(position));
        QApplication::sendEvent(clicked, &menu);
    }
    // A handler of the press may have closed the window for good.
    if (clicked) QTest::mouseRelease(clicked, button, Qt::NoModifier, position);
}

void doubleClick(QWidget* target, const QPoint& position) {
    const QPointer<QWidget> clicked(target);
    click(target, position);
    if (!clicked) return;
    QMouseEvent second(QEvent::MouseButtonDblClick, position, clicked->mapToGlobal(position), Qt::LeftButton,
                       Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(clicked, &second);
    if (clicked) QTest::mouseRelease(clicked, Qt::LeftButton, Qt::NoModifier, position);
}

void scrollIntoView(QWidget* control) {
    for (QWidget* outer = control->parentWidget(); outer; outer = outer->parentWidget()) {
        if (auto* area = qobject_cast<QScrollArea*>(outer)) area->ensureWidgetVisible(control);
    }
}

} // namespace desk::gestures
