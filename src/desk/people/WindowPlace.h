#pragma once

#include <QList>
#include <QRect>
#include <QString>
#include <optional>

class QWidget;

namespace host {
class Items;
}

namespace desk {

/// Where a main window stood when it was left, kept for each user and workstation.
struct WindowPlace {
    QRect frame; ///< Of the window when it is not maximised.
    bool maximized = false;

    static std::optional<WindowPlace> fromText(const QString& text);
    QString toText() const;

    static WindowPlace of(const QWidget& window);
    /// Moves the window there, as far as the screens of today allow.
    void give(QWidget& window) const;

    static QString itemName(); ///< Of the setting: one a workstation.
};

/// The frame moved and shrunk onto the screen on which most of it lies, else onto the first one. Unchanged when there
/// is no screen.
QRect fittedToScreens(const QRect& frame, const QList<QRect>& screens);

} // namespace desk
