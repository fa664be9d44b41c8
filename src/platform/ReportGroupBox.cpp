#include "platform/ReportGroupBox.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

namespace platform {

ReportGroupBox::ReportGroupBox(const ReportColours& colours, QWidget* parent)
    : QFrame(parent)
    , colours_(colours)
    , row_(new QHBoxLayout(this))
    , prompt_(new QLabel(this)) {
    setObjectName(QStringLiteral("groupBox"));
    setAutoFillBackground(true);
    row_->setContentsMargins(8, 4, 8, 4);
    row_->setSpacing(6);
    setMinimumHeight(fontMetrics().height() + 18);
    row_->addWidget(prompt_);
    row_->addStretch();
    prompt_->setForegroundRole(QPalette::PlaceholderText);
    coloursChanged();
}

void ReportGroupBox::coloursChanged() {
    setDropHint(false);
}

void ReportGroupBox::setDropHint(bool shown) {
    QPalette colours = palette();
    colours.setColor(QPalette::Window, shown ? colours_.accent.lighter(230) : colours_.head.lighter(108));
    setPalette(colours);
}

void ReportGroupBox::setPrompt(const QString& prompt) {
    prompt_->setText(prompt);
}

void ReportGroupBox::setEntries(const QList<Entry>& entries) {
    // Later, since it may be one of their own buttons that asks for it.
    for (QWidget* old : chips_) {
        old->hide();
        old->deleteLater();
    }
    chips_.clear();
    prompt_->setVisible(entries.isEmpty());
    for (const Entry& entry : entries) {
        QWidget* made = chip(entry);
        row_->insertWidget(static_cast<int>(chips_.size()) + 1, made);
        chips_.append(made);
    }
}

QWidget* ReportGroupBox::chip(const Entry& entry) {
    auto* box = new QFrame(this);
    box->setFrameShape(QFrame::StyledPanel);
    box->setAutoFillBackground(true);
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(2, 0, 2, 0);
    row->setSpacing(0);
    auto* order = new QToolButton(box);
    order->setAutoRaise(true);
    order->setText(entry.caption);
    order->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    order->setArrowType(entry.descending ? Qt::DownArrow : Qt::UpArrow);
    order->setAccessibleName(tr("Inverti l'ordine dei gruppi di %1").arg(entry.caption));
    auto* drop = new QToolButton(box);
    drop->setAutoRaise(true);
    drop->setText(QString(QChar(0x00d7)));
    drop->setAccessibleName(tr("Togli il raggruppamento per %1").arg(entry.caption));
    drop->setToolTip(drop->accessibleName());
    row->addWidget(order);
    row->addWidget(drop);
    connect(order, &QToolButton::clicked, this, [this, column = entry.column] { emit orderToggled(column); });
    connect(drop, &QToolButton::clicked, this, [this, column = entry.column] { emit removed(column); });
    return box;
}

} // namespace platform
