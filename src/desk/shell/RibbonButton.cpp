#include "desk/shell/RibbonButton.h"

#include "desk/shell/Command.h"
#include "desk/shell/CommandAction.h"

#include <QMenu>

namespace desk {

namespace {

constexpr int LARGE_ICON = 32;
constexpr int SMALL_ICON = 16;
constexpr int LONGEST_LINE = 11;

/// Captions below a large icon stand on two lines, divided at the blank that is nearest to the middle.
QString onTwoLines(const QString& caption) {
    if (caption.size() <= LONGEST_LINE) return caption;
    const qsizetype middle = caption.size() / 2;
    qsizetype best = -1;
    for (qsizetype i = caption.indexOf(QLatin1Char(' ')); i >= 0; i = caption.indexOf(QLatin1Char(' '), i + 1))
        if (best < 0 || qAbs(i - middle) < qAbs(best - middle)) best = i;
    if (best < 0) return caption;
    return caption.left(best) + QLatin1Char('\n') + caption.mid(best + 1);
}

QString shown(QString caption) {
    return caption.replace(QLatin1Char('&'), QStringLiteral("&&"));
}

} // namespace

RibbonButton::RibbonButton(Command& command, QWidget* parent)
    : QToolButton(parent)
    , command_(command) {
    setObjectName(command.key().isEmpty() ? QStringLiteral("cbComando(%1)").arg(command.ID()) : command.key());
    setAutoRaise(true);
    setFocusPolicy(Qt::TabFocus);
    if (command.entries().isEmpty())
        connect(this, &QToolButton::clicked, &command, &Command::press);
    else
        attachMenu();
    follow();
}

bool RibbonButton::isLarge() const {
    return command_.Style() == host::StileBottone::IconaSopraDidascalia;
}

void RibbonButton::follow() {
    const bool large = isLarge();
    const int side = large ? LARGE_ICON : SMALL_ICON;
    setIconSize(QSize(side, side));
    switch (command_.Style()) {
    case host::StileBottone::IconaSopraDidascalia:
        setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        break;
    case host::StileBottone::Icona:
        setToolButtonStyle(Qt::ToolButtonIconOnly);
        break;
    case host::StileBottone::Didascalia:
        setToolButtonStyle(Qt::ToolButtonTextOnly);
        break;
    default:
        setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    }
    setText(shown(large ? onTwoLines(command_.Caption()) : command_.Caption()));
    setIcon(command_.icon());
    setToolTip(command_.tooltip().isEmpty() ? command_.Caption() : command_.tooltip());
    setAccessibleName(command_.Caption());
    setEnabled(command_.Enabled());
    setSizePolicy(QSizePolicy::Preferred, large ? QSizePolicy::Expanding : QSizePolicy::Fixed);
}

void RibbonButton::attachMenu() {
    auto* menu = new QMenu(this);
    for (Command* entry : command_.entries())
        menu->addAction(new CommandAction(*entry, menu));
    setMenu(menu);
    setPopupMode(QToolButton::InstantPopup);
}

} // namespace desk
