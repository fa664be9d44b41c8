#pragma once

#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <gtest/gtest.h>

/// Works in the next modal window, once it is up; it must be the one of that name. The object tells whether it came.
class FinestraModale {
public:
    FinestraModale(const char* nome, std::function<void(QWidget&)> lavoro)
        : nome_(QLatin1String(nome))
        , lavoro_(std::move(lavoro)) {
        timer_.setInterval(10);
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] {
            QWidget* finestra = QApplication::activeModalWidget();
            if (!finestra || !finestra->isVisible()) return;
            timer_.stop();
            venuta_ = true;
            EXPECT_EQ(finestra->objectName(), nome_);
            if (finestra->objectName() == nome_) lavoro_(*finestra);
            finestra->close();
        });
        timer_.start();
    }
    ~FinestraModale() { EXPECT_TRUE(venuta_) << nome_.toStdString(); }

private:
    QString nome_;
    std::function<void(QWidget&)> lavoro_;
    QTimer timer_;
    bool venuta_ = false;
};
