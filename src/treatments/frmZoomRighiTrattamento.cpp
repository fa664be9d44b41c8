#include "treatments/frmZoomRighiTrattamento.h"

#include "host/modForm.h"
#include "platform/FormLayout.h"
#include "platform/ReportGrid.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

using namespace gridrow;

namespace {

constexpr QSize SIZE(1560, 520); // where names and descriptions stand in full in the larger letters
constexpr double ENLARGEMENT = 1.15;

} // namespace

frmZoomRighiTrattamento::frmZoomRighiTrattamento(const QString& number, QWidget* parent)
    : QDialog(parent) {
    namespace form = platform::form;
    setObjectName(QStringLiteral("frmZoomRighiTrattamento"));
    setWindowTitle(TitoloForm(QStringLiteral("Righi del trattamento")));
    auto* head = form::named(new QWidget(this), QStringLiteral("picTop"));
    auto* headRow = new QHBoxLayout(head);
    headRow->setContentsMargins(0, 0, 0, 0);
    headRow->addWidget(form::heading(QStringLiteral("laTitoloForm"), QStringLiteral("TRATTAMENTO ") + number, head));
    headRow->addStretch(1);
    buildGrid();
    cbChiudi_ = form::button(QStringLiteral("cbChiudi"), QStringLiteral("Chiudi"), this);
    connect(cbChiudi_, &QPushButton::clicked, this, &QDialog::accept);

    auto* column = new QVBoxLayout(this);
    column->addWidget(head);
    column->addWidget(rcRighi_, 1);
    column->addLayout(form::buttonRow({cbChiudi_}));
    resize(SIZE);
    InizializzaForm(this);
    rcRighi_->setFocus();
}

void frmZoomRighiTrattamento::buildGrid() {
    rcRighi_ = platform::form::named(new platform::ReportGrid(this), QStringLiteral("rcRighi"));
    rcRighi_->setAccessibleName(QStringLiteral("Righi del trattamento"));
    // On a small screen whole words matter more than large letters.
    if (screen()->availableGeometry().width() >= SIZE.width()) {
        QFont larger = font();
        larger.setPointSizeF(larger.pointSizeF() * ENLARGEMENT);
        rcRighi_->setFont(larger);
    }
    columns_ = columns();
    // Here the people give way too: there is room for their names in full.
    columns_[OPERATOR].head.resizable = columns_[ASSISTANT].head.resizable = true;
    columns_[DESCRIPTION].head.sample = QStringLiteral("Otturazione in composito, due superfici");
    addColumns(*rcRighi_, columns_);
    setUpRowsGrid(*rcRighi_);
    rcRighi_->setEditMode(false, false);
    rcRighi_->setReadOnly(true);
    connect(rcRighi_, &platform::ReportGrid::focusedRecordChanged, this, [this](platform::ReportRecord* record) {
        const int at = positionOf(*rcRighi_, record);
        emit rowSelected(at < 0 ? QString() : lines_[static_cast<std::size_t>(at)].row.teeth.selection());
    });
}

void frmZoomRighiTrattamento::setRows(const std::vector<RowLine<PlanRow>>& lines) {
    lines_ = lines;
    for (RowLine<PlanRow>& line : lines_) {
        line.highlighted = false; // of the chart behind
        paintLine(columns_, line, *addRecord(*rcRighi_, columns_));
    }
}

void frmZoomRighiTrattamento::showEvent(QShowEvent* event) {
    rcRighi_->populate();
    // Over the lower part of the editor, so that the chart above it stays in view.
    if (const QWidget* below = parentWidget() ? parentWidget()->window() : nullptr) {
        const QRect available = screen()->availableGeometry();
        resize(size().boundedTo(available.size().expandedTo(below->size())));
        const int x = below->frameGeometry().center().x() - width() / 2;
        const int y = std::min(below->frameGeometry().bottom(), available.bottom()) - height();
        move(std::max(x, available.left()), std::max(y, available.top()));
    }
    QDialog::showEvent(event);
}
