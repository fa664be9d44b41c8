#include "desk/people/WindowPlace.h"

#include <QGuiApplication>
#include <QScreen>
#include <QStringList>
#include <QSysInfo>
#include <QWidget>

namespace desk {

namespace {

constexpr int SMALLEST = 100; ///< Pixels; less is no window of ours.
constexpr int TITLE_BAR = 32; ///< Above the place that is kept, and must stay within reach.

qint64 areaOf(const QRect& rect) {
    return rect.isEmpty() ? 0 : qint64(rect.width()) * rect.height();
}

} // namespace

std::optional<WindowPlace> WindowPlace::fromText(const QString& text) {
    const QStringList parts = text.split(QLatin1Char(' '));
    if (parts.size() != 5) return std::nullopt;
    int numbers[5];
    for (int i = 0; i < 5; ++i) {
        bool good = false;
        numbers[i] = parts[i].toInt(&good);
        if (!good) return std::nullopt;
    }
    const QRect frame(numbers[0], numbers[1], numbers[2], numbers[3]);
    if (frame.width() < SMALLEST || frame.height() < SMALLEST) return std::nullopt;
    return WindowPlace{frame, numbers[4] != 0};
}

QString WindowPlace::toText() const {
    return QStringLiteral("%1 %2 %3 %4 %5")
        .arg(frame.x())
        .arg(frame.y())
        .arg(frame.width())
        .arg(frame.height())
        .arg(maximized ? 1 : 0);
}

WindowPlace WindowPlace::of(const QWidget& window) {
    return {window.isMaximized() ? window.normalGeometry() : window.geometry(), window.isMaximized()};
}

void WindowPlace::give(QWidget& window) const {
    QList<QRect> screens;
    for (const QScreen* screen : QGuiApplication::screens())
        screens << screen->availableGeometry().adjusted(0, TITLE_BAR, 0, 0);
    window.setGeometry(fittedToScreens(frame, screens));
    if (maximized) window.setWindowState(window.windowState() | Qt::WindowMaximized);
}

QString WindowPlace::itemName() {
    return QStringLiteral("Tessara.Finestra.") + QSysInfo::machineHostName();
}

QRect fittedToScreens(const QRect& frame, const QList<QRect>& screens) {
    if (screens.isEmpty()) return frame;
    QRect screen = screens.first();
    for (const QRect& each : screens) {
        if (areaOf(each & frame) > areaOf(screen & frame)) screen = each;
    }
    QRect fitted(frame.topLeft(), frame.size().boundedTo(screen.size()));
    fitted.moveLeft(qBound(screen.left(), fitted.left(), screen.right() - fitted.width() + 1));
    fitted.moveTop(qBound(screen.top(), fitted.top(), screen.bottom() - fitted.height() + 1));
    return fitted;
}

} // namespace desk
