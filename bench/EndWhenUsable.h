#pragma once

#include <QCoreApplication>
#include <QMainWindow>
#include <QTimer>
#include <unistd.h>

/// Shows the window and ends the process as soon as it has been painted and nothing is left to do.
[[noreturn]] inline void endWhenUsable(QMainWindow& window) {
    window.show();
    QTimer idle;
    QObject::connect(&idle, &QTimer::timeout, &window, [&window] {
        if (window.isVisible()) ::_exit(0);
    });
    idle.start(0); // Fires when the queue is empty: exposure and painting come first.
    QCoreApplication::exec();
    ::_exit(1);
}
