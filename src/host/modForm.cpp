#include "host/modForm.h"

#include "host/context.h"
#include "host/contract/Host.h"
#include "host/modCartelle.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "platform/FormRegistry.h"
#include "platform/Regional.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QHash>
#include <QKeyEvent>
#include <QLabel>
#include <QPalette>
#include <QScreen>
#include <QStyle>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace {

// States of a window as the geometry files hold them.
enum StatoFinestra { NORMALE = 0, RIDOTTA = 1, INGRANDITA = 2 };

constexpr int LATO_MINIMO = 80;
constexpr int VISIBILE_MINIMO = 48; // of the frame, so that there is something to take the window by

QString fileGeometria(const QWidget* form) {
    const QString cartella = CartellaUtente();
    if (cartella.isEmpty() || form->objectName().isEmpty()) return {};
    return cartella + QLatin1Char('/') + form->objectName() + QStringLiteral(".geometry");
}

std::optional<int> intero(const QHash<QString, QString>& valori, const QString& chiave) {
    const auto numero = platform::regional().toNumber(valori.value(chiave));
    if (!numero || std::abs(*numero) > std::numeric_limits<qint16>::max()) return {};
    return static_cast<int>(std::lround(*numero));
}

QHash<QString, QString> leggiValori(const QString& path) {
    QHash<QString, QString> valori;
    const QString testo = QString::fromUtf8(platform::files::read(path).value_or(QByteArray()));
    for (const QString& riga : testo.split(QLatin1Char('\n'))) {
        const QStringList parti = riga.trimmed().split(QLatin1Char('='));
        if (parti.size() == 2) valori.insert(parti[0], parti[1]);
    }
    return valori;
}

// The rectangle moved, and shrunk if it must, so that it lies on the screen that shows most of it; never smaller than
// the window needs, whatever the screen.
QRect suSchermo(QRect rettangolo, const QSize& minimo) {
    const QScreen* migliore = QGuiApplication::primaryScreen();
    if (!migliore) return rettangolo;
    int area = 0;
    for (const QScreen* schermo : QGuiApplication::screens()) {
        const QRect comune = schermo->availableGeometry().intersected(rettangolo);
        if (comune.width() * comune.height() <= area) continue;
        area = comune.width() * comune.height();
        migliore = schermo;
    }
    const QRect libero = migliore->availableGeometry();
    rettangolo.setSize(rettangolo.size().boundedTo(libero.size().expandedTo(minimo)));
    const QRect comune = libero.intersected(rettangolo);
    if (comune.width() >= VISIBILE_MINIMO && comune.height() >= VISIBILE_MINIMO && rettangolo.top() >= libero.top()) {
        return rettangolo;
    }
    // A window larger than the screen keeps its upper left corner on it, where its title is.
    const int ultimaColonna = qMax(libero.left(), libero.right() + 1 - rettangolo.width());
    const int ultimaRiga = qMax(libero.top(), libero.bottom() + 1 - rettangolo.height());
    rettangolo.moveLeft(qBound(libero.left(), rettangolo.left(), ultimaColonna));
    rettangolo.moveTop(qBound(libero.top(), rettangolo.top(), ultimaRiga));
    return rettangolo;
}

bool chiudeDaTastiera(QEvent* event) {
    return event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->matches(QKeySequence::Cancel);
}

// Refuses to close a window by its frame, by the keys of the window system or by Escape; closing by the window's own
// code passes.
class FermaChiusura : public QObject {
public:
    using QObject::QObject;
    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool daFuori = event->type() == QEvent::Close && event->spontaneous();
        if (!daFuori && !chiudeDaTastiera(event)) return QObject::eventFilter(watched, event);
        event->ignore();
        return true;
    }
};

// Keeps the geometry when its window leaves the screen by whatever way, but not when only the window system hides it.
class CustodeGeometria : public QObject {
public:
    using QObject::QObject;
    bool eventFilter(QObject* watched, QEvent* event) override {
        auto* form = qobject_cast<QWidget*>(watched);
        if (form && event->type() == QEvent::Hide && !event->spontaneous()) SalvaGeometria(form);
        return QObject::eventFilter(watched, event);
    }
};

int statoDi(const QWidget* form) {
    if (form->isMinimized()) return RIDOTTA;
    return form->isMaximized() ? INGRANDITA : NORMALE;
}

} // namespace

QString TitoloForm(const QString& testo) {
    return testo + QStringLiteral(". ") + QString::fromUtf16(TITOLO_CORVALA);
}

void InizializzaForm(QWidget* form) {
    platform::FormRegistry::add(form);
    if (oHost) oHost->Framework().InitForm(form);
    for (QLabel* etichetta : form->findChildren<QLabel*>()) {
        if (etichetta->objectName() != QLatin1String("laMyGroup") &&
            etichetta->objectName() != QLatin1String("laTitoloArea")) {
            continue;
        }
        QPalette tavolozza = etichetta->palette();
        tavolozza.setColor(etichetta->backgroundRole(), form->palette().color(form->backgroundRole()));
        etichetta->setPalette(tavolozza);
        etichetta->setAutoFillBackground(true);
    }
}

