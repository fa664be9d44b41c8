#include "desk/scenario/Gestures.h"

#include "desk/scenario/ScenarioFault.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QEventLoop>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPlainTextEdit>
#include <QPointer>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTextEdit>
#include <QTimer>
#include <QtTest/qtestkeyboard.h>
#include <QtTest/qtestmouse.h>
#include <algorithm>
#include <utility>

using namespace std::chrono_literals;

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

constexpr auto HELD_DOWN = 30ms;      ///< A button or a key, by a quick hand.
constexpr qsizetype KEY_BY_KEY = 200; ///< Letters; a whole page so would take its square in time.
constexpr qsizetype AT_A_TIME = 50;

void sendText(Qt::Key key, const QString& text) {
    if (QWidget* target = keyTarget()) QTest::sendKeyEvent(QTest::Click, target, key, text, Qt::NoModifier);
}

/// One character, which beyond the first 65,536 is two units of text but still one key.
void typeLetter(char32_t letter) {
    if (letter == U'\n')
        sendText(Qt::Key_Return, QStringLiteral("\r"));
    else if (letter == U'\t')
        sendText(Qt::Key_Tab, QStringLiteral("\t"));
    else
        sendText(letter < 128 ? QTest::asciiToKey(static_cast<char>(letter)) : Qt::Key_unknown,
                 QString::fromUcs4(&letter, 1));
}

bool isOnAKeyboard(char32_t letter) {
    const bool isControl = letter < U' ' || (letter >= 0x7f && letter < 0xa0);
    return !isControl || letter == U'\n' || letter == U'\t';
}

void requireKeys(const QList<uint>& letters) {
    for (const char32_t letter : letters) {
        if (!isOnAKeyboard(letter))
            failNow(QStringLiteral("il carattere U+%1 non si può battere").arg(uint(letter), 4, 16, QLatin1Char('0')));
    }
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

QWidget* stillShown(const QPointer<QWidget>& widget) {
    QWidget* shown = widget.data();
    return shown && shown->isVisible() ? shown : nullptr;
}

/// A handler of the press may have closed the window for good, or moved it under the hand.
void release(const QPointer<QWidget>& clicked, const QPoint& place, Qt::MouseButton button) {
    rest(HELD_DOWN);
    if (QWidget* left = stillShown(clicked))
        QTest::mouseRelease(left, button, Qt::NoModifier, left->mapFromGlobal(place));
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

void rest(std::chrono::milliseconds time) {
    QEventLoop loop;
    QTimer::singleShot(time, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

QWidget* keyTarget() {
    if (QWidget* popup = QApplication::activePopupWidget()) return popup->focusWidget() ? popup->focusWidget() : popup;
    return QApplication::focusWidget() ? QApplication::focusWidget() : QApplication::activeWindow();
}

void press(QKeyCombination key) {
    if (QWidget* target = keyTarget()) QTest::keyPress(target, key.key(), key.keyboardModifiers());
    rest(HELD_DOWN);
    if (QWidget* target = keyTarget()) QTest::keyRelease(target, key.key(), key.keyboardModifiers());
}

bool isReadOnly(QWidget* control) {
    QWidget* editor = editorOf(control);
    return editor && editor->property("readOnly").toBool();
}

void typeKeys(const QString& text) {
    const QList<uint> letters = text.toUcs4();
    requireKeys(letters);
    QString gathered;
    const auto sendGathered = [&gathered] {
        if (!gathered.isEmpty()) sendText(Qt::Key_unknown, std::exchange(gathered, {}));
        QCoreApplication::processEvents();
    };
    qsizetype typed = 0;
    for (const char32_t letter : letters) {
        if (typed++ < KEY_BY_KEY || letter < U' ') {
            sendGathered();
            typeLetter(letter);
        } else {
            gathered += QStringView(QChar::fromUcs4(letter));
            if (gathered.size() >= AT_A_TIME) sendGathered();
        }
    }
    sendGathered();
}

bool typeText(QWidget* control, const QString& text) {
    const QPointer<QWidget> editor(editorOf(control));
    if (!editor) return false;
    requireKeys(text.toUcs4());
    focus(editor);
    for (const QKeyCombination key : {Qt::CTRL | Qt::Key_A, QKeyCombination(Qt::Key_Delete)})
        if (QWidget* target = keyTarget()) QTest::keyClick(target, key.key(), key.keyboardModifiers());
    typeKeys(text);
    if (!editor) return true;
    if (!editor->hasFocus()) {
        const QWidget* taker = QApplication::focusWidget();
        failNow(QStringLiteral("il controllo «%1» ha perso il fuoco mentre si scriveva: ora è in «%2»")
                    .arg(control->objectName(), taker ? taker->objectName() : QString()));
    }
    leave(editor);
    return true;
}

void click(QWidget* target, const QPoint& position, Qt::MouseButton button) {
    const QPointer<QWidget> clicked(target);
    const QPoint place = target->mapToGlobal(position);
    QTest::mousePress(target, button, Qt::NoModifier, position);
    if (button == Qt::RightButton && clicked) {
        QContextMenuEvent menu(QContextMenuEvent::Mouse, position, place);
        QApplication::sendEvent(clicked, &menu);
    }
    release(clicked, place, button);
}

void doubleClick(QWidget* target, const QPoint& position) {
    const QPointer<QWidget> clicked(target);
    const QPoint place = target->mapToGlobal(position);
    click(target, position);
    QWidget* left = stillShown(clicked);
    if (!left) return;
    QMouseEvent second(QEvent::MouseButtonDblClick, left->mapFromGlobal(place), place, Qt::LeftButton, Qt::LeftButton,
                       Qt::NoModifier);
    QApplication::sendEvent(left, &second);
    release(clicked, place, Qt::LeftButton);
}

void scrollIntoView(QWidget* control) {
    for (QWidget* outer = control->parentWidget(); outer; outer = outer->parentWidget()) {
        if (auto* area = qobject_cast<QScrollArea*>(outer)) area->ensureWidgetVisible(control);
    }
}

} // namespace desk::gestures
