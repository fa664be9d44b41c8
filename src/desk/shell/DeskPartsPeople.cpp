#include "desk/people/SettingsWindow.h"
#include "desk/people/UserList.h"
#include "desk/people/WindowPlace.h"
#include "desk/shell/DeskParts.h"
#include "desk/shell/RibbonBar.h"
#include "platform/Guarded.h"

#include <QApplication>
#include <QFont>

namespace desk {

void Desk::Parts::showUsers() {
    UserList list(practice->users(), practice->signIn(), practice->user().ID(), &window);
    list.exec();
    // The signature in the records is that of the sign-in; only the window follows at once.
    for (const UserData& user : practice->users().all()) {
        if (user.ID == practice->user().ID()) window.showUser(user.fullName());
    }
}

void Desk::Parts::changeSettings() {
    SettingsWindow dialog(
        practice->user().Items(),
        {.tabs = window.ribbon().tabs(), .menuPane = window.menuPaneShown(), .userName = practice->user().sign()},
        &window);
    if (dialog.exec() != QDialog::Accepted) return;
    settings = dialog.settings();
    applySettings();
}

// Before the first window is made: later not every part of it would follow.
DeskSettings Desk::Parts::settingsWithFont() {
    const DeskSettings found = DeskSettings::load(practice->user().Items());
    QFont font = QApplication::font();
    font.setPointSize(found.fontSize);
    if (font != QApplication::font()) QApplication::setFont(font);
    return found;
}

void Desk::Parts::applySettings() {
    if (settings.menuPane) window.showMenuPane(*settings.menuPane);
    window.ribbon().activateTab(settings.startTab);
}

void Desk::Parts::restorePlace() {
    placeIsKept = true;
    const auto place = WindowPlace::fromText(practice->user().Items().GetITEM(WindowPlace::itemName()));
    if (place && settings.keepPlace) place->give(window);
}

void Desk::Parts::keepPlace() {
    if (!placeIsKept || !settings.keepPlace) return;
    // A database that is gone must not keep the window open.
    const QString failure = platform::guarded(
        [this] { practice->user().Items().SetITEM(WindowPlace::itemName(), WindowPlace::of(window).toText()); });
    Q_UNUSED(failure);
}

} // namespace desk
