#include "desk/people/SettingsWindow.h"

#include "desk/icons/DeskIcon.h"

namespace desk {

namespace {

using platform::bound;
using platform::FieldKind;

constexpr platform::BoundField<DeskSettings> FIELDS[] = {
    {{"laUtente", u"", FieldKind::Text}},
    bound<&DeskSettings::startTab>({"cbScheda", u"&Scheda iniziale:", FieldKind::Choice}),
    bound<&DeskSettings::fontSize>({"cbCarattere", u"&Carattere:", FieldKind::Choice}),
    {{"", u"Il carattere cambia dal prossimo avvio.", FieldKind::Note}},
    {{"ckMenu", u"&Menu principale a sinistra", FieldKind::Check}},
    bound<&DeskSettings::keepPlace>({"ckPosizione", u"&Ricorda posizione e misura della finestra", FieldKind::Check})};

std::span<const platform::BoundField<DeskSettings>> fields() {
    return FIELDS;
}

} // namespace

SettingsWindow::SettingsWindow(host::Items& items, const Desk& desk, QWidget* parent)
    : RecordForm(QStringLiteral("frmImpostazioni"), parent)
    , items_(items)
    , menuPaneBefore_(desk.menuPane)
    , settings_(DeskSettings::load(items)) {
    setWindowTitle(QStringLiteral("Impostazioni"));
    setWindowIcon(deskIcon("impostazioni"));
    setFailure(QStringLiteral("Le impostazioni non sono state salvate."));
    build(platform::fieldsOf(fields()));
    setValue("laUtente", QStringLiteral("Valgono per ") + desk.userName + QLatin1Char('.'));
    addChoice("cbScheda", QStringLiteral("(la prima)"), QString());
    for (const QString& tab : desk.tabs)
        addChoice("cbScheda", tab, tab);
    // A tab whose module is not there today is not forgotten.
    const bool known = settings_.startTab.isEmpty() || desk.tabs.contains(settings_.startTab);
    if (!known) addChoice("cbScheda", settings_.startTab, settings_.startTab);
    addChoice("cbCarattere", QStringLiteral("Normale"), DeskSettings::normalFont);
    addChoice("cbCarattere", QStringLiteral("Grande"), 11);
    addChoice("cbCarattere", QStringLiteral("Molto grande"), DeskSettings::largestFont);
    platform::show(*this, fields(), settings_);
    setValue("ckMenu", menuPaneBefore_);
    start("cbScheda", QSize(440, 0));
}

QString SettingsWindow::store(QString&) {
    DeskSettings wanted = platform::typed(*this, fields(), settings_);
    const bool menuPane = value("ckMenu").toBool();
    if (menuPane != menuPaneBefore_) wanted.menuPane = menuPane;
    wanted.save(items_);
    settings_ = wanted;
    return {};
}

} // namespace desk
