#pragma once

#include <QList>
#include <QMdiArea>
#include <QPointer>

class QMdiSubWindow;
class QTabBar;

namespace desk {

/// The area in which the patient's desk and the module's lists are open as tabs. Where nothing is open it says how to
/// begin.
class ChildWindows : public QMdiArea {
    Q_OBJECT

public:
    explicit ChildWindows(QWidget* parent = nullptr);

    /// Takes a window in, not yet shown: it appears when it is shown itself, and goes with its last close.
    void adopt(QWidget* form);
    bool bringForward(const QString& caption); ///< False when no window has this caption.
    void bringForward(QWidget* form);          ///< Also one that was put away.
    void closeCaption(const QString& caption);
    /// Takes a window off the screen, tab and all, without asking; `bringForward` shows it again.
    void putAway(QWidget* form);
    /// The same for good: it is deleted when its callers have returned.
    void discard(QWidget* form);
    /// Asks every window but one to close; false when another wants to stay.
    bool closeAll(const QWidget* except);
    void deleteAll(); ///< At once and without asking.

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QMdiSubWindow* find(const QString& caption) const;
    static QMdiSubWindow* holderOf(QObject* form);
    void showTab(QMdiSubWindow* holder, bool shown);
    void showTabsIfAny();

    QTabBar* tabs_;
    QList<QPointer<QMdiSubWindow>> discarded_;
};

} // namespace desk
