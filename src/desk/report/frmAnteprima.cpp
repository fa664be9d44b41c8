#include "desk/report/frmAnteprima.h"

#include "desk/report/ReportPrinting.h"
#include "platform/FormLayout.h"
#include "platform/FormRegistry.h"

#include <QComboBox>
#include <QFrame>
#include <QGraphicsView>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <algorithm>

/// Outside every namespace, as Qt wants it for pictures in a static library.
static void embedIcons() {
    Q_INIT_RESOURCE(desk_report);
}

namespace desk {

using platform::form::named;

namespace {

constexpr int ZOOM_STEP = 25;
constexpr int WHEEL_STEP = 10;
constexpr int WHEEL_NOTCH = 120;
constexpr int LEAST_ZOOM = 50; // Per cent of the size on paper.
constexpr int MOST_ZOOM = 300;
const int ZOOMS[] = {50, 75, 100, 125, 150, 200, 300};

/// The first entries of the list of zooms; percentages follow.
enum Fit { PAGE_WIDTH, WHOLE_PAGE, FACING_PAGES, ALL_PAGES };

QFrame* divider(QWidget* parent) {
    auto* line = new QFrame(parent);
    line->setFrameShape(QFrame::VLine);
    line->setForegroundRole(QPalette::Mid);
    return line;
}

QIcon icon(const char* name) {
    return QIcon(QStringLiteral(":/desk/report/icons/%1.svg").arg(QLatin1String(name)));
}

QString stateOf(const ReportDocument& document) {
    QStringList lines;
    if (!document.missing.isEmpty())
        lines.append(QStringLiteral("Mancano le variabili: ") + document.missing.join(QLatin1String(", ")) +
                     QLatin1Char('.'));
    lines.append(document.notes);
    return lines.join(QLatin1Char(' '));
}

} // namespace

frmAnteprima::frmAnteprima(ReportDocument document, QWidget* parent)
    : QDialog(parent)
    , document_(std::move(document))
    , printer_(std::make_unique<QPrinter>(QPrinter::HighResolution)) {
    embedIcons();
    setObjectName(QStringLiteral("frmAnteprima"));
    setWindowTitle(QStringLiteral("Anteprima di stampa: ") + document_.title);
    setWindowIcon(icon("stampa"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    buildView();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(buildBar());
    layout->addWidget(view_, 1);
    buildState();
    layout->addWidget(laStato_);
    const QSize screen = QGuiApplication::primaryScreen()->availableGeometry().size();
    resize(QSize(980, 900).boundedTo(screen * 0.92));
    showState();
    view_->setFocus();
    platform::FormRegistry::add(this);
}

frmAnteprima::~frmAnteprima() {
    delete view_; // before the printer that it borrows
}

void frmAnteprima::buildView() {
    printer_->setPageLayout(document_.page);
    view_ = named(new QPrintPreviewWidget(printer_.get(), this), QStringLiteral("pbPagina"));
    pages_ = view_->findChild<QGraphicsView*>();
    pages_->setAccessibleName(QStringLiteral("Pagine del documento"));
    pages_->setFrameShape(QFrame::NoFrame);
    view_->setFocusProxy(pages_);
    pages_->installEventFilter(this);
    pages_->viewport()->installEventFilter(this);
    connect(view_, &QPrintPreviewWidget::paintRequested, this,
            [this](QPrinter* printer) { document_.print(*printer, document_.allPages()); });
    connect(view_, &QPrintPreviewWidget::previewChanged, this, &frmAnteprima::showState);
    view_->fitToWidth();
}

QHBoxLayout* frmAnteprima::buildBar() {
    auto* bar = new QHBoxLayout;
    bar->setContentsMargins(10, 8, 10, 8);
    bar->setSpacing(6);
    QPushButton* print = platform::form::button(QStringLiteral("cbStampa"), QStringLiteral("&Stampa\u2026"), this);
    print->setIcon(icon("stampa"));
    print->setDefault(true);
    QPushButton* save = platform::form::button(QStringLiteral("cbSalva"), QStringLiteral("Salva &PDF\u2026"), this);
    save->setIcon(icon("pdf"));
    save->setAutoDefault(false);
    connect(print, &QPushButton::clicked, this, &frmAnteprima::print);
    connect(save, &QPushButton::clicked, this, &frmAnteprima::save);
    auto* printKey = new QShortcut(QKeySequence::Print, this);
    connect(printKey, &QShortcut::activated, this, &frmAnteprima::print);
    auto* saveKey = new QShortcut(QKeySequence::Save, this);
    connect(saveKey, &QShortcut::activated, this, &frmAnteprima::save);
    bar->addWidget(print);
    bar->addWidget(save);
    bar->addWidget(divider(this));
    buildPages(*bar);
    bar->addWidget(divider(this));
    buildZoom(*bar);
    bar->addStretch(1);
    QPushButton* close = platform::form::button(QStringLiteral("cbChiudi"), QStringLiteral("&Chiudi"), this);
    close->setAutoDefault(false);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    bar->addWidget(close);
    return bar;
}

void frmAnteprima::buildPages(QHBoxLayout& bar) {
    cbPrima_ = tool("cbPrima", "prima", QStringLiteral("Prima pagina"));
    cbPrecedente_ = tool("cbPrecedente", "precedente", QStringLiteral("Pagina precedente"));
    tbPagina_ = platform::form::textBox(QStringLiteral("tbPagina"), this);
    tbPagina_->setAccessibleName(QStringLiteral("Pagina"));
    tbPagina_->setAlignment(Qt::AlignRight);
    tbPagina_->setFixedWidth(fontMetrics().horizontalAdvance(QStringLiteral("00000")) + 14);
    laPagine_ = named(new QLabel(QStringLiteral("di %1").arg(document_.pageCount()), this), QStringLiteral("laPagine"));
    cbSuccessiva_ = tool("cbSuccessiva", "successiva", QStringLiteral("Pagina successiva"));
    cbUltima_ = tool("cbUltima", "ultima", QStringLiteral("Ultima pagina"));
    connect(cbPrima_, &QToolButton::clicked, this, [this] { goTo(1); });
    connect(cbPrecedente_, &QToolButton::clicked, this, [this] { goTo(view_->currentPage() - 1); });
    connect(cbSuccessiva_, &QToolButton::clicked, this, [this] { goTo(view_->currentPage() + 1); });
    connect(cbUltima_, &QToolButton::clicked, this, [this] { goTo(document_.pageCount()); });
    connect(tbPagina_, &QLineEdit::editingFinished, this, [this] {
        bool isNumber = false;
        const int number = tbPagina_->text().toInt(&isNumber);
        tbPagina_->setModified(false); // what was typed is done with: the page that is shown counts
        goTo(isNumber ? number : view_->currentPage());
    });
    for (QWidget* widget :
         std::initializer_list<QWidget*>{cbPrima_, cbPrecedente_, tbPagina_, laPagine_, cbSuccessiva_, cbUltima_})
        bar.addWidget(widget);
}

void frmAnteprima::buildZoom(QHBoxLayout& bar) {
    cbRiduci_ = tool("cbRiduci", "riduci", QStringLiteral("Riduci"));
    cbZoom_ = named(new QComboBox(this), QStringLiteral("cbZoom"));
    cbZoom_->setAccessibleName(QStringLiteral("Ingrandimento"));
    cbZoom_->setEditable(true);
    cbZoom_->setInsertPolicy(QComboBox::NoInsert);
    cbZoom_->setCompleter(nullptr);
    cbZoom_->addItem(QStringLiteral("Larghezza pagina"));
    cbZoom_->addItem(QStringLiteral("Pagina intera"));
    cbZoom_->addItem(QStringLiteral("Pagine affiancate"));
    cbZoom_->addItem(QStringLiteral("Tutte le pagine"));
    for (const int zoom : ZOOMS)
        cbZoom_->addItem(QStringLiteral("%1%").arg(zoom));
    cbZoom_->setMinimumContentsLength(15);
    cbIngrandisci_ = tool("cbIngrandisci", "ingrandisci", QStringLiteral("Ingrandisci"));
    cbRiduci_->setShortcut(QKeySequence(QStringLiteral("Ctrl+-")));
    cbIngrandisci_->setShortcut(QKeySequence(QStringLiteral("Ctrl++")));
    connect(cbRiduci_, &QToolButton::clicked, this, [this] { setZoom(zoom() - ZOOM_STEP); });
    connect(cbIngrandisci_, &QToolButton::clicked, this, [this] { setZoom(zoom() + ZOOM_STEP); });
    connect(cbZoom_, &QComboBox::activated, this, &frmAnteprima::takeZoom);
    connect(cbZoom_->lineEdit(), &QLineEdit::editingFinished, this, &frmAnteprima::takeZoom);
    bar.addWidget(cbRiduci_);
    bar.addWidget(cbZoom_);
    bar.addWidget(cbIngrandisci_);
}

void frmAnteprima::buildState() {
    const QString state = stateOf(document_);
    laStato_ = named(new QLabel(state, this), QStringLiteral("laStato"));
    laStato_->setTextFormat(Qt::PlainText);
    laStato_->setWordWrap(true);
    laStato_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    laStato_->setContentsMargins(12, 6, 12, 6);
    laStato_->setStyleSheet(QStringLiteral("background: #fff4d6; color: #5f4300;"));
    laStato_->setVisible(!state.isEmpty());
}

QToolButton* frmAnteprima::tool(const char* name, const char* iconName, const QString& tip) {
    auto* button = named(new QToolButton(this), QLatin1String(name));
    button->setIcon(icon(iconName));
    button->setIconSize(QSize(18, 18));
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

void frmAnteprima::goTo(int number) {
    view_->setCurrentPage(std::clamp(number, 1, document_.pageCount()));
    showState();
}

int frmAnteprima::zoom() const {
    return qRound(view_->zoomFactor() * 100);
}

void frmAnteprima::setZoom(int percent) {
    if (view_->viewMode() != QPrintPreviewWidget::SinglePageView) view_->setSinglePageViewMode();
    view_->setZoomFactor(std::clamp(percent, LEAST_ZOOM, MOST_ZOOM) / 100.0);
    showState();
}

void frmAnteprima::setFit(int fit) {
    const int page = view_->currentPage();
    switch (fit) {
    case FACING_PAGES:
        view_->setFacingPagesViewMode();
        break;
    case ALL_PAGES:
        view_->setAllPagesViewMode();
        break;
    default:
        view_->setSinglePageViewMode();
        fit == PAGE_WIDTH ? view_->fitToWidth() : view_->fitInView();
    }
    goTo(page);
}

void frmAnteprima::showState() {
    const int number = view_->currentPage();
    if (!tbPagina_->hasFocus() || !tbPagina_->isModified()) tbPagina_->setText(QString::number(number));
    cbPrima_->setEnabled(number > 1);
    cbPrecedente_->setEnabled(number > 1);
    cbSuccessiva_->setEnabled(number < document_.pageCount());
    cbUltima_->setEnabled(number < document_.pageCount());
    // A fitted page leaves no room for the vertical bar, which then asks for a horizontal one.
    const bool fitted = view_->zoomMode() == QPrintPreviewWidget::FitToWidth;
    pages_->setHorizontalScrollBarPolicy(fitted ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
    if (view_->viewMode() == QPrintPreviewWidget::FacingPagesView)
        cbZoom_->setCurrentIndex(FACING_PAGES);
    else if (view_->viewMode() == QPrintPreviewWidget::AllPagesView)
        cbZoom_->setCurrentIndex(ALL_PAGES);
    else if (view_->zoomMode() == QPrintPreviewWidget::CustomZoom)
        cbZoom_->setEditText(QStringLiteral("%1%").arg(zoom()));
    else
        cbZoom_->setCurrentIndex(view_->zoomMode() == QPrintPreviewWidget::FitToWidth ? PAGE_WIDTH : WHOLE_PAGE);
    cbRiduci_->setEnabled(zoom() > LEAST_ZOOM);
    cbIngrandisci_->setEnabled(zoom() < MOST_ZOOM);
}

void frmAnteprima::takeZoom() {
    QString text = cbZoom_->currentText();
    const int entry = cbZoom_->findText(text);
    if (entry >= PAGE_WIDTH && entry <= ALL_PAGES) return setFit(entry);
    bool isNumber = false;
    const int percent = text.remove(QLatin1Char('%')).trimmed().toInt(&isNumber);
    if (isNumber && percent != zoom())
        setZoom(percent);
    else
        showState();
}

void frmAnteprima::print() {
    printReport(document_, false);
}

void frmAnteprima::save() {
    saveReport(document_);
}

bool frmAnteprima::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Wheel && watched == pages_->viewport()) {
        const auto* wheel = static_cast<QWheelEvent*>(event);
        if (!(wheel->modifiers() & Qt::ControlModifier)) return false;
        // Touch pads tell of small parts of a notch.
        wheel_ += wheel->angleDelta().y();
        const int notches = wheel_ / WHEEL_NOTCH;
        wheel_ -= notches * WHEEL_NOTCH;
        if (notches != 0) setZoom(zoom() + notches * WHEEL_STEP);
        return true;
    }
    if (event->type() == QEvent::KeyPress && watched == pages_) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key != Qt::Key_Home && key != Qt::Key_End) return false;
        goTo(key == Qt::Key_Home ? 1 : document_.pageCount());
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

void frmAnteprima::keyPressEvent(QKeyEvent* event) {
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    // In a field Return means "take this", not the default button.
    if (isReturn && (tbPagina_->hasFocus() || cbZoom_->lineEdit()->hasFocus())) return event->accept();
    QDialog::keyPressEvent(event);
}

} // namespace desk
