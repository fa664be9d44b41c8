#include "desk/shell/ChildWindows.h"

#include <QEvent>
#include <QMdiSubWindow>
#include <QPainter>
#include <QTabBar>
#include <QTimer>

namespace desk {

namespace {

/// Tabs show what follows the program's and the module's name; the window itself keeps its whole caption.
void nameTab(QMdiSubWindow& holder, const QString& caption) {
    const QString own = caption.section(QStringLiteral(": "), 1);
    holder.setWindowTitle(own.isEmpty() ? caption : own);
}

} // namespace

ChildWindows::ChildWindows(QWidget* parent)
    : QMdiArea(parent) {
    setObjectName(QStringLiteral("area"));
    setViewMode(QMdiArea::TabbedView);
    setTabsClosable(true);
    setTabsMovable(true);
    setDocumentMode(true);
    tabs_ = findChild<QTabBar*>();
    tabs_->setExpanding(false);
    tabs_->setElideMode(Qt::ElideMiddle);
    connect(this, &QMdiArea::subWindowActivated, this, &ChildWindows::showTabsIfAny);
    setBackground(palette().color(QPalette::Window));
}

void ChildWindows::adopt(QWidget* form) {
    if (QMdiSubWindow* holder = holderOf(form)) {
        setActiveSubWindow(holder);
        return;
    }
    auto* holder = new QMdiSubWindow;
    holder->setAttribute(Qt::WA_DeleteOnClose);
    holder->setWidget(form);
    holder->setWindowIcon(form->windowIcon());
    nameTab(*holder, form->windowTitle());
    connect(form, &QWidget::windowTitleChanged, holder, [holder](const QString& title) { nameTab(*holder, title); });
    addSubWindow(holder);
    holder->hide();
    form->installEventFilter(this);
    connect(form, &QObject::destroyed, holder, &QObject::deleteLater);
}

QMdiSubWindow* ChildWindows::holderOf(QObject* form) {
    return form ? qobject_cast<QMdiSubWindow*>(form->parent()) : nullptr;
}

QMdiSubWindow* ChildWindows::find(const QString& caption) const {
    for (QMdiSubWindow* holder : subWindowList())
        if (holder->widget() && holder->widget()->windowTitle() == caption) return holder;
    return nullptr;
}

bool ChildWindows::bringForward(const QString& caption) {
    QMdiSubWindow* holder = find(caption);
    if (!holder) return false;
    holder->widget()->show();
    setActiveSubWindow(holder);
    return true;
}

void ChildWindows::bringForward(QWidget* form) {
    QMdiSubWindow* holder = holderOf(form);
    if (!holder) return;
    showTab(holder, true);
    holder->show();
    setActiveSubWindow(holder);
}

void ChildWindows::putAway(QWidget* form) {
    QMdiSubWindow* holder = holderOf(form);
    if (!holder) return;
    holder->hide();
    showTab(holder, false);
}

// Tabs stand in the order of the windows, also after one was dragged.
void ChildWindows::showTab(QMdiSubWindow* holder, bool shown) {
    tabs_->setTabVisible(static_cast<int>(subWindowList().indexOf(holder)), shown);
    showTabsIfAny();
}

// A bar without any tab to see would still draw the one that was in front.
void ChildWindows::showTabsIfAny() {
    bool any = false;
    for (int i = 0; i < tabs_->count(); ++i)
        any = any || tabs_->isTabVisible(i);
    tabs_->setVisible(any);
}

void ChildWindows::closeCaption(const QString& caption) {
    if (QMdiSubWindow* holder = find(caption)) holder->close();
}

void ChildWindows::discard(QWidget* form) {
    QMdiSubWindow* holder = holderOf(form);
    if (!holder) return;
    holder->hide();
    removeSubWindow(holder);
    holder->deleteLater();
    discarded_.removeIf([](const QPointer<QMdiSubWindow>& old) { return old.isNull(); });
    discarded_.append(holder);
}

bool ChildWindows::closeAll(const QWidget* except) {
    for (QMdiSubWindow* holder : subWindowList())
        if (holder->widget() && holder->widget() != except && !holder->close()) return false;
    return true;
}

void ChildWindows::deleteAll() {
    qDeleteAll(subWindowList());
    for (const QPointer<QMdiSubWindow>& holder : std::as_const(discarded_))
        delete holder;
}

bool ChildWindows::eventFilter(QObject* watched, QEvent* event) {
    QMdiSubWindow* holder = holderOf(watched);
    if (holder && event->type() == QEvent::ShowToParent) {
        // The first show of the window is what opens its tab.
        QTimer::singleShot(0, this, [this, form = QPointer<QObject>(watched)] {
            QMdiSubWindow* opened = holderOf(form);
            if (opened && subWindowList().contains(opened)) setActiveSubWindow(opened); // closed again meanwhile
        });
    }
    if (holder && event->type() == QEvent::HideToParent && holder->isVisible()) {
        // A window that closes itself leaves only its own place; the tab around it has to go too.
        QTimer::singleShot(0, holder, [holder] {
            if (!holder->widget() || holder->widget()->isHidden()) holder->deleteLater();
        });
    }
    return QMdiArea::eventFilter(watched, event);
}

void ChildWindows::paintEvent(QPaintEvent* event) {
    QMdiArea::paintEvent(event);
    for (QMdiSubWindow* holder : subWindowList())
        if (holder->isVisible()) return;
    QPainter painter(viewport());
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 2);
    painter.setFont(large);
    painter.setPen(palette().color(QPalette::Mid).darker(120));
    const QRect upper = viewport()->rect().adjusted(0, 0, 0, -viewport()->height() / 2 - 4);
    painter.drawText(upper, Qt::AlignHCenter | Qt::AlignBottom, QStringLiteral("Nessun paziente aperto"));
    painter.setFont(font());
    const QRect lower = viewport()->rect().adjusted(0, viewport()->height() / 2 + 4, 0, 0);
    painter.drawText(lower, Qt::AlignHCenter | Qt::AlignTop,
                     QStringLiteral("Premere \u201cCerca paziente\u201d nella barra in alto, oppure Ctrl+F"));
}

} // namespace desk
