#include "treatments/frmZoomRighiTrattamento.h"

#include "host/modForm.h"
#include "platform/FormLayout.h"
#include "platform/ReportGrid.h"
#include "treatments/RigoInGriglia.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

using namespace rigogriglia;

namespace {

constexpr QSize MISURA(1560, 520); // where names and descriptions stand in full in the larger letters
constexpr double INGRANDIMENTO = 1.15;

} // namespace

frmZoomRighiTrattamento::frmZoomRighiTrattamento(const QString& numero, QWidget* parent)
    : QDialog(parent) {
    namespace form = platform::form;
    setObjectName(QStringLiteral("frmZoomRighiTrattamento"));
    setWindowTitle(TitoloForm(QStringLiteral("Righi del trattamento")));
    auto* testa = form::named(new QWidget(this), QStringLiteral("picTop"));
    auto* rigaTesta = new QHBoxLayout(testa);
    rigaTesta->setContentsMargins(0, 0, 0, 0);
    rigaTesta->addWidget(form::heading(QStringLiteral("laTitoloForm"), QStringLiteral("TRATTAMENTO ") + numero, testa));
    rigaTesta->addStretch(1);
    costruisciGriglia();
    cbChiudi_ = form::button(QStringLiteral("cbChiudi"), QStringLiteral("Chiudi"), this);
    connect(cbChiudi_, &QPushButton::clicked, this, &QDialog::accept);

    auto* colonna = new QVBoxLayout(this);
    colonna->addWidget(testa);
    colonna->addWidget(rcRighi_, 1);
    colonna->addLayout(form::buttonRow({cbChiudi_}));
    resize(MISURA);
    InizializzaForm(this);
    rcRighi_->setFocus();
}

void frmZoomRighiTrattamento::costruisciGriglia() {
    rcRighi_ = platform::form::named(new platform::ReportGrid(this), QStringLiteral("rcRighi"));
    rcRighi_->setAccessibleName(QStringLiteral("Righi del trattamento"));
    // On a small screen whole words matter more than large letters.
    if (screen()->availableGeometry().width() >= MISURA.width()) {
        QFont carattere = font();
        carattere.setPointSizeF(carattere.pointSizeF() * INGRANDIMENTO);
        rcRighi_->setFont(carattere);
    }
    for (platform::ReportColumn colonna : colonne()) {
        // Here the people give way too: there is room for their names in full.
        const int indice = rcRighi_->columnCount();
        colonna.resizable = colonna.resizable || indice == OPERATORE || indice == ASSISTENTE;
        if (indice == DESCRIZIONE) colonna.sample = QStringLiteral("Otturazione in composito, due superfici");
        rcRighi_->addColumn(colonna);
    }
    rcRighi_->setTexts(QStringLiteral("Non ci sono dati da visualizzare"), QString(), QString());
    rcRighi_->setColours(QColor(224, 233, 248), QColor(255, 255, 255), QColor(212, 208, 200));
    rcRighi_->setGroupBoxVisible(false);
    rcRighi_->setSort(-1, Qt::AscendingOrder);
    rcRighi_->setEditMode(false, false);
    rcRighi_->setReadOnly(true);
    connect(rcRighi_, &platform::ReportGrid::focusedRecordChanged, this,
            [this](platform::ReportRecord* rigo) { emit rigoScelto(rigo ? denti(*rigo).selection() : QString()); });
}

void frmZoomRighiTrattamento::aggiungi(const platform::ReportRecord& rigo) {
    platform::ReportRecord* copia = rcRighi_->addRecord();
    while (copia->cellCount() < rigo.cellCount())
        copia->addCell();
    for (int i = 0; i < rigo.cellCount(); ++i) {
        copia->cell(i).value = rigo.cell(i).value;
        copia->cell(i).tag = rigo.cell(i).tag;
        const platform::ReportCellStyle& aspetto = rigo.cell(i).style();
        copia->cell(i).setBackground(aspetto.background);
        copia->cell(i).setNotice(aspetto.notice, aspetto.tooltip);
        if (i == DESCRIZIONE) copia->cell(i).setBold(rigo.cell(i).style().bold);
    }
}

void frmZoomRighiTrattamento::showEvent(QShowEvent* event) {
    rcRighi_->populate();
    // Over the lower part of the editor, so that the chart above it stays in view.
    if (const QWidget* sotto = parentWidget() ? parentWidget()->window() : nullptr) {
        const QRect schermo = screen()->availableGeometry();
        resize(size().boundedTo(schermo.size().expandedTo(sotto->size())));
        const int x = sotto->frameGeometry().center().x() - width() / 2;
        const int y = std::min(sotto->frameGeometry().bottom(), schermo.bottom()) - height();
        move(std::max(x, schermo.left()), std::max(y, schermo.top()));
    }
    QDialog::showEvent(event);
}
