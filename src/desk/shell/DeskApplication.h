#pragma once

#include <QApplication>

namespace desk {

/// The application object of the desk. What is thrown while an event is handled ends there, with a line on the standard
/// error, since nothing may pass through Qt's event loop.
class DeskApplication : public QApplication {
    Q_OBJECT

public:
    DeskApplication(int& argc, char** argv);
    bool notify(QObject* receiver, QEvent* event) override;
};

} // namespace desk
