// The controls of the row editor: what they are called and where they lie.
#include "platform/Clock.h"
#include "platform/FormLayout.h"
#include "treatments/StagePanel.h"
#include "treatments/frmEditRigoTrattamento.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

void frmEditRigoTrattamento::buildFields() {
    using namespace platform::form;
    operator_ = textBox(arrayName("tbDati", 3), this);
    assistant_ = textBox(arrayName("tbDati", 4), this);
    teeth_ = textBox(arrayName("tbDati", 5), this);
    operator_->setReadOnly(true); // chosen from the users, never typed
    assistant_->setReadOnly(true);
    cbFndOperatore_ = searchButton(QStringLiteral("cbFndOperatore"), QStringLiteral("Scegli l'operatore"));
    cbFndAssistente_ = searchButton(QStringLiteral("cbFndAssistente"), QStringLiteral("Scegli l'assistente"));
    cbFndDente_ = searchButton(QStringLiteral("cbFndDente"), QStringLiteral("Scegli i denti"));
    total_ = textBox(arrayName("tbTotali", 1), this);
    total_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    total_->setReadOnly(true);
    total_->setFocusPolicy(Qt::NoFocus);
    for (QLineEdit* amount : {price(), total_})
        amount->setFixedWidth(110);
    cbRaggrMerc_ = named(new QComboBox(this), QStringLiteral("cbRaggrMerc"));
    const std::array<QString, 2> work{QStringLiteral("Lavori Iniziati"), QStringLiteral("Lavori Terminati")};
    for (std::size_t i = 0; i < cbDate_.size(); ++i) {
        const int index = static_cast<int>(i);
        cbDate_[i] = named(new QCheckBox(work[i], this), arrayName("cbDate", index));
        dtpData_[i] = dateBox(arrayName("dtpData", index), this);
        dtpData_[i]->setDate(platform::today());
    }
    cbFuoriPreventivo_ =
        named(new QCheckBox(QStringLiteral("Fuori PREVENTIVO"), this), QStringLiteral("cbFuoriPreventivo"));
    for (std::size_t i = 0; i < pbStatus_.size(); ++i)
        pbStatus_[i] = new StagePanel(static_cast<int>(i), this);
    tbNote_ = named(new QPlainTextEdit(this), arrayName("tbDati", 6));
    tbNote_->setTabChangesFocus(true);
    for (QLineEdit* field : {operator_, assistant_, teeth_})
        addField(field);
    tbNote_->viewport()->installEventFilter(this);
}

void frmEditRigoTrattamento::layOut() {
    using platform::form::labelledRow;
    auto* prices = new QWidget(this);
    auto* priceRow = new QHBoxLayout(prices);
    priceRow->setContentsMargins(0, 0, 0, 0);
    priceRow->addWidget(price());
    priceRow->addSpacing(16);
    auto* total = new QLabel(QStringLiteral("Totale:"), prices);
    total->setBuddy(total_);
    priceRow->addWidget(total);
    priceRow->addWidget(total_);
    priceRow->addStretch(1);
    prices->setFocusProxy(price());

    auto* grid = new QGridLayout;
    labelledRow(grid, 0, 0, QStringLiteral("Servizio:"), withSearch(code(), codeSearch()));
    labelledRow(grid, 1, 0, QStringLiteral("Descrizione:"), description());
    labelledRow(grid, 2, 0, QStringLiteral("Denti:"), withSearch(teeth_, cbFndDente_));
    labelledRow(grid, 3, 0, QStringLiteral("Raggruppamento:"), cbRaggrMerc_);
    labelledRow(grid, 4, 0, QStringLiteral("Operatore:"), withSearch(operator_, cbFndOperatore_));
    labelledRow(grid, 5, 0, QStringLiteral("Assistente:"), withSearch(assistant_, cbFndAssistente_));
    labelledRow(grid, 6, 0, QStringLiteral("Prezzo unitario:"), prices);
    grid->setColumnStretch(1, 1);

    QGroupBox* note = platform::form::titledArea(QStringLiteral("Note"), this);
    auto* noteColumn = new QVBoxLayout(note);
    noteColumn->addWidget(tbNote_);
    tbNote_->setMinimumHeight(70);

    auto* column = new QVBoxLayout(this);
    column->addLayout(titleRow());
    column->addLayout(grid);
    column->addWidget(workArea());
    column->addWidget(stagesArea());
    column->addWidget(note, 1);
    column->addLayout(footer());
    resize(640, 640);
    orderFields();
}

void frmEditRigoTrattamento::orderFields() {
    const QList<QWidget*> order{code(),      codeSearch(),     description(), teeth_,
                                cbFndDente_, cbRaggrMerc_,     operator_,     cbFndOperatore_,
                                assistant_,  cbFndAssistente_, price(),       cbDate_[0],
                                dtpData_[0], cbDate_[1],       dtpData_[1],   cbFuoriPreventivo_};
    for (qsizetype i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
    QWidget* previous = cbFuoriPreventivo_;
    for (StagePanel* stage : pbStatus_) {
        for (QWidget* field : stage->fields()) {
            setTabOrder(previous, field);
            previous = field;
        }
    }
    setTabOrder(previous, tbNote_);
    endOrder(tbNote_);
}

QGroupBox* frmEditRigoTrattamento::workArea() {
    QGroupBox* area = platform::form::titledArea(QStringLiteral("Lavori"), this);
    auto* row = new QHBoxLayout(area);
    for (std::size_t i = 0; i < cbDate_.size(); ++i) {
        row->addWidget(cbDate_[i]);
        row->addWidget(dtpData_[i]);
    }
    row->addStretch(1);
    row->addWidget(cbFuoriPreventivo_);
    area->setMinimumHeight(area->sizeHint().height()); // the dates come and go
    return area;
}

QGroupBox* frmEditRigoTrattamento::stagesArea() {
    stagesArea_ = platform::form::titledArea(QStringLiteral("Status intermedi"), this);
    auto* column = new QVBoxLayout(stagesArea_);
    for (StagePanel* stage : pbStatus_)
        column->addWidget(stage);
    stagesArea_->hide();
    return stagesArea_;
}
