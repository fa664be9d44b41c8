#include "desk/scenario/ScenarioStage.h"

#include "desk/scenario/Gestures.h"
#include "desk/scenario/NearNames.h"
#include "desk/scenario/ScenarioFault.h"
#include "platform/ReportGrid.h"

#include <QApplication>
#include <QMdiSubWindow>
#include <QWidget>
#include <algorithm>

namespace desk {
namespace {

bool isWindowLike(const QWidget* widget) {
    return widget->isWindow() || qobject_cast<const QMdiSubWindow*>(widget->parentWidget()) ||
           widget->objectName().startsWith(QLatin1String("frm"));
}

QStringList controlNames(const QWidget* window) {
    QStringList names;
    for (const QWidget* control : window->findChildren<QWidget*>()) {
        const QString name = control->objectName();
        if (!name.isEmpty() && !name.startsWith(QLatin1String("qt_"))) names += name;
    }
    return names;
}

} // namespace

ScenarioStage::ScenarioStage(ScenarioDesk desk, const QString& outDir, ScenarioDialogs& dialogs)
    : desk_(std::move(desk))
    , dialogs_(dialogs)
    , out_(outDir.isEmpty() ? QDir::currentPath() : outDir) {}

QString ScenarioStage::path(const QString& relative) const {
    return relative.isEmpty() ? QString() : out_.absoluteFilePath(relative);
}

QWidget* ScenarioStage::windowOnScreen(const QString& name) const {
    QWidget* modal = QApplication::activeModalWidget();
    if (modal && modal->objectName() == name) return modal;
    QWidget* found = nullptr;
    for (QWidget* widget : QApplication::allWidgets()) {
        if (widget->objectName() != name || !widget->isVisible() || !isWindowLike(widget)) continue;
        if (!found || widget->isWindow()) found = widget;
    }
    return found;
}

QStringList ScenarioStage::windowsOnScreen() {
    QStringList names;
    for (const QWidget* widget : QApplication::allWidgets()) {
        const QString name = widget->objectName();
        if (widget->isVisible() && isWindowLike(widget) && !name.isEmpty() && !names.contains(name)) names += name;
    }
    names.sort();
    return names;
}

void ScenarioStage::speakTo(QWidget* window) {
    spokenTo_.removeIf([&](const QPointer<QWidget>& former) { return !former || former == window; });
    spokenTo_ += window;
    modalWhenSpoken_ = QApplication::activeModalWidget();
}

QWidget* ScenarioStage::window() const {
    QWidget* modal = QApplication::activeModalWidget();
    if (modal && modal != modalWhenSpoken_) return modal;
    for (auto spoken = spokenTo_.crbegin(); spoken != spokenTo_.crend(); ++spoken) {
        QWidget* latest = spoken->data();
        if (latest && latest->isVisible()) return latest;
    }
    if (QWidget* main = windowOnScreen(QStringLiteral("frmMain"))) return main;
    failUnlessItPasses(QStringLiteral("nessuna finestra è sullo schermo"));
}

QWidget* ScenarioStage::control(const QString& name) const {
    QWidget* where = window();
    if (where->objectName() == name) return where;
    const QList<QWidget*> named = where->findChildren<QWidget*>(name);
    const auto shown =
        std::find_if(named.cbegin(), named.cend(), [](const QWidget* found) { return found->isVisible(); });
    if (shown != named.cend()) return *shown;
    if (!named.isEmpty()) return named.first();
    failUnlessItPasses(
        QStringLiteral("il controllo «%1» non c'è in %2; nomi vicini: %3")
            .arg(name, where->objectName(), nearNames(name, controlNames(where)).join(QLatin1String(", "))));
}

QWidget* ScenarioStage::usableControl(const QString& name) const {
    QWidget* found = control(name);
    requireUsable(found, name);
    return found;
}

void ScenarioStage::requireUsable(QWidget* control, const QString& name) const {
    if (!control->isVisible()) failUnlessItPasses(QStringLiteral("il controllo «%1» non è visibile").arg(name));
    if (!control->isEnabled()) failUnlessItPasses(QStringLiteral("il controllo «%1» è disattivato").arg(name));
    const QWidget* modal = QApplication::activeModalWidget();
    if (modal && control->window() != modal) {
        failUnlessItPasses(QStringLiteral("il controllo «%1» non si raggiunge: davanti c'è la finestra «%2»")
                               .arg(name, modal->objectName()));
    }
    gestures::bringForward(control);
    gestures::scrollIntoView(control);
}

platform::ReportGrid* ScenarioStage::grid(const QString& name) const {
    auto* found = qobject_cast<platform::ReportGrid*>(control(name));
    if (!found) failNow(QStringLiteral("il controllo «%1» non è una griglia").arg(name));
    return found;
}

platform::ReportGrid* ScenarioStage::usableGrid(const QString& name) const {
    platform::ReportGrid* found = grid(name);
    requireUsable(found, name);
    return found;
}

} // namespace desk
