#pragma once

#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <gtest/gtest.h>

/// Works in the next modal window, once it is up; it must be the one of that name. The object tells whether it came.
class ModalWindow {
public:
    ModalWindow(const char* name, std::function<void(QWidget&)> work)
        : name_(QLatin1String(name))
        , work_(std::move(work)) {
        timer_.setInterval(10);
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] {
            QWidget* window = QApplication::activeModalWidget();
            if (!window || !window->isVisible()) return;
            timer_.stop();
            came_ = true;
            EXPECT_EQ(window->objectName(), name_);
            if (window->objectName() == name_) work_(*window);
            window->close();
        });
        timer_.start();
    }
    ~ModalWindow() { EXPECT_TRUE(came_) << name_.toStdString(); }

private:
    QString name_;
    std::function<void(QWidget&)> work_;
    QTimer timer_;
    bool came_ = false;
};
