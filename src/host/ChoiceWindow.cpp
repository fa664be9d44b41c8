#include "host/ChoiceWindow.h"

#include "host/modForm.h"
#include "platform/FormLayout.h"
#include "platform/ReportGrid.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>

namespace form = platform::form;

namespace {

constexpr int FILTER_WIDTH = 220;

} // namespace

ChoiceWindow::ChoiceWindow(const Texts& texts, const QList<platform::ReportColumn>& columns, QWidget* parent,
                           QWidget* filter)
    : QDialog(parent) {
    setObjectName(texts.name);
    setWindowTitle(TitoloForm(texts.title));
    resize(1000, 560);
    laOUTB_ = form::named(new QLabel(this), QStringLiteral("laOUTB"));
    laOUTB_->hide();
    auto* body = new QSplitter(Qt::Horizontal, this);
    if (filter) body->addWidget(filter); // before the list, so that Tab comes to it first
    buildGrid(columns);
    body->addWidget(rcLista_);
    body->setStretchFactor(body->count() - 1, 1);
    if (filter) body->setSizes({FILTER_WIDTH, width() - FILTER_WIDTH});

    QPushButton* cbPiglia = form::button(QStringLiteral("cbPiglia"), QStringLiteral("Seleziona!"), this);
    QPushButton* cbChiudi = form::button(QStringLiteral("cbChiudi"), QStringLiteral("Annulla"), this);
    cbPiglia->setDefault(true);
    connect(cbPiglia, &QPushButton::clicked, this, &ChoiceWindow::take);
    connect(cbChiudi, &QPushButton::clicked, this, &ChoiceWindow::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(form::heading(QStringLiteral("laTitoloForm"), texts.heading, this));
    layout->addWidget(body, 1);
    layout->addLayout(form::buttonRow({cbPiglia, cbChiudi}));
    rcLista_->setFocus();
    InizializzaForm(this);
}

void ChoiceWindow::buildGrid(const QList<platform::ReportColumn>& columns) {
    rcLista_ = form::named(new platform::ReportGrid(this), QStringLiteral("rcLista"));
    for (const platform::ReportColumn& column : columns)
        rcLista_->addColumn(column);
    rcLista_->setTexts(QStringLiteral("Non ci sono dati da visualizzare"), QString(), QStringLiteral("Ordina per "));
    rcLista_->setGroupBoxVisible(false);
    rcLista_->setColours(Qt::white, Qt::white, QColor(212, 208, 200));
    rcLista_->setReadOnly(true);
    rcLista_->setEditMode(false, false);
    connect(rcLista_, &platform::ReportGrid::rowDoubleClicked, this, &ChoiceWindow::take);
    connect(rcLista_, &platform::ReportGrid::keyPressed, this, [this](QKeyEvent* event) {
        if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) return;
        event->accept();
        take();
    });
}

void ChoiceWindow::setRows(const QList<Row>& rows) {
    rcLista_->beginUpdate();
    rcLista_->clear();
    for (const Row& row : rows) {
        platform::ReportRecord* record = rcLista_->addRecord();
        record->tag = row.tag;
        for (int i = 0; i < row.cells.size(); ++i)
            record->cell(i).value = row.cells[i];
    }
    rcLista_->endUpdate();
    rcLista_->populate();
    if (rcLista_->rowCount() > 0) rcLista_->setFocusedRecord(rcLista_->rowRecord(0));
}

bool ChoiceWindow::confirmed() const {
    return laOUTB_->text() == QLatin1String("OK");
}

QString ChoiceWindow::tag() const {
    const platform::ReportRecord* record = rcLista_->focusedRecord();
    return record ? record->tag : QString();
}

QString ChoiceWindow::cell(int column) const {
    const platform::ReportRecord* record = rcLista_->focusedRecord();
    return record ? record->cell(column).value : QString();
}

void ChoiceWindow::take() {
    if (rcLista_->focusedRecord()) finish(QStringLiteral("OK"));
}

void ChoiceWindow::finish(const QString& result) {
    laOUTB_->setText(result);
    done(confirmed() ? Accepted : Rejected);
}

void ChoiceWindow::reject() {
    finish(QStringLiteral("CANCEL"));
}
