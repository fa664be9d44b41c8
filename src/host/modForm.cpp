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
enum WindowState { NORMAL = 0, MINIMIZED = 1, MAXIMIZED = 2 };

constexpr int LEAST_SIDE = 80;
constexpr int LEAST_VISIBLE = 48; // of the frame, so that there is something to take the window by

QString geometryFile(const QWidget* form) {
    const QString folder = userFolder();
    if (folder.isEmpty() || form->objectName().isEmpty()) return {};
    return folder + QLatin1Char('/') + form->objectName() + QStringLiteral(".geometry");
}

std::optional<int> wholeNumber(const QHash<QString, QString>& values, const QString& key) {
    const auto number = platform::regional().toNumber(values.value(key));
    if (!number || std::abs(*number) > std::numeric_limits<qint16>::max()) return {};
    return static_cast<int>(std::lround(*number));
}

QHash<QString, QString> readValues(const QString& path) {
    QHash<QString, QString> values;
    const QString text = QString::fromUtf8(platform::files::read(path).value_or(QByteArray()));
    for (const QString& line : text.split(QLatin1Char('\n'))) {
        const QStringList parts = line.trimmed().split(QLatin1Char('='));
        if (parts.size() == 2) values.insert(parts[0], parts[1]);
    }
    return values;
}

// The rectangle moved, and shrunk if it must, so that it lies on the screen that shows most of it; never smaller than
// the window needs, whatever the screen.
QRect onScreen(QRect rectangle, const QSize& minimum) {
    const QScreen* best = QGuiApplication::primaryScreen();
    if (!best) return rectangle;
    int area = 0;
    for (const QScreen* screen : QGuiApplication::screens()) {
        const QRect common = screen->availableGeometry().intersected(rectangle);
        if (common.width() * common.height() <= area) continue;
        area = common.width() * common.height();
        best = screen;
    }
    const QRect available = best->availableGeometry();
    rectangle.setSize(rectangle.size().boundedTo(available.size().expandedTo(minimum)));
    const QRect common = available.intersected(rectangle);
    if (common.width() >= LEAST_VISIBLE && common.height() >= LEAST_VISIBLE && rectangle.top() >= available.top()) {
        return rectangle;
    }
    // A window larger than the screen keeps its upper left corner on it, where its title is.
    const int lastColumn = qMax(available.left(), available.right() + 1 - rectangle.width());
    const int lastRow = qMax(available.top(), available.bottom() + 1 - rectangle.height());
    rectangle.moveLeft(qBound(available.left(), rectangle.left(), lastColumn));
    rectangle.moveTop(qBound(available.top(), rectangle.top(), lastRow));
    return rectangle;
}

bool closesByKey(QEvent* event) {
    return event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->matches(QKeySequence::Cancel);
}

// Refuses to close a window by its frame, by the keys of the window system or by Escape; closing by the window's own
// code passes.
class CloseBlocker : public QObject {
public:
    using QObject::QObject;
    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool fromOutside = event->type() == QEvent::Close && event->spontaneous();
        if (!fromOutside && !closesByKey(event)) return QObject::eventFilter(watched, event);
        event->ignore();
        return true;
    }
};

// Keeps the geometry when its window leaves the screen by whatever way, but not when only the window system hides it.
class GeometryKeeper : public QObject {
public:
    using QObject::QObject;
    bool eventFilter(QObject* watched, QEvent* event) override {
        auto* form = qobject_cast<QWidget*>(watched);
        if (form && event->type() == QEvent::Hide && !event->spontaneous()) SalvaGeometria(form);
        return QObject::eventFilter(watched, event);
    }
};

int stateOf(const QWidget* form) {
    if (form->isMinimized()) return MINIMIZED;
    return form->isMaximized() ? MAXIMIZED : NORMAL;
}

} // namespace

QString TitoloForm(const QString& text) {
    return text + QStringLiteral(". ") + QString::fromUtf16(CORVALA_TITLE);
}

void InizializzaForm(QWidget* form) {
    platform::FormRegistry::add(form);
    if (oHost) oHost->Framework().InitForm(form);
    for (QLabel* label : form->findChildren<QLabel*>()) {
        if (label->objectName() != QLatin1String("laMyGroup") && label->objectName() != QLatin1String("laTitoloArea")) {
            continue;
        }
        QPalette palette = label->palette();
        palette.setColor(label->backgroundRole(), form->palette().color(form->backgroundRole()));
        label->setPalette(palette);
        label->setAutoFillBackground(true);
    }
}

