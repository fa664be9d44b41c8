#include "desk/shell/PanelPage.h"

#include "desk/shell/PanelMenu.h"
#include "desk/shell/ShowModally.h"
#include "host/contract/Framework.h"
#include "host/contract/View.h"
#include "platform/Guarded.h"
#include "platform/ReportGrid.h"

#include <QKeyEvent>
#include <QPointer>
#include <QVBoxLayout>

namespace desk {

PanelPage::PanelPage(const Panel& panel, host::Framework& framework, QWidget* parent)
    : QWidget(parent)
    , panel_(panel)
    , framework_(framework) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    grid_ = new platform::ReportGrid(this);
    grid_->setObjectName(QStringLiteral("pannello(%1)").arg(panel.name));
    grid_->setAccessibleName(panel.caption());
    column->addWidget(grid_);
    connect(grid_, &platform::ReportGrid::rowRightClicked, this, [this](auto* record, int) { showMenu(record); });
    connect(grid_, &platform::ReportGrid::rowDoubleClicked, this, [this](auto* record, int) { edit(record); });
    connect(grid_, &platform::ReportGrid::keyPressed, this, [this](QKeyEvent* event) {
        if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) return;
        event->accept();
        edit(grid_->focusedRecord());
    });
}

void PanelPage::refresh(const QString& idToSelect) {
    const QString why = platform::guarded([&] { panel_.view->refreshGrid(grid_, idToSelect); });
    if (!why.isEmpty()) emit failed(why);
}

void PanelPage::leave() {
    ++sitting_;
    grid_->clear();
}

void PanelPage::showMenu(platform::ReportRecord* record) {
    // The command may open another patient, or end the desk with this page.
    const QPointer<PanelPage> alive(this);
    const QString why = platform::guarded([&] {
        if (record) grid_->setFocusedRecord(record);
        PanelMenu menu;
        panel_.view->Popup(menu, grid_);
        const int sitting = sitting_;
        const int command = menu.choose();
        if (command != 0 && alive && sitting == sitting_) panel_.view->PopupExecute(command, grid_);
    });
    if (alive && !why.isEmpty()) emit failed(why);
}

void PanelPage::edit(platform::ReportRecord* record) {
    if (!record) return;
    const QString id = record->tag;
    const QPointer<PanelPage> alive(this);
    const QString why = platform::guarded([&] {
        const int sitting = sitting_;
        framework_.setDialogCancel(true);
        if (!showModally(panel_.view->EditForm(id))) return;
        const bool confirmed = alive && sitting == sitting_ && !framework_.DialogCancel();
        if (confirmed) panel_.view->refreshGrid(grid_, id);
    });
    if (alive && !why.isEmpty()) emit failed(why);
}

} // namespace desk
