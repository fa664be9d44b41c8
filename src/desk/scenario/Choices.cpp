#include "desk/scenario/Choices.h"

#include "desk/scenario/ControlText.h"
#include "desk/scenario/Gestures.h"
#include "desk/scenario/GridGestures.h"
#include "platform/ReportGrid.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QTabBar>
#include <QTabWidget>
#include <QTreeView>
#include <functional>

namespace desk {
namespace {

Choice chooseInCombo(QComboBox& combo, const QString& text) {
    const int index = combo.findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (index < 0) {
        Choice none;
        for (int i = 0; i < combo.count(); ++i)
            none.entries += combo.itemText(i);
        return none;
    }
    gestures::focus(&combo);
    combo.setCurrentIndex(index);
    // The two signals tell a choice of the user from one of the program.
    emit combo.activated(index);
    emit combo.textActivated(text);
    gestures::leave(&combo);
    return {true, true, {}};
}

Choice chooseTab(QTabBar& bar, const QString& caption) {
    Choice choice;
    for (int index = 0; index < bar.count(); ++index) {
        const QString shown = withoutMnemonic(bar.tabText(index));
        choice.entries += shown;
        if (shown != caption || !bar.isTabEnabled(index) || !bar.isTabVisible(index)) continue;
        const QRect place = bar.tabRect(index).intersected(bar.rect());
        // A tab beyond the edge of the bar is reached with the arrows first.
        if (place.isEmpty())
            bar.setCurrentIndex(index);
        else
            gestures::click(&bar, place.center());
        choice.made = true;
        return choice;
    }
    return choice;
}

/// The first entry, in the order shown, with that text in any column; `entries` takes what was met on the way.
QModelIndex findEntry(const QAbstractItemModel& model, const QModelIndex& parent, const QString& text,
                      QStringList& entries) {
    for (int row = 0; row < model.rowCount(parent); ++row) {
        for (int column = 0; column < model.columnCount(parent); ++column) {
            const QModelIndex index = model.index(row, column, parent);
            const QString shown = index.data(Qt::DisplayRole).toString();
            if (shown == text) return index;
            if (!shown.isEmpty()) entries += shown;
        }
        const QModelIndex below = findEntry(model, model.index(row, 0, parent), text, entries);
        if (below.isValid()) return below;
    }
    return {};
}

Choice chooseInView(QAbstractItemView& view, const QString& text) {
    Choice choice;
    const QModelIndex index =
        view.model() ? findEntry(*view.model(), view.rootIndex(), text, choice.entries) : QModelIndex();
    if (!index.isValid()) return choice;
    if (auto* tree = qobject_cast<QTreeView*>(&view)) {
        for (QModelIndex above = index.parent(); above.isValid(); above = above.parent())
            tree->expand(above);
    }
    view.scrollTo(index);
    gestures::click(view.viewport(), view.visualRect(index).center());
    choice.made = true;
    return choice;
}

Choice chooseInGrid(platform::ReportGrid& grid, const QString& text) {
    Choice choice;
    for (int row = 0; row < grid.rowCount(); ++row) {
        const platform::ReportRecord* record = grid.rowRecord(row);
        for (int column = 0; record && column < grid.columnCount(); ++column) {
            const QString& shown = record->cell(column).value;
            if (!grid.column(column).visible || shown.isEmpty()) continue;
            choice.entries += shown;
            if (shown != text) continue;
            gestures::clickRow(grid, row);
            choice.made = true;
            return choice;
        }
    }
    return choice;
}

} // namespace

Choice choose(QWidget* control, const QString& text) {
    if (auto* combo = qobject_cast<QComboBox*>(control)) return chooseInCombo(*combo, text);
    if (auto* bar = qobject_cast<QTabBar*>(control)) return chooseTab(*bar, text);
    if (auto* tabs = qobject_cast<QTabWidget*>(control)) return chooseTab(*tabs->tabBar(), text);
    if (auto* view = qobject_cast<QAbstractItemView*>(control)) return chooseInView(*view, text);
    if (auto* grid = qobject_cast<platform::ReportGrid*>(control)) return chooseInGrid(*grid, text);
    return {false, false, {}};
}

bool clickTabCaption(QWidget* window, const QString& caption) {
    for (QTabBar* bar : window->findChildren<QTabBar*>()) {
        if (bar->isVisible() && bar->isEnabled() && chooseTab(*bar, caption).made) return true;
    }
    return false;
}

} // namespace desk
