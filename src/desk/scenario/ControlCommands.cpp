#include "desk/scenario/Choices.h"
#include "desk/scenario/ControlText.h"
#include "desk/scenario/Gestures.h"
#include "desk/scenario/GridGestures.h"
#include "desk/scenario/ScenarioCommand.h"
#include "desk/scenario/ScenarioFault.h"
#include "desk/scenario/ScenarioStage.h"
#include "platform/ReportGrid.h"

#include <QAbstractButton>
#include <QDateEdit>
#include <QGroupBox>
#include <QKeySequence>
#include <QLineEdit>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionGroupBox>
#include <optional>

namespace desk {
namespace {

bool isOn(const QString& word) {
    return word == QLatin1String("on");
}

void type(ScenarioStage& stage, const QStringList& arguments) {
    QWidget* control = stage.usableControl(arguments[0]);
    if (gestures::isReadOnly(control))
        failUnlessItPasses(QStringLiteral("il controllo «%1» è di sola lettura").arg(arguments[0]));
    if (qobject_cast<QLineEdit*>(control) && arguments[1].contains(QLatin1Char('\n')))
        failNow(QStringLiteral("il controllo «%1» ha una sola riga").arg(arguments[0]));
    if (!gestures::typeText(control, arguments[1]))
        failNow(QStringLiteral("il controllo «%1» non è un campo di testo").arg(arguments[0]));
}

/// Null for a control that is neither on nor off.
std::optional<bool> checkedState(const QWidget* control) {
    const auto* button = qobject_cast<const QAbstractButton*>(control);
    if (button && button->isCheckable()) return button->isChecked();
    const auto* group = qobject_cast<const QGroupBox*>(control);
    if (group && group->isCheckable()) return group->isChecked();
    return std::nullopt;
}

bool requireChecked(const QWidget* control, const QString& name) {
    const std::optional<bool> state = checkedState(control);
    if (!state) failNow(QStringLiteral("il controllo «%1» non si può spuntare").arg(name));
    return *state;
}

/// Where a press surely hits: a check box answers on its box and caption only.
QPoint pressPoint(const QWidget* control) {
    const auto* button = qobject_cast<const QAbstractButton*>(control);
    if (button && button->isCheckable() && !button->icon().isNull()) return control->rect().center();
    if (const auto* group = qobject_cast<const QGroupBox*>(control); group && group->isCheckable()) {
        QStyleOptionGroupBox option;
        option.initFrom(group);
        option.subControls = QStyle::SC_GroupBoxCheckBox;
        option.text = group->title();
        return group->style()
            ->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxCheckBox, group)
            .center();
    }
    if (control->inherits("QCheckBox") || control->inherits("QRadioButton")) return {8, control->height() / 2};
    return control->rect().center();
}

void set(ScenarioStage& stage, const QStringList& arguments) {
    QWidget* control = stage.usableControl(arguments[0]);
    const bool wanted = isOn(arguments[1]);
    if (requireChecked(control, arguments[0]) == wanted) return;
    if (!wanted && qobject_cast<QRadioButton*>(control))
        failNow(QStringLiteral("l'opzione «%1» si spegne solo accendendone un'altra").arg(arguments[0]));
    gestures::click(control, pressPoint(control));
}

void chooseEntry(ScenarioStage& stage, const QStringList& arguments) {
    QWidget* control = stage.usableControl(arguments[0]);
    const Choice choice = choose(control, arguments[1]);
    if (choice.made) return;
    if (!choice.isList) failNow(QStringLiteral("il controllo «%1» non è un elenco").arg(arguments[0]));
    failUnlessItPasses(QStringLiteral("«%1» non ha la voce «%2»; ha: %3")
                           .arg(arguments[0], arguments[1], choice.entries.mid(0, 20).join(QLatin1String(", "))));
}

void enterDate(ScenarioStage& stage, const QStringList& arguments) {
    QWidget* control = stage.usableControl(arguments[0]);
    auto* field = qobject_cast<QDateEdit*>(control);
    if (!field) return type(stage, arguments);
    const bool empties = arguments[1].isEmpty() && !field->specialValueText().isEmpty();
    const QDate date = empties ? field->minimumDate() : QDate::fromString(arguments[1], QStringLiteral("dd/MM/yyyy"));
    if (!date.isValid() || date < field->minimumDate() || date > field->maximumDate())
        failNow(QStringLiteral("il controllo «%1» non accetta la data «%2»").arg(arguments[0], arguments[1]));
    gestures::focus(field);
    field->setDate(date);
    gestures::leave(field);
}

void click(ScenarioStage& stage, const QStringList& arguments) {
    const bool isRight = arguments.last() == QLatin1String("right") && arguments.size() > 1;
    const auto button = isRight ? Qt::RightButton : Qt::LeftButton;
    if (arguments.size() > 2)
        return gestures::clickCell(*stage.usableGrid(arguments[0]), arguments[1].toInt(), arguments[2].toInt(), button);
    if (button == Qt::LeftButton && clickTabCaption(stage.window(), arguments[0])) return;
    QWidget* control = stage.usableControl(arguments[0]);
    if (auto* grid = qobject_cast<platform::ReportGrid*>(control)) return gestures::clickFocusedRow(*grid, button);
    gestures::click(control, pressPoint(control), button);
}

void doubleClick(ScenarioStage& stage, const QStringList& arguments) {
    QWidget* control = stage.usableControl(arguments[0]);
    auto* grid = qobject_cast<platform::ReportGrid*>(control);
    if (arguments.size() == 1) return gestures::doubleClick(control, control->rect().center());
    if (!grid) failNow(QStringLiteral("il controllo «%1» non è una griglia").arg(arguments[0]));
    gestures::doubleClickCell(*grid, arguments[1].toInt(), arguments[2].toInt());
}

/// Key names as on the keyboard; those that Qt abbreviates are taken in full too.
QKeySequence keyNamed(QString name) {
    name.replace(QLatin1String("Escape"), QLatin1String("Esc"), Qt::CaseInsensitive);
    name.replace(QLatin1String("Delete"), QLatin1String("Del"), Qt::CaseInsensitive);
    name.replace(QLatin1String("PageUp"), QLatin1String("PgUp"), Qt::CaseInsensitive);
    name.replace(QLatin1String("PageDown"), QLatin1String("PgDown"), Qt::CaseInsensitive);
    return QKeySequence::fromString(name, QKeySequence::PortableText);
}

void pressKey(ScenarioStage& stage, const QStringList& arguments) {
    const QKeySequence keys = keyNamed(arguments[0]);
    if (keys.count() != 1 || keys[0].key() == Qt::Key_unknown)
        failNow(QStringLiteral("il tasto «%1» non esiste").arg(arguments[0]));
    gestures::bringForward(stage.window());
    gestures::press(keys[0]);
}

/// Neither replaces what the field holds nor ends the edit.
void typeIntoFocus(ScenarioStage& stage, const QStringList& arguments) {
    gestures::bringForward(stage.window());
    if (!gestures::keyTarget()) failUnlessItPasses(QStringLiteral("nessun controllo ha il fuoco"));
    gestures::typeKeys(arguments[0]);
}

void expectText(ScenarioStage& stage, const QStringList& arguments) {
    const QString text = controlText(stage.control(arguments[0]));
    if (withPlainLineEnds(text) != withPlainLineEnds(arguments[1]))
        failUnlessItPasses(QStringLiteral("«%1» mostra «%2», atteso «%3»").arg(arguments[0], text, arguments[1]));
}

void expectChecked(ScenarioStage& stage, const QStringList& arguments) {
    if (requireChecked(stage.control(arguments[0]), arguments[0]) != isOn(arguments[1]))
        failUnlessItPasses(QStringLiteral("«%1» non è %2").arg(arguments[0], arguments[1]));
}

void expectEnabled(ScenarioStage& stage, const QStringList& arguments) {
    const bool enabled = stage.control(arguments[0])->isEnabled();
    if (enabled == isOn(arguments[1])) return;
    failUnlessItPasses(enabled ? QStringLiteral("il controllo «%1» è attivo").arg(arguments[0])
                               : QStringLiteral("il controllo «%1» è disattivato").arg(arguments[0]));
}

} // namespace

QList<ScenarioCommand> controlCommands() {
    return {
        {QStringLiteral("type"), QStringLiteral("CONTROL TEXT"), type},
        {QStringLiteral("set"), QStringLiteral("CONTROL on|off"), set},
        {QStringLiteral("choose"), QStringLiteral("CONTROL TEXT"), chooseEntry},
        {QStringLiteral("date"), QStringLiteral("CONTROL dd/mm/yyyy"), enterDate},
        {QStringLiteral("keys"), QStringLiteral("TEXT"), typeIntoFocus},
        {QStringLiteral("click"), QStringLiteral("CONTROL [ROW COL] [right]"), click},
        {QStringLiteral("doubleclick"), QStringLiteral("CONTROL [ROW COL]"), doubleClick},
        {QStringLiteral("key"), QStringLiteral("NAME"), pressKey},
        {QStringLiteral("expect"), QStringLiteral("CONTROL TEXT"), expectText},
        {QStringLiteral("expect-checked"), QStringLiteral("CONTROL on|off"), expectChecked},
        {QStringLiteral("expect-enabled"), QStringLiteral("CONTROL on|off"), expectEnabled},
    };
}

} // namespace desk