void DisabilitaChiudi(QWidget* form, bool flag) {
    const bool visibile = form->isVisible();
    form->setWindowFlag(Qt::WindowCloseButtonHint, !flag);
    if (visibile) form->show(); // a change of flags hides the window
    delete form->findChild<QObject*>(QStringLiteral("fermaChiusura"), Qt::FindDirectChildrenOnly);
    if (!flag) return;
    auto* guardia = new FermaChiusura(form);
    guardia->setObjectName(QStringLiteral("fermaChiusura"));
    form->installEventFilter(guardia);
}

void resizeToScreen(QWidget* form, const QSize& size) {
    const int title = form->style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, form);
    form->resize(size.width(), std::min(size.height(), form->screen()->availableGeometry().height() - title));
}

void SalvaGeometria(const QWidget* form) {
    const QString path = fileGeometria(form);
    if (path.isEmpty()) return;
    const int stato = statoDi(form);
    const QRect normale = stato == NORMALE ? QRect(form->pos(), form->size()) : form->normalGeometry();
    // "WindowsState" is not the name of the property; files of earlier versions hold it so, and it stays.
    const QString testo = QStringLiteral("WindowsState=%1\r\nWidth=%2\r\nHeight=%3\r\nLeft=%4\r\nTop=%5\r\n")
                              .arg(stato)
                              .arg(normale.width())
                              .arg(normale.height())
                              .arg(normale.left())
                              .arg(normale.top());
    platform::files::writeAtomically(path, testo.toUtf8());
}

void CaricaGeometria(QWidget* form) {
    const QString path = fileGeometria(form);
    if (path.isEmpty() || !platform::files::exists(path)) return;
    const QHash<QString, QString> valori = leggiValori(path);

    int stato = intero(valori, QStringLiteral("WindowsState")).value_or(statoDi(form));
    // A window without a button for it must not come up as an icon: nobody would find it, and a modal one bars all
    // others.
    if (stato == RIDOTTA && !(form->windowFlags() & Qt::WindowMinimizeButtonHint)) stato = NORMALE;
    if (stato != statoDi(form)) {
        if (stato == INGRANDITA) form->setWindowState(Qt::WindowMaximized);
        if (stato == RIDOTTA) form->setWindowState(Qt::WindowMinimized);
        if (stato == NORMALE) form->setWindowState(Qt::WindowNoState);
    }
    if (statoDi(form) != NORMALE) return;

    const auto larghezza = intero(valori, QStringLiteral("Width"));
    const auto altezza = intero(valori, QStringLiteral("Height"));
    QRect rettangolo(form->pos(), form->size());
    if (larghezza && *larghezza >= LATO_MINIMO) rettangolo.setWidth(*larghezza);
    if (altezza && *altezza >= LATO_MINIMO) rettangolo.setHeight(*altezza);
    rettangolo.moveLeft(intero(valori, QStringLiteral("Left")).value_or(rettangolo.left()));
    rettangolo.moveTop(intero(valori, QStringLiteral("Top")).value_or(rettangolo.top()));

    // A child of the host's main window has its place there, not on a screen.
    if (form->isWindow()) rettangolo = suSchermo(rettangolo, form->size());
    form->resize(rettangolo.size());
    form->move(rettangolo.topLeft());
}

void ConservaGeometria(QWidget* form) {
    CaricaGeometria(form);
    form->installEventFilter(new CustodeGeometria(form));
}

void MessaggioTask(const QString& testo, int icona, const QString& titolo, OpzioniTask* opzioni) {
    DomandaTask(testo, icona, titolo, {QStringLiteral("Chiudi")}, opzioni);
}

QString DomandaTask(const QString& testo, int icona, const QString& titolo, const QStringList& bottoni,
                    OpzioniTask* opzioni) {
    platform::TaskRequest richiesta;
    richiesta.windowTitle = QString::fromUtf16(TITOLO_CORVALA);
    richiesta.title = QStringLiteral("<TextBlock><Underline>") + titolo + QStringLiteral("</Underline></TextBlock>");
    richiesta.text = testo;
    richiesta.icon = icona;
    richiesta.buttons = bottoni;
    if (opzioni) {
        richiesta.footer = opzioni->piede;
        richiesta.url = opzioni->url;
        richiesta.checkCaption = opzioni->casella;
        richiesta.checked = opzioni->spuntata;
        richiesta.seconds = opzioni->secondi;
    }
    const platform::TaskAnswer risposta = platform::dialogs().task(richiesta);
    if (opzioni) opzioni->spuntata = risposta.checked;
    return risposta.button;
}