void DisabilitaChiudi(QWidget* form, bool flag) {
    const bool isVisible = form->isVisible();
    form->setWindowFlag(Qt::WindowCloseButtonHint, !flag);
    if (isVisible) form->show(); // a change of flags hides the window
    delete form->findChild<QObject*>(QStringLiteral("fermaChiusura"), Qt::FindDirectChildrenOnly);
    if (!flag) return;
    auto* guard = new CloseBlocker(form);
    guard->setObjectName(QStringLiteral("fermaChiusura"));
    form->installEventFilter(guard);
}

void resizeToScreen(QWidget* form, const QSize& size) {
    const int title = form->style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, form);
    form->resize(size.width(), std::min(size.height(), form->screen()->availableGeometry().height() - title));
}

void SalvaGeometria(const QWidget* form) {
    const QString path = geometryFile(form);
    if (path.isEmpty()) return;
    const int state = stateOf(form);
    const QRect normal = state == NORMAL ? QRect(form->pos(), form->size()) : form->normalGeometry();
    // "WindowsState" is not the name of the property; files of earlier versions hold it so, and it stays.
    const QString text = QStringLiteral("WindowsState=%1\r\nWidth=%2\r\nHeight=%3\r\nLeft=%4\r\nTop=%5\r\n")
                             .arg(state)
                             .arg(normal.width())
                             .arg(normal.height())
                             .arg(normal.left())
                             .arg(normal.top());
    platform::files::writeAtomically(path, text.toUtf8());
}

void CaricaGeometria(QWidget* form) {
    const QString path = geometryFile(form);
    if (path.isEmpty() || !platform::files::exists(path)) return;
    const QHash<QString, QString> values = readValues(path);

    int state = wholeNumber(values, QStringLiteral("WindowsState")).value_or(stateOf(form));
    // A window without a button for it must not come up as an icon: nobody would find it, and a modal one bars all
    // others.
    if (state == MINIMIZED && !(form->windowFlags() & Qt::WindowMinimizeButtonHint)) state = NORMAL;
    if (state != stateOf(form)) {
        if (state == MAXIMIZED) form->setWindowState(Qt::WindowMaximized);
        if (state == MINIMIZED) form->setWindowState(Qt::WindowMinimized);
        if (state == NORMAL) form->setWindowState(Qt::WindowNoState);
    }
    if (stateOf(form) != NORMAL) return;

    const auto width = wholeNumber(values, QStringLiteral("Width"));
    const auto height = wholeNumber(values, QStringLiteral("Height"));
    QRect rectangle(form->pos(), form->size());
    if (width && *width >= LEAST_SIDE) rectangle.setWidth(*width);
    if (height && *height >= LEAST_SIDE) rectangle.setHeight(*height);
    rectangle.moveLeft(wholeNumber(values, QStringLiteral("Left")).value_or(rectangle.left()));
    rectangle.moveTop(wholeNumber(values, QStringLiteral("Top")).value_or(rectangle.top()));

    // A child of the host's main window has its place there, not on a screen.
    if (form->isWindow()) rectangle = onScreen(rectangle, form->size());
    form->resize(rectangle.size());
    form->move(rectangle.topLeft());
}

void keepGeometry(QWidget* form) {
    CaricaGeometria(form);
    form->installEventFilter(new GeometryKeeper(form));
}

void MessaggioTask(const QString& text, int icon, const QString& title, TaskOptions* options) {
    askTask(text, icon, title, {QStringLiteral("Chiudi")}, options);
}

QString askTask(const QString& text, int icon, const QString& title, const QStringList& buttons, TaskOptions* options) {
    platform::TaskRequest request;
    request.windowTitle = QString::fromUtf16(CORVALA_TITLE);
    request.title = QStringLiteral("<TextBlock><Underline>") + title + QStringLiteral("</Underline></TextBlock>");
    request.text = text;
    request.icon = icon;
    request.buttons = buttons;
    if (options) {
        request.footer = options->footer;
        request.url = options->url;
        request.checkCaption = options->checkCaption;
        request.checked = options->checked;
        request.seconds = options->seconds;
    }
    const platform::TaskAnswer answer = platform::dialogs().task(request);
    if (options) options->checked = answer.checked;
    return answer.button;
}
