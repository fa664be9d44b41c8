#include "desk/shell/RibbonGroupBox.h"

#include "desk/shell/CommandList.h"
#include "desk/shell/RibbonButton.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

namespace desk {

namespace {

constexpr int BUTTONS_HEIGHT = 78;
constexpr int SMALL_IN_COLUMN = 3;
constexpr int LOGO_HEIGHT = 64;

QFrame* separator(QWidget* parent) {
    auto* line = new QFrame(parent);
    line->setFrameShape(QFrame::VLine);
    line->setFrameShadow(QFrame::Plain);
    line->setForegroundRole(QPalette::Midlight);
    return line;
}

/// Takes a layout's items out; buttons and logo live on, separators and columns do not.
void empty(QLayout* layout) {
    while (QLayoutItem* item = layout->takeAt(0)) {
        if (QLayout* inner = item->layout()) empty(inner);
        if (auto* line = qobject_cast<QFrame*>(item->widget()); line && line->frameShape() == QFrame::VLine)
            delete line;
        delete item;
    }
}

} // namespace

RibbonGroupBox::RibbonGroupBox(const QString& caption, CommandList& commands, host::RibbonTab& tab, QWidget* parent)
    : QWidget(parent)
    , caption_(caption)
    , commands_(commands)
    , tab_(tab) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(4, 3, 6, 2);
    column->setSpacing(1);
    auto* buttons = new QWidget(this);
    buttons->setFixedHeight(BUTTONS_HEIGHT);
    row_ = new QHBoxLayout(buttons);
    row_->setContentsMargins(0, 0, 0, 0);
    row_->setSpacing(2);
    column->addWidget(buttons);
    auto* title = new QLabel(caption, this);
    title->setAlignment(Qt::AlignCenter);
    QFont small = title->font();
    small.setPointSizeF(small.pointSizeF() * 0.88);
    title->setFont(small);
    title->setEnabled(false);
    column->addWidget(title);
    setVisible(false);
}

host::RibbonControl* RibbonGroupBox::InsertGroupButton(const host::BottoneRibbon& button) {
    Command* command = commands_.add(button);
    addButton(*command);
    return command;
}

void RibbonGroupBox::InsertGroupControl(qint32 id) {
    const QIcon picture = commands_.picture(id);
    if (picture.isNull()) return;
    if (!logo_) logo_ = new QLabel(this);
    const QSize size = picture.actualSize(QSize(4 * LOGO_HEIGHT, LOGO_HEIGHT));
    logo_->setPixmap(picture.pixmap(size, devicePixelRatioF()));
    logo_->setContentsMargins(4, 0, 4, 0);
    logo_->setAccessibleName(caption_);
    arrange();
}

void RibbonGroupBox::addButton(Command& command) {
    command.setTab(&tab_);
    auto* button = new RibbonButton(command, this);
    buttons_.append(button);
    connect(&command, &Command::changed, this, [this, button] {
        const bool large = button->isLarge();
        const bool moved = button->isHidden() == button->command().Visible() ||
                           large != (button->toolButtonStyle() == Qt::ToolButtonTextUnderIcon);
        button->follow();
        if (moved) arrange();
    });
    arrange();
}

void RibbonGroupBox::arrange() {
    empty(row_);
    if (logo_) row_->addWidget(logo_);
    QVBoxLayout* column = nullptr;
    bool first = true;
    bool separated = false; // A hidden button hands its separator on to the next one.
    for (RibbonButton* button : std::as_const(buttons_)) {
        separated = separated || button->command().beginsGroup();
        button->setVisible(button->command().Visible());
        if (!button->command().Visible()) continue;
        if (separated && !first) {
            row_->addWidget(separator(this));
            column = nullptr;
        }
        separated = false;
        first = false;
        if (button->isLarge()) {
            row_->addWidget(button);
            column = nullptr;
            continue;
        }
        if (!column || column->count() == SMALL_IN_COLUMN) {
            column = new QVBoxLayout;
            column->setContentsMargins(0, 0, 0, 0);
            column->setSpacing(0);
            column->setAlignment(Qt::AlignTop);
            row_->addLayout(column);
        }
        column->addWidget(button);
    }
    setVisible(logo_ || !first);
}

void RibbonGroupBox::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Midlight).darker(108));
    painter.drawLine(width() - 1, 6, width() - 1, height() - 6);
}

} // namespace desk
