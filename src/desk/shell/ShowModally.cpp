#include "desk/shell/ShowModally.h"

#include <QDialog>
#include <QEvent>
#include <QEventLoop>
#include <QPointer>
#include <QWidget>

namespace desk {

namespace {

/// Ends the loop when the window has gone from the screen.
class HideWatcher : public QObject {
public:
    explicit HideWatcher(QEventLoop& loop)
        : loop_(loop) {}
    bool eventFilter(QObject*, QEvent* event) override {
        // The window system hides it too, when it is put down as an icon; it comes back from there.
        if (event->type() == QEvent::Hide && !event->spontaneous()) loop_.quit();
        return false;
    }

private:
    QEventLoop& loop_;
};

} // namespace

bool showModally(QObject* form) {
    auto* window = qobject_cast<QWidget*>(form);
    if (!window) return false;
    const QPointer<QWidget> alive(window);
    if (auto* dialog = qobject_cast<QDialog*>(window)) {
        dialog->exec();
    } else {
        QEventLoop loop;
        HideWatcher watcher(loop);
        window->installEventFilter(&watcher);
        QObject::connect(window, &QObject::destroyed, &loop, &QEventLoop::quit);
        window->setWindowModality(Qt::ApplicationModal);
        window->show();
        loop.exec();
        if (alive) alive->removeEventFilter(&watcher);
    }
    if (alive) alive->deleteLater();
    return true;
}

} // namespace desk
