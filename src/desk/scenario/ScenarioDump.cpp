#include "desk/scenario/ScenarioDump.h"

#include "desk/scenario/ControlText.h"
#include "platform/ReportGrid.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCollator>
#include <QComboBox>
#include <QTabBar>
#include <QWidget>
#include <algorithm>

namespace desk {
namespace {

/// Names that a control's own parts were given by the toolkit are nobody's concern.
bool isNamedControl(const QWidget& control) {
    const QString name = control.objectName();
    const bool isPart = qobject_cast<const QTabBar*>(control.parentWidget()) || name.startsWith(QLatin1String("qt_"));
    return !name.isEmpty() && !isPart;
}

QString oneLine(const QString& text) {
    QString line = withPlainLineEnds(text);
    return line.replace(QLatin1String("\n"), QLatin1String("\\n"));
}

QString inBrackets(const QStringList& marks) {
    return marks.isEmpty() ? QString() : QStringLiteral(" [%1]").arg(marks.join(QLatin1String(", ")));
}

QString checkMark(bool isOn) {
    return isOn ? QStringLiteral("on") : QStringLiteral("off");
}

QString tipMark(const QString& tip) {
    return QStringLiteral("suggerimento \"%1\"").arg(oneLine(tip));
}

/// The colour in which the text of a field stands out; none while it is that of all fields.
QColor markedText(const QWidget& control) {
    const bool isField = control.property("readOnly").isValid() || qobject_cast<const QComboBox*>(&control);
    const QColor own = control.palette().color(QPalette::Active, QPalette::Text);
    return isField && own != QApplication::palette(&control).color(QPalette::Active, QPalette::Text) ? own : QColor();
}

/// The named control that has the focus, itself or a part of it.
const QWidget* focusedControl() {
    const QWidget* focused = QApplication::focusWidget();
    while (focused && !isNamedControl(*focused))
        focused = focused->parentWidget();
    return focused;
}

QString focusedCell(const platform::ReportGrid& grid) {
    const QString place = QStringLiteral("cella %1 %2").arg(grid.rowOf(grid.focusedRecord())).arg(grid.focusedColumn());
    return grid.isEditing() ? place + QStringLiteral(" in modifica") : place;
}

QString stateOf(const QWidget& control, const QWidget& window) {
    QStringList marks;
    if (!control.isVisibleTo(&window)) marks += QStringLiteral("nascosto");
    if (!control.isEnabled()) marks += QStringLiteral("disattivato");
    if (&control == focusedControl()) marks += QStringLiteral("fuoco");
    if (const auto* grid = qobject_cast<const platform::ReportGrid*>(&control); grid && grid->focusedRecord())
        marks += focusedCell(*grid);
    if (control.property("readOnly").toBool()) marks += QStringLiteral("sola lettura");
    const auto* button = qobject_cast<const QAbstractButton*>(&control);
    if (button && button->isCheckable()) marks += checkMark(button->isChecked());
    if (markedText(control).isValid()) marks += QStringLiteral("testo ") + markedText(control).name();
    if (!control.toolTip().isEmpty()) marks += tipMark(control.toolTip());
    return inBrackets(marks);
}

QString lookOf(const platform::ReportCellStyle& style) {
    QStringList marks;
    if (style.hasCheckBox) marks += checkMark(style.checked);
    if (style.foreground.isValid()) marks += QStringLiteral("testo ") + style.foreground.name();
    if (style.background.isValid()) marks += QStringLiteral("sfondo ") + style.background.name();
    if (style.bold) marks += QStringLiteral("grassetto");
    if (!style.icon.isNull()) marks += QStringLiteral("icona %1").arg(style.iconIndex);
    if (!style.tooltip.isEmpty()) marks += tipMark(style.tooltip);
    return inBrackets(marks);
}

QString describeGrid(const platform::ReportGrid& grid) {
    QString text;
    for (int row = 0; row < grid.rowCount(); ++row) {
        const platform::ReportRecord* record = grid.rowRecord(row);
        for (int column = 0; record && column < grid.columnCount(); ++column) {
            const platform::ReportCell& cell = record->cell(column);
            text += QStringLiteral("%1 %2 %3 \"%4\"%5\n")
                        .arg(grid.objectName())
                        .arg(row)
                        .arg(column)
                        .arg(oneLine(cell.value), lookOf(cell.style()));
        }
    }
    return text;
}

} // namespace

QString describeWindow(const QWidget& window) {
    QList<const QWidget*> controls;
    for (const QWidget* control : window.findChildren<QWidget*>()) {
        if (isNamedControl(*control)) controls += control;
    }
    QCollator byName;
    byName.setNumericMode(true); // tbDati(2) before tbDati(10)
    std::stable_sort(controls.begin(), controls.end(), [&](const QWidget* left, const QWidget* right) {
        return byName.compare(left->objectName(), right->objectName()) < 0;
    });
    QString text = QStringLiteral("%1 \"%2\"\n").arg(window.objectName(), oneLine(controlText(&window)));
    for (const QWidget* control : controls) {
        const auto* grid = qobject_cast<const platform::ReportGrid*>(control);
        text += QStringLiteral("%1 \"%2\"%3\n")
                    .arg(control->objectName(), grid ? QString() : oneLine(controlText(control)),
                         stateOf(*control, window));
        if (grid) text += describeGrid(*grid);
    }
    return text;
}

} // namespace desk
