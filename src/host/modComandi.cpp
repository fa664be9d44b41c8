#include "host/modComandi.h"

#include "host/context.h"
#include "host/contract/Host.h"
#include "host/modIcone.h"
#include "platform/Dialogs.h"
#include "platform/FormRegistry.h"

#include <QWidget>
#include <memory>

namespace {

/// An entry of the desk's tab or of the main menu, with the command behind it.
struct FixedEntry {
    qint32 CommandIds::*id;
    const char* key;
    bool needsPatient;
};

// The entry of the images tests for a patient, the ribbon's "CRVL0501" does not: the difference is meant.
constexpr FixedEntry FIXED_ENTRIES[] = {
    {&CommandIds::summary, "CRVL0701", true},        {&CommandIds::menuSummary, "CRVL0701", true},
    {&CommandIds::periodontal, "CRVL0702", true},    {&CommandIds::menuPeriodontal, "CRVL0702", true},
    {&CommandIds::menuEstimates, "CRVL0101", false}, {&CommandIds::menuInvoicing, "CRVL0201", false},
    {&CommandIds::menuImages, "CRVL0501", true},
};

} // namespace

void Commands::add(const QString& key, Action action, Conditions conditions) {
    commands_.insert(key, {std::move(action), std::move(conditions)});
}

bool Commands::fitsPatient(const QString& key) const {
    const Test test = commands_.value(key).conditions.patient;
    return !test || test();
}

bool Commands::fitsRecords(const QString& key) const {
    const Test test = commands_.value(key).conditions.records;
    return !test || test();
}

void Commands::EseguiComando(qint32 id) const {
    if (id == 0) return;
    const QString key = serviceKey_ ? serviceKey_(id) : QString();
    if (key.isEmpty() && runFixed(id)) return;
    run(key);
}

bool Commands::runFixed(qint32 id) const {
    for (const FixedEntry& entry : FIXED_ENTRIES) {
        if (commandIds.*entry.id != id) continue;
        if (entry.needsPatient && !currentPatient()) {
            platform::dialogs().message(QStringLiteral("Selezionare prima un paziente"), platform::MB_INFORMATION,
                                        QStringLiteral("Tessara 5000"));
            return true;
        }
        run(QLatin1String(entry.key));
        return true;
    }
    return false;
}

void Commands::run(const QString& key) const {
    const auto command = commands_.constFind(key);
    if (command != commands_.cend()) command->action();
}

void openWindow(const QString& text, const std::function<QWidget*()>& create) {
    if (!oHost) return;
    host::Framework& framework = oHost->Framework();
    const QString caption = QString::fromUtf16(CORVALA_TITLE) + text;
    if (framework.OpenChild(QStringLiteral("frmMDI"), caption)) return;

    std::unique_ptr<QWidget> window(create());
    if (!window) return;
    const QString name = window->objectName();
    window->setWindowIcon(moduleIcon()); // before the host adopts it: a tab of its own may copy the icon then
    auto* form = qobject_cast<QWidget*>(framework.CreateChildForm(window.get()));
    window.release(); // the host's from here on
    if (!form) return;
    form->setWindowTitle(caption);
    if (auto* found = qobject_cast<QWidget*>(platform::FormRegistry::find(name))) found->show();
}
