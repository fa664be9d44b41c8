#include "desk/shell/RibbonBar.h"

#include "desk/shell/CommandList.h"
#include "desk/shell/RibbonPage.h"

#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>

namespace desk {

RibbonBar::RibbonBar(CommandList& commands, QWidget* parent)
    : QWidget(parent)
    , commands_(commands) {
    setObjectName(QStringLiteral("ribbon"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    tabs_ = new QTabBar(this);
    tabs_->setObjectName(QStringLiteral("ribbonTabs"));
    tabs_->setDrawBase(false);
    tabs_->setExpanding(false);
    tabs_->setFocusPolicy(Qt::TabFocus);
    pages_ = new QStackedWidget(this);
    pages_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    column->addWidget(tabs_);
    column->addWidget(pages_);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setMinimumWidth(200);
    connect(tabs_, &QTabBar::currentChanged, pages_, &QStackedWidget::setCurrentIndex);
    connect(tabs_, &QTabBar::currentChanged, this, [this](int index) { emit tabActivated(tabs_->tabText(index)); });
}

RibbonPage* RibbonBar::insertTab(const QString& caption) {
    auto* created = new RibbonPage(caption, commands_, pages_);
    pages_->addWidget(created);
    tabs_->addTab(caption);
    return created;
}

RibbonPage* RibbonBar::page(const QString& caption) const {
    for (int i = 0; i < pages_->count(); ++i)
        if (auto* candidate = static_cast<RibbonPage*>(pages_->widget(i)); candidate->Caption() == caption)
            return candidate;
    return nullptr;
}

QStringList RibbonBar::tabs() const {
    QStringList captions;
    for (int i = 0; i < tabs_->count(); ++i)
        captions << tabs_->tabText(i);
    return captions;
}

QString RibbonBar::activeTab() const {
    return tabs_->tabText(tabs_->currentIndex());
}

void RibbonBar::activateTab(const QString& caption) {
    for (int i = 0; i < tabs_->count(); ++i)
        if (tabs_->tabText(i) == caption) tabs_->setCurrentIndex(i);
}

} // namespace desk
