#include "desk/scenario/ControlText.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTabWidget>
#include <QTextDocumentFragment>
#include <QTextEdit>

namespace desk {
namespace {

QString labelText(const QLabel& label) {
    const bool isRich = label.textFormat() == Qt::RichText ||
                        (label.textFormat() == Qt::AutoText && Qt::mightBeRichText(label.text()));
    if (isRich) return QTextDocumentFragment::fromHtml(label.text()).toPlainText();
    return label.buddy() ? withoutMnemonic(label.text()) : label.text();
}

/// A control that wraps an editor under its own name shows the editor's text.
QString innerText(const QWidget& control) {
    if (control.isWindow()) return control.windowTitle();
    if (const auto* inner = control.findChild<const QTextEdit*>()) return inner->toPlainText();
    const QVariant text = control.property("text");
    return text.isValid() ? text.toString() : control.windowTitle();
}

} // namespace

QString withoutMnemonic(const QString& caption) {
    QString text;
    for (qsizetype i = 0; i < caption.size(); ++i) {
        if (caption[i] == QLatin1Char('&') && i + 1 < caption.size()) ++i;
        text += caption[i];
    }
    return text;
}

QString withPlainLineEnds(const QString& text) {
    QString plain = text;
    return plain.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(QLatin1Char('\r'), QLatin1Char('\n'));
}

QString controlText(const QWidget* control) {
    if (const auto* edit = qobject_cast<const QLineEdit*>(control)) return edit->text();
    if (const auto* label = qobject_cast<const QLabel*>(control)) return labelText(*label);
    if (const auto* button = qobject_cast<const QAbstractButton*>(control)) return withoutMnemonic(button->text());
    if (const auto* combo = qobject_cast<const QComboBox*>(control)) return combo->currentText();
    if (const auto* spin = qobject_cast<const QAbstractSpinBox*>(control)) return spin->text();
    if (const auto* edit = qobject_cast<const QTextEdit*>(control)) return edit->toPlainText();
    if (const auto* edit = qobject_cast<const QPlainTextEdit*>(control)) return edit->toPlainText();
    if (const auto* group = qobject_cast<const QGroupBox*>(control)) return withoutMnemonic(group->title());
    if (const auto* bar = qobject_cast<const QTabBar*>(control))
        return withoutMnemonic(bar->tabText(bar->currentIndex()));
    if (const auto* tabs = qobject_cast<const QTabWidget*>(control))
        return withoutMnemonic(tabs->tabText(tabs->currentIndex()));
    if (const auto* view = qobject_cast<const QAbstractItemView*>(control))
        return view->currentIndex().data(Qt::DisplayRole).toString();
    return control ? innerText(*control) : QString();
}

} // namespace desk
