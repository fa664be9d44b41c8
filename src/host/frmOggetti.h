#pragma once

#include <QWidget>
#include <functional>
#include <optional>

class QTimer;

/// Never shown: holds the refresh timer, in a module with no window of its own. Made before the host is known; owned by
/// the Plugin, which gives it what lies above.
class frmOggetti : public QWidget {
    Q_OBJECT

public:
    struct Services {
        std::function<std::optional<int>()> refreshMinutes; ///< Nothing while there is no configuration.
        std::function<void()> refreshPatient;
    };

    explicit frmOggetti(Services services);

    /// Rereads everything shown for the current patient.
    void RefreshDatiPaziente();

    void setTimerActive(bool active);

    /// One minute of the refresh timer; does nothing while it is off.
    Q_INVOKABLE void Timer1_Timer();

private:
    void minute();

    Services services_;
    QTimer* timer_;
};
