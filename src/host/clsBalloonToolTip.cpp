#include "host/clsBalloonToolTip.h"

#include "host/Fumetto.h"

clsBalloonToolTip::clsBalloonToolTip() {
    fine_.setSingleShot(true);
    QObject::connect(&fine_, &QTimer::timeout, &fine_, [this] { Rimuovi(); });
}

clsBalloonToolTip::~clsBalloonToolTip() {
    Rimuovi();
}

bool clsBalloonToolTip::Crea() {
    Rimuovi();
    if (!controllo_ || (testo_.isEmpty() && titolo_.isEmpty())) return false;
    fumetto_ = new Fumetto(titolo_, testo_, icona_, controllo_);
    return true;
}

bool clsBalloonToolTip::Mostra() {
    const QWidget* controllo = controllo_.data();
    if (!controllo || !controllo->isVisible()) return false;
    if (!fumetto_ && !Crea()) return false;
    fumetto_->punta(*controllo);
    fumetto_->show();
    if (ritardo_ > 0) fine_.start(ritardo_);
    return true;
}

void clsBalloonToolTip::Rimuovi() {
    fine_.stop();
    delete fumetto_.data();
}

bool clsBalloonToolTip::Visibile() const {
    const QWidget* fumetto = fumetto_.data();
    return fumetto && fumetto->isVisible();
}
