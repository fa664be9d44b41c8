#include "desk/shell/RibbonPage.h"

#include "desk/shell/CommandList.h"
#include "desk/shell/RibbonGroupBox.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolButton>

namespace desk {

namespace {

constexpr int SCROLL_STEP = 160;
constexpr int PAGE_HEIGHT = 106;

} // namespace

RibbonPage::RibbonPage(const QString& caption, CommandList& commands, QWidget* parent)
    : QWidget(parent)
    , caption_(caption)
    , commands_(commands) {
    setFixedHeight(PAGE_HEIGHT);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    left_ = arrow(Qt::LeftArrow, -SCROLL_STEP);
    right_ = arrow(Qt::RightArrow, SCROLL_STEP);
    scroll_ = new QScrollArea(this);
    scroll_->setFrameShape(QFrame::NoFrame);
    scroll_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll_->setWidgetResizable(true);
    scroll_->setFocusPolicy(Qt::NoFocus);
    auto* content = new QWidget;
    content->setBackgroundRole(QPalette::Base);
    content->setAutoFillBackground(true);
    groups_ = new QHBoxLayout(content);
    groups_->setContentsMargins(4, 0, 4, 0);
    groups_->setSpacing(2);
    groups_->addStretch();
    scroll_->setWidget(content);
    content->installEventFilter(this);
    connect(scroll_->horizontalScrollBar(), &QScrollBar::rangeChanged, this, &RibbonPage::showArrows);
    connect(scroll_->horizontalScrollBar(), &QScrollBar::valueChanged, this, &RibbonPage::showArrows);
    row->addWidget(left_);
    row->addWidget(scroll_, 1);
    row->addWidget(right_);
}

QToolButton* RibbonPage::arrow(Qt::ArrowType type, int step) {
    auto* button = new QToolButton(this);
    button->setArrowType(type);
    button->setAutoRaise(true);
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    button->setFixedWidth(16);
    button->setFocusPolicy(Qt::NoFocus);
    button->setVisible(false);
    connect(button, &QToolButton::clicked, this, [this, step] {
        QScrollBar* bar = scroll_->horizontalScrollBar();
        bar->setValue(bar->value() + step);
    });
    return button;
}

host::RibbonGroup* RibbonPage::AddGroup(const QString& caption, qint32) {
    return insertGroup(caption);
}

host::RibbonGroup* RibbonPage::InsertTabGroup(const QString& caption) {
    return insertGroup(caption);
}

RibbonGroupBox* RibbonPage::insertGroup(const QString& caption) {
    auto* group = new RibbonGroupBox(caption, commands_, *this, scroll_->widget());
    groups_->insertWidget(groups_->count() - 1, group);
    return group;
}

void RibbonPage::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    showArrows();
}

bool RibbonPage::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest) showArrows();
    return QWidget::eventFilter(watched, event);
}

void RibbonPage::showArrows() {
    const int wanted = scroll_->widget()->minimumSizeHint().width();
    const bool tooNarrow = wanted > width();
    const QScrollBar* bar = scroll_->horizontalScrollBar();
    left_->setVisible(tooNarrow);
    right_->setVisible(tooNarrow);
    left_->setEnabled(bar->value() > bar->minimum());
    right_->setEnabled(bar->value() < bar->maximum());
}

} // namespace desk
