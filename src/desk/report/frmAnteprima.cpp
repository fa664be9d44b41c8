#include "desk/report/frmAnteprima.h"

#include "desk/report/ReportPageView.h"
#include "desk/report/ReportPrinting.h"
#include "platform/FormLayout.h"
#include "platform/FormRegistry.h"

#include <QComboBox>
#include <QFrame>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QToolButton>
#include <QVBoxLayout>

/// Outside every namespace, as Qt wants it for pictures in a static library.
static void embedIcons() {
    Q_INIT_RESOURCE(desk_report);
}

namespace desk {

using platform::form::named;

namespace {

constexpr int ZOOM_STEP = 25;
const int ZOOMS[] = {50, 75, 100, 125, 150, 200, 300};

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
    , document_(std::move(document)) {
    embedIcons();
    setObjectName(QStringLiteral("frmAnteprima"));
    setWindowTitle(QStringLiteral("Anteprima di stampa: ") + document_.title);
    setWindowIcon(icon("stampa"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    view_ = named(new ReportPageView(document_, this), QStringLiteral("pbPagina"));
    view_->setAccessibleName(QStringLiteral("Pagina del documento"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(buildBar());
    layout->addWidget(view_, 1);
    buildState();
    layout->addWidget(laStato_);
    connect(view_, &ReportPageView::pageShown, this, &frmAnteprima::showPage);
    connect(view_, &ReportPageView::zoomChanged, this, &frmAnteprima::showZoom);
    const QSize screen = QGuiApplication::primaryScreen()->availableGeometry().size();
    resize(QSize(980, 900).boundedTo(screen * 0.92));
    showPage(0);
    showZoom();
    view_->setFocus();
    platform::FormRegistry::add(this);
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
    connect(cbPrima_, &QToolButton::clicked, this, [this] { view_->showPage(0); });
    connect(cbPrecedente_, &QToolButton::clicked, this, [this] { view_->showPage(view_->page() - 1); });
    connect(cbSuccessiva_, &QToolButton::clicked, this, [this] { view_->showPage(view_->page() + 1); });
    connect(cbUltima_, &QToolButton::clicked, this, [this] { view_->showPage(document_.pageCount() - 1); });
    connect(tbPagina_, &QLineEdit::editingFinished, this, [this] {
        bool isNumber = false;
        const int number = tbPagina_->text().toInt(&isNumber);
        view_->showPage(isNumber ? number - 1 : view_->page());
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
    for (const int zoom : ZOOMS)
        cbZoom_->addItem(QStringLiteral("%1%").arg(zoom));
    cbZoom_->setMinimumContentsLength(15);
    cbIngrandisci_ = tool("cbIngrandisci", "ingrandisci", QStringLiteral("Ingrandisci"));
    cbRiduci_->setShortcut(QKeySequence(QStringLiteral("Ctrl+-")));
    cbIngrandisci_->setShortcut(QKeySequence(QStringLiteral("Ctrl++")));
    connect(cbRiduci_, &QToolButton::clicked, this, [this] { view_->setZoom(view_->zoom() - ZOOM_STEP); });
    connect(cbIngrandisci_, &QToolButton::clicked, this, [this] { view_->setZoom(view_->zoom() + ZOOM_STEP); });
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

void frmAnteprima::showPage(int number) {
    tbPagina_->setText(QString::number(number + 1));
    const bool isFirst = number == 0;
    const bool isLast = number + 1 >= document_.pageCount();
    cbPrima_->setEnabled(!isFirst);
    cbPrecedente_->setEnabled(!isFirst);
    cbSuccessiva_->setEnabled(!isLast);
    cbUltima_->setEnabled(!isLast);
}

void frmAnteprima::showZoom() {
    switch (view_->fit()) {
    case ReportPageView::Fit::Width:
        cbZoom_->setCurrentIndex(0);
        break;
    case ReportPageView::Fit::Page:
        cbZoom_->setCurrentIndex(1);
        break;
    case ReportPageView::Fit::None:
        cbZoom_->setEditText(QStringLiteral("%1%").arg(view_->zoom()));
    }
    cbRiduci_->setEnabled(view_->zoom() > ReportPageView::LEAST_ZOOM);
    cbIngrandisci_->setEnabled(view_->zoom() < ReportPageView::MOST_ZOOM);
}

void frmAnteprima::takeZoom() {
    QString text = cbZoom_->currentText();
    if (text == cbZoom_->itemText(0)) return view_->setFit(ReportPageView::Fit::Width);
    if (text == cbZoom_->itemText(1)) return view_->setFit(ReportPageView::Fit::Page);
    bool isNumber = false;
    const int zoom = text.remove(QLatin1Char('%')).trimmed().toInt(&isNumber);
    if (isNumber && zoom != view_->zoom())
        view_->setZoom(zoom);
    else
        showZoom();
}

void frmAnteprima::print() {
    printReport(document_, false);
}

void frmAnteprima::save() {
    saveReport(document_);
}

void frmAnteprima::keyPressEvent(QKeyEvent* event) {
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    // In a field Return means "take this", not the default button.
    if (isReturn && (tbPagina_->hasFocus() || cbZoom_->lineEdit()->hasFocus())) return event->accept();
    QDialog::keyPressEvent(event);
}

} // namespace desk
