#include "host/ListReading.h"

#include "host/contract/HostError.h"
#include "platform/ReportGrid.h"

#include <QColor>
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

bool ListReading::read(platform::ReportGrid& grid, const std::function<void()>& fill) {
    grid.beginUpdate();
    const auto show = qScopeGuard([&grid] { grid.endUpdate(); });
    grid.clear();
    timer_.stop();
    say(grid, QStringLiteral("Non ci sono dati da visualizzare"));
    try {
        fill();
    } catch (const host::HostError& error) {
        failed(grid, error);
        return false;
    }
    return true;
}

void ListReading::failed(platform::ReportGrid& grid, const host::HostError& error) {
    grid.clear(); // a part would be taken for the whole
    say(grid, QStringLiteral("Elenco non letto: ") + error.text());
    timer_.start();
}

void ListReading::say(platform::ReportGrid& grid, const QString& text) {
    grid.setTexts(text, QStringLiteral("Trascinare qui il titolo di una colonna per raggruppare"),
                  QStringLiteral("Ordina per "));
}

void dressList(platform::ReportGrid& grid) {
    grid.setColours(QColor(224, 233, 248), QColor(255, 255, 255), QColor(212, 208, 200));
    grid.setGroupBoxVisible(true);
    grid.setReadOnly(true);
}
