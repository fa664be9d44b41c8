#include "desk/scenario/ScenarioDump.h"

#include "desk/scenario/ControlText.h"
#include "platform/ReportGrid.h"

#include <QAbstractButton>
#include <QCollator>
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

QString stateOf(const QWidget& control, const QWidget& window) {
    QStringList marks;
    if (!control.isVisibleTo(&window)) marks += QStringLiteral("nascosto");
    if (!control.isEnabled()) marks += QStringLiteral("disattivato");
    const auto* button = qobject_cast<const QAbstractButton*>(&control);
    if (button && button->isCheckable()) marks += button->isChecked() ? QStringLiteral("on") : QStringLiteral("off");
    return marks.isEmpty() ? QString() : QStringLiteral(" [%1]").arg(marks.join(QLatin1String(", ")));
}

QString describeGrid(const platform::ReportGrid& grid) {
    QString text;
    for (int row = 0; row < grid.rowCount(); ++row) {
        const platform::ReportRecord* record = grid.rowRecord(row);
        for (int column = 0; record && column < grid.columnCount(); ++column) {
            const platform::ReportCell& cell = record->cell(column);
            const QString check = !cell.style().hasCheckBox ? QString()
                                  : cell.isChecked()        ? QStringLiteral(" [on]")
                                                            : QStringLiteral(" [off]");
            text += QStringLiteral("%1 %2 %3 \"%4\"%5\n")
                        .arg(grid.objectName())
                        .arg(row)
                        .arg(column)
                        .arg(oneLine(cell.value), check);
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
