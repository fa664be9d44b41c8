#pragma once

#include <QCursor>
#include <QGuiApplication>

namespace desk {

/// While a long work goes on, as nothing else can be done.
class Hourglass {
public:
    Hourglass() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~Hourglass() { QGuiApplication::restoreOverrideCursor(); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
};

} // namespace desk
