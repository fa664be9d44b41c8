#include "host/frmOggetti.h"

#include "platform/FormRegistry.h"

#include <QScopeGuard>
#include <QTimer>
#include <QVariant>
#include <exception>

namespace {

constexpr int MINUTE = 60000;
const char* const TAG = "Tag";

} // namespace

frmOggetti::frmOggetti(Services services)
    : services_(std::move(services))
    , timer_(new QTimer(this)) {
    setObjectName(QStringLiteral("frmOggetti"));
    timer_->setObjectName(QStringLiteral("Timer1"));
    timer_->setInterval(MINUTE);
    connect(timer_, &QTimer::timeout, this, &frmOggetti::Timer1_Timer);
    platform::FormRegistry::add(this);
}

void frmOggetti::RefreshDatiPaziente() {
    if (services_.refreshPatient) services_.refreshPatient();
}

void frmOggetti::setTimerActive(bool active) {
    active ? timer_->start() : timer_->stop();
}

void frmOggetti::Timer1_Timer() {
    if (!timer_->isActive()) return;
    // The tick comes straight from the event loop, which no exception may cross.
    try {
        minute();
    } catch (const std::exception& error) {
        qWarning("Aggiornamento periodico non riuscito: %s", error.what());
    }
}

void frmOggetti::minute() {
    const std::optional<int> minutes = services_.refreshMinutes ? services_.refreshMinutes() : std::nullopt;
    if (!minutes) return;
    if (*minutes < 1) {
        timer_->stop();
        return;
    }
    const int passed = timer_->property(TAG).toString().toInt() + 1;
    timer_->setProperty(TAG, QString::number(passed));
    if (passed < *minutes) return;          // beyond it when the setting was lowered meanwhile
    timer_->stop();                         // a slow refresh delays the count and never overlaps another
    const auto again = qScopeGuard([this] { // also after one that failed
        timer_->setProperty(TAG, QStringLiteral("0"));
        timer_->start();
    });
    RefreshDatiPaziente();
}
