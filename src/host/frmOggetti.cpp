#include "host/frmOggetti.h"

#include "platform/FormRegistry.h"

#include <QScopeGuard>
#include <QTimer>
#include <QVariant>
#include <exception>

namespace {

constexpr int MINUTO = 60000;
const char* const TAG = "Tag";

} // namespace

frmOggetti::frmOggetti(Servizi servizi)
    : servizi_(std::move(servizi))
    , timer_(new QTimer(this)) {
    setObjectName(QStringLiteral("frmOggetti"));
    timer_->setObjectName(QStringLiteral("Timer1"));
    timer_->setInterval(MINUTO);
    connect(timer_, &QTimer::timeout, this, &frmOggetti::Timer1_Timer);
    platform::FormRegistry::add(this);
}

void frmOggetti::RefreshDatiPaziente() {
    if (servizi_.refreshDatiPaziente) servizi_.refreshDatiPaziente();
}

void frmOggetti::setTimerAttivo(bool attivo) {
    attivo ? timer_->start() : timer_->stop();
}

void frmOggetti::Timer1_Timer() {
    if (!timer_->isActive()) return;
    // The tick comes straight from the event loop, which no exception may cross.
    try {
        minuto();
    } catch (const std::exception& errore) {
        qWarning("Aggiornamento periodico non riuscito: %s", errore.what());
    }
}

void frmOggetti::minuto() {
    const std::optional<int> ogni = servizi_.minutiRefresh ? servizi_.minutiRefresh() : std::nullopt;
    if (!ogni) return;
    if (*ogni < 1) {
        timer_->stop();
        return;
    }
    const int passati = timer_->property(TAG).toString().toInt() + 1;
    timer_->setProperty(TAG, QString::number(passati));
    if (passati < *ogni) return;            // beyond it when the setting was lowered meanwhile
    timer_->stop();                         // a slow refresh delays the count and never overlaps another
    const auto again = qScopeGuard([this] { // also after one that failed
        timer_->setProperty(TAG, QStringLiteral("0"));
        timer_->start();
    });
    RefreshDatiPaziente();
}
