#include "treatments/StagePanel.h"

#include "platform/Clock.h"
#include "platform/FormLayout.h"

#include <QCheckBox>
#include <QDateEdit>
#include <QHBoxLayout>
#include <QLabel>

namespace {

const char* const TAG = "Tag";

// A field that comes and goes keeps its place, so that the line does not jump.
void keepPlace(QWidget* widget) {
    QSizePolicy policy = widget->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget->setSizePolicy(policy);
}

} // namespace

StagePanel::StagePanel(int index, QWidget* parent)
    : QWidget(parent) {
    using namespace platform::form;
    setObjectName(arrayName("pbStatus", index));
    laStatus_ = named(new QLabel(this), arrayName("laStatus", index));
    laStatus_->setWordWrap(true);
    cbStatusINI_ = named(new QCheckBox(QStringLiteral("Lavori Iniziati"), this), arrayName("cbStatusINI", index));
    dtpStatusINI_ = dateBox(arrayName("dtpStatusINI", index), this);
    cbStatusFIN_ = named(new QCheckBox(QStringLiteral("Lavori Terminati"), this), arrayName("cbStatusFIN", index));
    dtpStatusFIN_ = dateBox(arrayName("dtpStatusFIN", index), this);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(laStatus_, 1);
    for (QWidget* field : fields()) {
        keepPlace(field);
        row->addWidget(field);
    }
    connect(cbStatusINI_, &QCheckBox::toggled, this, [this](bool isStarted) {
        if (!isStarted) cbStatusFIN_->setChecked(false); // no end without a start
        showDates();
    });
    connect(cbStatusFIN_, &QCheckBox::toggled, this, &StagePanel::showDates);
    release();
}

void StagePanel::release() {
    setProperty(TAG, QString());
    cbStatusINI_->setChecked(false);
    cbStatusFIN_->setChecked(false);
    dtpStatusINI_->setDate(platform::today());
    dtpStatusFIN_->setDate(platform::today());
    showDates();
    hide();
}

void StagePanel::use(const QString& name) {
    setProperty(TAG, QStringLiteral("OK"));
    laStatus_->setText(name);
    laStatus_->setToolTip(name);
    show();
}

bool StagePanel::inUse() const {
    return property(TAG).toString() == QLatin1String("OK");
}

void StagePanel::setDate(const WorkStage& stage) {
    cbStatusINI_->setChecked(stage.start.isValid());
    if (stage.start.isValid()) dtpStatusINI_->setDate(stage.start);
    cbStatusFIN_->setChecked(stage.end.isValid());
    if (stage.end.isValid()) dtpStatusFIN_->setDate(stage.end);
}

WorkStage StagePanel::stage() const {
    WorkStage stage;
    stage.name = laStatus_->text();
    if (!cbStatusINI_->isChecked()) return stage;
    stage.start = dtpStatusINI_->date();
    if (cbStatusFIN_->isChecked()) stage.end = dtpStatusFIN_->date();
    return stage;
}

QList<QWidget*> StagePanel::fields() const {
    return {cbStatusINI_, dtpStatusINI_, cbStatusFIN_, dtpStatusFIN_};
}

void StagePanel::showDates() {
    const bool isStarted = cbStatusINI_->isChecked();
    dtpStatusINI_->setVisible(isStarted);
    cbStatusFIN_->setVisible(isStarted);
    dtpStatusFIN_->setVisible(isStarted && cbStatusFIN_->isChecked());
}
