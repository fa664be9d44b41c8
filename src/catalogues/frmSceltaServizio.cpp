#include "catalogues/frmSceltaServizio.h"

#include "catalogues/clsServizi.h"
#include "catalogues/modRaggrMerc.h"
#include "config/clsItemIva.h"
#include "config/clsItemRaggMerc.h"
#include "host/context.h"
#include "platform/FormLayout.h"

#include <QKeyEvent>
#include <QLabel>
#include <QTreeWidget>

using platform::form::named;

namespace {

constexpr int KEY_ROLE = Qt::UserRole;

constexpr int DESCRIPTION = 4; // column

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

QList<platform::ReportColumn> columns() {
    platform::ReportColumn code{QStringLiteral("Codice"), 60};
    code.sample = QStringLiteral("OTTURAZ2"); // eight letters, in whatever font
    return {code,
            {QStringLiteral("IVA"), 80},
            {QStringLiteral("Un.Mis"), 80},
            groupColumn(),
            {QStringLiteral("Descrizione"), 200, true}};
}

bool contains(const QString& text, const QString& part) {
    return part.isEmpty() || text.contains(part, Qt::CaseInsensitive);
}

} // namespace

frmSceltaServizio::frmSceltaServizio(bool onlyTreatments, QWidget* parent)
    : frmSceltaServizio(onlyTreatments, parent, new QTreeWidget) {}

frmSceltaServizio::frmSceltaServizio(bool onlyTreatments, QWidget* parent, QTreeWidget* groups)
    : ChoiceWindow({QStringLiteral("frmSceltaServizio"), QStringLiteral("Ricerca Servizi e Prodotti"),
                    QStringLiteral("SCELTA SERVIZIO")},
                   columns(), parent, groups)
    , treeView1_(named(groups, QStringLiteral("TreeView1"))) {
    laSoloTrattamenti_ =
        named(new QLabel(onlyTreatments ? QStringLiteral("S") : QString(), this), QStringLiteral("laSoloTrattamenti"));
    laSoloTrattamenti_->hide();
    buildTree();
}

void frmSceltaServizio::buildTree() {
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
    if (watched != treeView1_ || event->type() != QEvent::KeyPress) return ChoiceWindow::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
    // Taken here: the window would go on to its default button, and the first service of the group with it.
    if (QTreeWidgetItem* node = treeView1_->currentItem()) showGroup(node);
    return true;
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
    const bool onlyTreatments = laSoloTrattamenti_->text() == QLatin1String("S");
    QList<Row> rows;
    for (const clsItemServizio& item : oServizi == nullptr ? none : oServizi->Lista()) {
        if ((onlyTreatments && !item.usabileInPianoTrattamento) || !passes(item)) continue;
        rows.append({item.ID,
                     {item.ID, descriptionOfVat(item.codiceIva), item.UM, DescrizioneRaggrMerc(item.raggruppamento),
                      item.descrizione.trimmed()}});
    }
    setRows(rows);
}

QString frmSceltaServizio::description() const {
    return cell(DESCRIPTION);
}
