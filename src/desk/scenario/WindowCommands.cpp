#include "desk/scenario/ControlText.h"
#include "desk/scenario/Gestures.h"
#include "desk/scenario/ScenarioCommand.h"
#include "desk/scenario/ScenarioDialogs.h"
#include "desk/scenario/ScenarioDump.h"
#include "desk/scenario/ScenarioFault.h"
#include "desk/scenario/ScenarioStage.h"
#include "platform/Clock.h"
#include "platform/FormRegistry.h"
#include "platform/Regional.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPixmap>
#include <QTimer>
#include <QTimerEvent>
#include <QWidget>
#include <chrono>
#include <cstdio>
#include <optional>

namespace desk {
namespace {

constexpr int OTHERS_PATIENCE = 20; // another desk may be starting yet

void openPatient(ScenarioStage& stage, const QStringList& arguments) {
    if (!stage.desk().openPatient(arguments[0]))
        failNow(QStringLiteral("il paziente «%1» non si apre").arg(arguments[0]));
}

void pressCommand(ScenarioStage& stage, const QStringList& arguments) {
    QString error;
    if (!stage.desk().pressCommand(arguments[0], &error))
        failUnlessItPasses(QStringLiteral("il comando «%1» non si può premere: %2").arg(arguments[0], error));
}

void waitForWindow(ScenarioStage& stage, const QStringList& arguments) {
    QWidget* window = stage.windowOnScreen(arguments[0]);
    if (!window) {
        failUnlessItPasses(QStringLiteral("la finestra «%1» non è sullo schermo; ci sono: %2")
                               .arg(arguments[0], ScenarioStage::windowsOnScreen().join(QLatin1String(", "))));
    }
    stage.speakTo(window);
    gestures::bringForward(window);
}

void expectClosed(ScenarioStage& stage, const QStringList& arguments) {
    if (stage.windowOnScreen(arguments[0]))
        failUnlessItPasses(QStringLiteral("la finestra «%1» è ancora sullo schermo").arg(arguments[0]));
}

void queueAnswer(ScenarioStage& stage, const QStringList& arguments) {
    const bool hasCheck = arguments.size() > 1;
    const auto check = hasCheck ? std::optional<bool>(arguments[1] == QLatin1String("on")) : std::nullopt;
    stage.dialogs().queueAnswer(arguments[0], check);
}

void queuePopup(ScenarioStage& stage, const QStringList& arguments) {
    stage.dialogs().queuePopup(arguments[0]);
}

void queueFile(ScenarioStage& stage, const QStringList& arguments) {
    stage.dialogs().queueFile(stage.path(arguments[0]));
}

void setClock(ScenarioStage&, const QStringList& arguments) {
    platform::setClock(QDateTime::fromString(arguments[0], Qt::ISODate));
}

/// The refresh timer beats once a minute; a minute that passes is a beat. A timer that is off stays silent.
void letMinutesPass(ScenarioStage&, const QStringList& arguments) {
    const QObject* hidden = platform::FormRegistry::find(QStringLiteral("frmOggetti"));
    auto* timer = hidden ? hidden->findChild<QTimer*>(QStringLiteral("Timer1")) : nullptr;
    if (!timer) failUnlessItPasses(QStringLiteral("il timer di aggiornamento non c'è"));
    for (int minute = 0; minute < arguments[0].toInt() && timer->isActive(); ++minute) {
        QTimerEvent beat(timer->timerId());
        QCoreApplication::sendEvent(timer, &beat);
    }
}

void pauseFor(ScenarioStage&, const QStringList& arguments) {
    gestures::rest(std::chrono::milliseconds(arguments[0].toInt()));
}

void expectMessage(ScenarioStage& stage, const QStringList& arguments) {
    if (stage.dialogs().takeMessage(arguments[0])) return;
    if (!stage.dialogs().hasMessage())
        failUnlessItPasses(QStringLiteral("nessun messaggio: atteso «%1»").arg(arguments[0]));
    failNow(QStringLiteral("il messaggio è «%1», atteso «%2»").arg(stage.dialogs().oldestMessage(), arguments[0]));
}

QString reportText(const QVariant& value) {
    if (value.typeId() == QMetaType::QDate) return platform::regional().shortDate(value.toDate());
    return value.toString();
}

void expectVariable(ScenarioStage& stage, const QStringList& arguments) {
    const QMap<QString, QVariant> variables = stage.desk().lastReportVariables();
    const auto found = variables.constFind(arguments[0]);
    if (found == variables.cend()) {
        failUnlessItPasses(QStringLiteral("l'ultima stampa non ha la variabile «%1»; ha: %2")
                               .arg(arguments[0], QStringList(variables.keys()).join(QLatin1String(", "))));
    }
    const QString text = reportText(*found);
    if (withPlainLineEnds(text) != withPlainLineEnds(arguments[1]))
        failUnlessItPasses(
            QStringLiteral("la variabile «%1» è «%2», attesa «%3»").arg(arguments[0], text, arguments[1]));
}

void takePicture(ScenarioStage& stage, const QStringList& arguments) {
    QWidget* window = stage.window();
    gestures::bringForward(window);
    const QString path = stage.path(arguments[0] + QStringLiteral(".png"));
    QDir().mkpath(QFileInfo(path).path());
    if (!window->grab().save(path)) failNow(QStringLiteral("l'immagine %1 non si può scrivere").arg(path));
}

void printControls(ScenarioStage& stage, const QStringList&) {
    std::fputs(qUtf8Printable(describeWindow(*stage.window())), stdout);
    std::fflush(stdout);
}

/// Two desks that are played at the same time wait for each other through files.
void waitForFile(ScenarioStage& stage, const QStringList& arguments) {
    if (!QFileInfo::exists(stage.path(arguments[0])))
        failUnlessItPasses(QStringLiteral("il file «%1» non c'è").arg(arguments[0]));
}

void touchFile(ScenarioStage& stage, const QStringList& arguments) {
    QFile file(stage.path(arguments[0]));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append))
        failNow(QStringLiteral("il file «%1» non si può scrivere: %2").arg(arguments[0], file.errorString()));
}

} // namespace

QList<ScenarioCommand> windowCommands() {
    return {
        {QStringLiteral("patient"), QStringLiteral("CODE"), openPatient},
        {QStringLiteral("press"), QStringLiteral("KEY"), pressCommand},
        {QStringLiteral("window"), QStringLiteral("NAME"), waitForWindow},
        {QStringLiteral("answer"), QStringLiteral("ANSWER [on|off]"), queueAnswer},
        {QStringLiteral("popup"), QStringLiteral("CAPTION"), queuePopup},
        {QStringLiteral("file"), QStringLiteral("PATH"), queueFile},
        {QStringLiteral("clock"), QStringLiteral("yyyy-mm-ddThh:mm:ss"), setClock},
        {QStringLiteral("tick"), QStringLiteral("N"), letMinutesPass},
        {QStringLiteral("pause"), QStringLiteral("N"), pauseFor},
        {QStringLiteral("expect-message"), QStringLiteral("TEXT"), expectMessage},
        {QStringLiteral("expect-variable"), QStringLiteral("NAME TEXT"), expectVariable},
        {QStringLiteral("expect-closed"), QStringLiteral("NAME"), expectClosed},
        {QStringLiteral("wait-file"), QStringLiteral("PATH"), waitForFile, OTHERS_PATIENCE},
        {QStringLiteral("touch"), QStringLiteral("PATH"), touchFile},
        {QStringLiteral("shot"), QStringLiteral("NAME"), takePicture},
        {QStringLiteral("dump"), QString(), printControls},
    };
}

} // namespace desk
