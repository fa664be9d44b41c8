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
    struct Servizi {
        std::function<std::optional<int>()> minutiRefresh; ///< Nothing while there is no configuration.
        std::function<void()> refreshDatiPaziente;
    };

    explicit frmOggetti(Servizi servizi);

    /// Rereads everything shown for the current patient.
    void RefreshDatiPaziente();

    void setTimerAttivo(bool attivo);

    /// One minute of the refresh timer; does nothing while it is off.
    Q_INVOKABLE void Timer1_Timer();

private:
    void minuto();

    Servizi servizi_;
    QTimer* timer_;
};
