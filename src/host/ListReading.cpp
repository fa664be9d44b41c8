#include "host/ListReading.h"

#include "host/contract/HostError.h"
#include "platform/ReportGrid.h"

#include <QScopeGuard>

namespace {

constexpr int PAUSE = 30000; // milliseconds: a server that is away may keep the user waiting at each question

} // namespace

ListReading::ListReading(std::function<void()> again, QObject* parent)
    : QObject(parent)
    , timer_(this) {
    timer_.setObjectName(QStringLiteral("tmRilettura"));
    timer_.setInterval(PAUSE);
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, std::move(again));
}

void ListReading::read(platform::ReportGrid& grid, const std::function<void()>& fill) {
    grid.beginUpdate();
    const auto show = qScopeGuard([&grid] { grid.endUpdate(); });
    grid.clear();
    QString text = QStringLiteral("Non ci sono dati da visualizzare");
    timer_.stop();
    try {
        fill();
    } catch (const host::HostError& error) {
        grid.clear(); // a part would be taken for the whole
        text = QStringLiteral("Elenco non letto: ") + error.text();
        timer_.start();
    }
    grid.setTexts(text, QStringLiteral("Trascinare qui il titolo di una colonna per raggruppare"),
                  QStringLiteral("Ordina per "));
}
