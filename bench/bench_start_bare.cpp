#include "EndWhenUsable.h"

#include "platform/Theme.h"

#include <QApplication>
#include <QLabel>

// The floor of bench_start, a program of its own so that it loads no more than a Qt window needs.
int main(int argc, char** argv) {
    QApplication application(argc, argv);
    platform::applyTheme(application);
    QMainWindow window;
    window.setCentralWidget(new QLabel(QStringLiteral("Tessara 5000"), &window));
    window.resize(1280, 800);
    endWhenUsable(window);
}
