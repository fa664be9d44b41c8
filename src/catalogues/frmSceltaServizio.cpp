#include "catalogues/frmSceltaServizio.h"

#include "catalogues/clsServizi.h"
#include "catalogues/modRaggrMerc.h"
#include "config/clsItemIva.h"
#include "config/clsItemRaggMerc.h"
#include "host/context.h"
#include "host/modForm.h"
#include "platform/FormLayout.h"
#include "platform/ReportGrid.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>

using platform::form::named;

namespace {

constexpr int KEY_ROLE = Qt::UserRole;

enum Column { CODE, VAT, UNIT, GROUP, DESCRIPTION };

/// The VAT list keeps the last of several entries with one code, as everywhere.
QString descriptionOfVat(const QString& code) {
    QString found;
    if (code.isEmpty() || colIva == nullptr) return found;
    for (const clsItemIva& entry : *colIva)
        if (entry.codice == code) found = entry.descrizione;
    return found;
}

platform::ReportColumn groupColumn() {
    platform::ReportColumn column{QStringLiteral("Ragg.Merc."), 80};
    if (colRaggMerc == nullptr) return column;
    for (const clsItemRaggMerc& group : *colRaggMerc)
        if (group.descrizione.size() > column.sample.size()) column.sample = group.descrizione;
    return column;
}

bool contains(const QString& text, const QString& part) {
    return part.isEmpty() || text.contains(part, Qt::CaseInsensitive);
}

} // namespace

frmSceltaServizio::frmSceltaServizio(bool onlyTreatments, QWidget* parent)
    : QDialog(parent) {
    setObjectName(QStringLiteral("frmSceltaServizio"));
    setWindowTitle(TitoloForm(QStringLiteral("Ricerca Servizi e Prodotti")));
    resize(1000, 560);
    laSoloTrattamenti_ =
        named(new QLabel(onlyTreatments ? QStringLiteral("S") : QString(), this), QStringLiteral("laSoloTrattamenti"));
    laSoloTrattamenti_->hide();
    laOUTB_ = named(new QLabel(this), QStringLiteral("laOUTB"));
    laOUTB_->hide();

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(platform::form::heading(QStringLiteral("laTitoloForm"), QStringLiteral("SCELTA SERVIZIO"), this));
    buildTree();
    buildGrid();
    auto* split = new QSplitter(Qt::Horizontal, this);
    split->addWidget(treeView1_);
    split->addWidget(rcLista_);
    split->setStretchFactor(1, 1);
    split->setSizes({220, 780});
    layout->addWidget(split, 1);
    buildButtons();
    rcLista_->setFocus();
    InizializzaForm(this);
}

void frmSceltaServizio::buildTree() {
    treeView1_ = named(new QTreeWidget(this), QStringLiteral("TreeView1"));
    treeView1_->setHeaderHidden(true);
    treeView1_->setAccessibleName(QStringLiteral("Raggruppamenti merceologici"));
    auto* root = new QTreeWidgetItem(treeView1_, {QStringLiteral("Ragruppamenti")});
    root->setData(0, KEY_ROLE, QStringLiteral("root"));
    auto* all = new QTreeWidgetItem(root, {QStringLiteral("Mostra tutto")});
    all->setData(0, KEY_ROLE, QStringLiteral("viewAll"));
    if (colRaggMerc != nullptr) {
        for (const clsItemRaggMerc& group : *colRaggMerc) {
            if (group.codice.isEmpty()) continue;
            auto* node = new QTreeWidgetItem(root, {group.descrizione});
            node->setData(0, KEY_ROLE, group.codice);
        }
    }
    root->setExpanded(true);
    treeView1_->setStyleSheet(QStringLiteral("QTreeView::item { min-height: 22px; }"));
    connect(treeView1_, &QTreeWidget::itemClicked, this, &frmSceltaServizio::showGroup);
    treeView1_->installEventFilter(this);
}

bool frmSceltaServizio::eventFilter(QObject* watched, QEvent* event) {
    if (watched != treeView1_ || event->type() != QEvent::KeyPress) return QDialog::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
    // Taken here: the window would go on to its default button, and the first service of the group with it.
    if (QTreeWidgetItem* node = treeView1_->currentItem()) showGroup(node);
    return true;
}

