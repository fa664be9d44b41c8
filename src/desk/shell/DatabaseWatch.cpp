#include "desk/shell/DatabaseWatch.h"

#include "desk/data/Database.h"
#include "desk/shell/MainWindow.h"
#include "platform/Dialogs.h"

#include <QStatusBar>
#include <QTimer>
#include <utility>

namespace desk {

namespace {

constexpr int STATUS_MILLISECONDS = 15000;
constexpr int SAME_TROUBLE = 60000; // milliseconds in which the same words would only be in the way

} // namespace

DatabaseWatch::DatabaseWatch(Database& database, MainWindow& window, std::function<void()> recovered)
    : database_(database)
    , window_(window)
    , recovered_(std::move(recovered)) {
    database_.setListener(
        {.failed = [this](const QString& text, bool lost) { failed(text, lost); }, .recovered = [this] { takeUp(); }});
}

DatabaseWatch::~DatabaseWatch() {
    database_.setListener({});
}

void DatabaseWatch::failed(const QString& text, bool connectionLost) {
    window_.statusBar()->showMessage(text.simplified(), connectionLost ? 0 : STATUS_MILLISECONDS);
    if (connectionLost) window_.showDatabase(QStringLiteral("non raggiungibile"));
    const bool known =
        connectionLost ? gone_ : text == lastTold_ && sinceTold_.isValid() && !sinceTold_.hasExpired(SAME_TROUBLE);
    gone_ = gone_ || connectionLost;
    if (known) return;
    lastTold_ = text;
    sinceTold_.start();
    // Later: whoever asked the database is in the middle of its work.
    QTimer::singleShot(0, this, [this, text, connectionLost] { showMessage(text, connectionLost); });
}

void DatabaseWatch::showMessage(const QString& text, bool connectionLost) {
    const QString advice =
        connectionLost ? QStringLiteral("Gli elenchi possono essere incompleti. Quanto è scritto nelle finestre aperte "
                                        "non è perso: confermarlo quando l'archivio risponde di nuovo.")
                       : QStringLiteral("Gli elenchi possono essere incompleti.");
    platform::dialogs().message(text + QStringLiteral("\n\n") + advice, platform::MB_WARNING,
                                QStringLiteral("Archivio"));
}

void DatabaseWatch::takeUp() {
    if (!std::exchange(gone_, false)) return;
    window_.showDatabase(database_.url().toDisplay());
    window_.statusBar()->showMessage(QStringLiteral("L'archivio risponde di nuovo."), STATUS_MILLISECONDS);
    recovered_();
}

} // namespace desk
