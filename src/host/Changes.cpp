#include "host/Changes.h"

#include <utility>

namespace {

Changes* running = nullptr;

} // namespace

Changes::Changes(Telling tell)
    : tell_(std::move(tell))
    , timer_(this) {
    running = this;
    timer_.setSingleShot(true);
    timer_.setInterval(0);
    connect(&timer_, &QTimer::timeout, this, &Changes::deliver);
}

Changes::~Changes() {
    if (running == this) running = nullptr;
}

void Changes::announce(const QString& t1, const QString& id) {
    QString& known = batch_.records[t1];
    if (!id.isEmpty()) known = id;
    pending_ = true;
    timer_.start();
}

void Changes::announceEverything() {
    batch_.everything = pending_ = true;
    timer_.start();
}

void Changes::deliver() {
    // A list that reads itself lets events pass: what is announced meanwhile comes after it.
    if (!pending_ || delivering_) return;
    timer_.stop();
    pending_ = false;
    delivering_ = true;
    tell_(std::exchange(batch_, {}));
    delivering_ = false;
    if (pending_) timer_.start();
}

void announceChange(const QString& t1, const QString& id) {
    if (running) running->announce(t1, id);
}

void deliverChanges() {
    if (running) running->deliver();
}
