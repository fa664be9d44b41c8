#include "desk/people/DeskSettings.h"

#include "host/contract/Utente.h"

namespace desk {

namespace {

const QString START_TAB = QStringLiteral("Tessara.SchedaIniziale");
const QString FONT_SIZE = QStringLiteral("Tessara.Carattere");
const QString MENU_PANE = QStringLiteral("Tessara.MenuPrincipale");
const QString KEEP_PLACE = QStringLiteral("Tessara.RicordaPosizione");

QString textOf(bool on) {
    return on ? QStringLiteral("1") : QStringLiteral("0");
}

} // namespace

DeskSettings DeskSettings::load(const host::Items& items) {
    DeskSettings settings;
    settings.startTab = items.GetITEM(START_TAB);
    const int size = items.GetITEM(FONT_SIZE).toInt();
    if (size >= normalFont && size <= largestFont) settings.fontSize = size;
    const QString pane = items.GetITEM(MENU_PANE);
    if (!pane.isEmpty()) settings.menuPane = pane != QLatin1String("0");
    settings.keepPlace = items.GetITEM(KEEP_PLACE) != QLatin1String("0");
    return settings;
}

void DeskSettings::save(host::Items& items) const {
    items.SetITEM(START_TAB, startTab);
    items.SetITEM(FONT_SIZE, QString::number(fontSize));
    if (menuPane) items.SetITEM(MENU_PANE, textOf(*menuPane));
    items.SetITEM(KEEP_PLACE, textOf(keepPlace));
}

} // namespace desk
