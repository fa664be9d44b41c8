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
    laProgressivo_ = heading(QStringLiteral("laProgressivo"), QString(), this);
    for (const int index : {SERVICE, DESCRIPTION, OPERATOR, ASSISTANT, TEETH}) {
        tbDati_[static_cast<std::size_t>(index)] = textBox(arrayName("tbDati", index), this);
    }
    tbDati_[OPERATOR]->setReadOnly(true); // chosen from the users, never typed
    tbDati_[ASSISTANT]->setReadOnly(true);
    const std::array<QString, 4> names{QStringLiteral("cbFndArt"), QStringLiteral("cbFndOperatore"),
                                       QStringLiteral("cbFndAssistente"), QStringLiteral("cbFndDente")};
    const std::array<QString, 4> purposes{QStringLiteral("Cerca il servizio"), QStringLiteral("Scegli l'operatore"),
                                          QStringLiteral("Scegli l'assistente"), QStringLiteral("Scegli i denti")};
    for (std::size_t i = 0; i < search_.size(); ++i) {
        search_[i] = button(names[i], QStringLiteral("..."), this);
        search_[i]->setAutoDefault(false);
        search_[i]->setFixedWidth(34);
        search_[i]->setToolTip(purposes[i]);
        search_[i]->setAccessibleName(purposes[i]);
    }
    for (std::size_t i = 0; i < tbTotali_.size(); ++i) {
        tbTotali_[i] = textBox(arrayName("tbTotali", static_cast<int>(i)), this);
        tbTotali_[i]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        tbTotali_[i]->setFixedWidth(110);
    }
    tbTotali_[1]->setReadOnly(true);
    tbTotali_[1]->setFocusPolicy(Qt::NoFocus);
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
    laOUTB_ = named(new QLabel(this), QStringLiteral("laOUTB"));
    laOUTB_->hide();
    cbAccetta_ = button(QStringLiteral("cbAccetta"), QStringLiteral("Accetta"), this);
    cbAnnulla_ = button(QStringLiteral("cbAnnulla"), QStringLiteral("Annulla"), this);
    cbAccetta_->setAutoDefault(false);
    cbAnnulla_->setAutoDefault(false);
    // Only now, when every field is there: the filter sees the set-up too.
    for (QLineEdit* field : tbDati_) {
        if (field) field->installEventFilter(this);
    }
    tbTotali_[0]->installEventFilter(this);
    tbNote_->viewport()->installEventFilter(this);
}

void frmEditRigoTrattamento::layOut() {
    using platform::form::labelledRow;
    const auto withSearch = [this](int field, Search search) {
        auto* box = new QWidget(this);
        auto* row = new QHBoxLayout(box);
        row->setContentsMargins(0, 0, 0, 0);
        row->addWidget(tbDati_[static_cast<std::size_t>(field)], 1);
        row->addWidget(search_[search]);
        box->setFocusProxy(tbDati_[static_cast<std::size_t>(field)]);
        return box;
    };
    auto* prices = new QWidget(this);
    auto* priceRow = new QHBoxLayout(prices);
    priceRow->setContentsMargins(0, 0, 0, 0);
    priceRow->addWidget(tbTotali_[0]);
    priceRow->addSpacing(16);
    auto* total = new QLabel(QStringLiteral("Totale:"), prices);
    total->setBuddy(tbTotali_[1]);
    priceRow->addWidget(total);
    priceRow->addWidget(tbTotali_[1]);
    priceRow->addStretch(1);
    prices->setFocusProxy(tbTotali_[0]);

    auto* grid = new QGridLayout;
    labelledRow(grid, 0, 0, QStringLiteral("Servizio:"), withSearch(SERVICE, SEARCH_SERVICE));
    labelledRow(grid, 1, 0, QStringLiteral("Descrizione:"), tbDati_[DESCRIPTION]);
    labelledRow(grid, 2, 0, QStringLiteral("Denti:"), withSearch(TEETH, SEARCH_TEETH));
    labelledRow(grid, 3, 0, QStringLiteral("Raggruppamento:"), cbRaggrMerc_);
    labelledRow(grid, 4, 0, QStringLiteral("Operatore:"), withSearch(OPERATOR, SEARCH_OPERATOR));
    labelledRow(grid, 5, 0, QStringLiteral("Assistente:"), withSearch(ASSISTANT, SEARCH_ASSISTANT));
    labelledRow(grid, 6, 0, QStringLiteral("Prezzo unitario:"), prices);
    grid->setColumnStretch(1, 1);

    QGroupBox* note = platform::form::titledArea(QStringLiteral("Note"), this);
    auto* noteColumn = new QVBoxLayout(note);
    noteColumn->addWidget(tbNote_);
    tbNote_->setMinimumHeight(70);

    auto* footer = platform::form::buttonRow({cbAccetta_, cbAnnulla_});
    auto* column = new QVBoxLayout(this);
    auto* title = new QHBoxLayout;
    title->addWidget(platform::form::heading(QStringLiteral("laTitoloForm"), QStringLiteral("RIGO"), this));
    title->addWidget(laProgressivo_);
    title->addStretch(1);
    column->addLayout(title);
    column->addLayout(grid);
    column->addWidget(workArea());
    column->addWidget(stagesArea());
    column->addWidget(note, 1);
    column->addLayout(footer);
    resize(640, 640);
    orderFields();
}

void frmEditRigoTrattamento::orderFields() {
    const QList<QWidget*> order{tbDati_[SERVICE],      search_[SEARCH_SERVICE],
                                tbDati_[DESCRIPTION],  tbDati_[TEETH],
                                search_[SEARCH_TEETH], cbRaggrMerc_,
                                tbDati_[OPERATOR],     search_[SEARCH_OPERATOR],
                                tbDati_[ASSISTANT],    search_[SEARCH_ASSISTANT],
                                tbTotali_[0],          cbDate_[0],
                                dtpData_[0],           cbDate_[1],
                                dtpData_[1],           cbFuoriPreventivo_};
    for (qsizetype i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
    QWidget* previous = cbFuoriPreventivo_;
    for (StagePanel* stage : pbStatus_) {
        for (QWidget* field : stage->fields()) {
            setTabOrder(previous, field);
            previous = field;
        }
    }
    for (QWidget* field :
         {static_cast<QWidget*>(tbNote_), static_cast<QWidget*>(cbAccetta_), static_cast<QWidget*>(cbAnnulla_)}) {
        setTabOrder(previous, field);
        previous = field;
    }
    tbDati_[SERVICE]->setFocus();
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