void frmSceltaServizio::buildGrid() {
    rcLista_ = named(new platform::ReportGrid(this), QStringLiteral("rcLista"));
    // 60, or what a code of eight letters takes in the font of the screen.
    const int codeWidth = std::max(60, fontMetrics().horizontalAdvance(QStringLiteral("OTTURAZ2")) + 16);
    rcLista_->addColumn({QStringLiteral("Codice"), codeWidth});
    rcLista_->addColumn({QStringLiteral("IVA"), 80});
    rcLista_->addColumn({QStringLiteral("Un.Mis"), 80});
    rcLista_->addColumn(groupColumn());
    rcLista_->addColumn({QStringLiteral("Descrizione"), 200, true});
    rcLista_->setTexts(QStringLiteral("Non ci sono dati da visualizzare"), QString(), QStringLiteral("Ordina per "));
    rcLista_->setGroupBoxVisible(false);
    rcLista_->setColours(Qt::white, Qt::white, QColor(212, 208, 200));
    rcLista_->setReadOnly(true);
    rcLista_->setEditMode(false, false);
    connect(rcLista_, &platform::ReportGrid::rowDoubleClicked, this, [this] { take(); });
    connect(rcLista_, &platform::ReportGrid::keyPressed, this, [this](QKeyEvent* event) {
        if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) return;
        event->accept();
        take();
    });
}

void frmSceltaServizio::buildButtons() {
    using platform::form::button;
    cbPiglia_ = button(QStringLiteral("cbPiglia"), QStringLiteral("Seleziona!"), this);
    cbChiudi_ = button(QStringLiteral("cbChiudi"), QStringLiteral("Annulla"), this);
    cbPiglia_->setDefault(true);
    connect(cbPiglia_, &QPushButton::clicked, this, &frmSceltaServizio::take);
    connect(cbChiudi_, &QPushButton::clicked, this, &frmSceltaServizio::reject);
    static_cast<QVBoxLayout*>(layout())->addLayout(platform::form::buttonRow({cbPiglia_, cbChiudi_}));
}

void frmSceltaServizio::filter(const QString& codePart, const QString& descriptionPart) {
    const QString code = codePart.trimmed();
    const QString text = descriptionPart.trimmed();
    fill([&](const clsItemServizio& item) { return contains(item.ID, code) && contains(item.descrizione, text); });
}

void frmSceltaServizio::showGroup(QTreeWidgetItem* node) {
    if (node->childCount() > 0) return;
    // The texts with which the window was opened no longer count once a group is chosen.
    const QString key = node->data(0, KEY_ROLE).toString().toLower();
    fill([&](const clsItemServizio& item) {
        return key == QLatin1String("viewall") || item.raggruppamento.trimmed().toLower() == key;
    });
}

void frmSceltaServizio::fill(const std::function<bool(const clsItemServizio&)>& passes) {
    static const platform::Collection<clsItemServizio> none;
    const auto& services = oServizi == nullptr ? none : oServizi->Lista();
    rcLista_->beginUpdate();
    rcLista_->clear();
    const bool onlyTreatments = laSoloTrattamenti_->text() == QLatin1String("S");
    for (const clsItemServizio& item : services) {
        if ((onlyTreatments && !item.usabileInPianoTrattamento) || !passes(item)) continue;
        platform::ReportRecord* record = rcLista_->addRecord();
        record->tag = item.ID;
        record->cell(CODE).value = item.ID;
        record->cell(VAT).value = descriptionOfVat(item.codiceIva);
        record->cell(UNIT).value = item.UM;
        record->cell(GROUP).value = DescrizioneRaggrMerc(item.raggruppamento);
        record->cell(DESCRIPTION).value = item.descrizione.trimmed();
    }
    rcLista_->endUpdate();
    rcLista_->populate();
    if (rcLista_->rowCount() > 0) rcLista_->setFocusedRecord(rcLista_->rowRecord(0));
}

bool frmSceltaServizio::confirmed() const {
    return laOUTB_->text() == QLatin1String("OK");
}

QString frmSceltaServizio::code() const {
    const platform::ReportRecord* record = rcLista_->focusedRecord();
    return record == nullptr ? QString() : record->cell(CODE).value;
}

QString frmSceltaServizio::description() const {
    const platform::ReportRecord* record = rcLista_->focusedRecord();
    return record == nullptr ? QString() : record->cell(DESCRIPTION).value;
}

void frmSceltaServizio::take() {
    if (rcLista_->focusedRecord() != nullptr) finish(QStringLiteral("OK"));
}

void frmSceltaServizio::finish(const QString& result) {
    laOUTB_->setText(result);
    done(confirmed() ? Accepted : Rejected);
}

void frmSceltaServizio::reject() {
    finish(QStringLiteral("CANCEL"));
}
