#include "platform/TaskDialog.h"

#include "platform/MessageIcon.h"
#include "platform/TaskMarkup.h"
#include "platform/WebAddress.h"

#include <QApplication>
#include <QCheckBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace platform {

namespace {

QLabel* richLabel(const QString& name, const QString& rich, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::RichText);
    label->setText(rich);
    label->setWordWrap(true);
    return label;
}

} // namespace

TaskDialog::TaskDialog(const TaskRequest& request, QWidget* parent)
    : QDialog(parent)
    , plainCount_(!request.footer.isEmpty())
    , seconds_(request.seconds) {
    setObjectName(QStringLiteral("frmTaskDialog"));
    setWindowTitle(request.windowTitle.isEmpty() ? QApplication::applicationDisplayName() : request.windowTitle);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(message(request));
    auto* strip = new QWidget(this);
    auto* row = new QHBoxLayout(strip);
    row->setContentsMargins(16, 10, 16, 10);
    check_ = new QCheckBox(request.checkCaption, strip);
    check_->setObjectName(QStringLiteral("check"));
    check_->setChecked(request.checked);
    check_->setVisible(!request.checkCaption.isEmpty());
    row->addWidget(check_);
    row->addSpacing(24);
    row->addStretch();
    column->addWidget(strip);
    addButtons(request.buttons.isEmpty() ? QStringList{tr("Chiudi")} : request.buttons);
    if (QWidget* below = footer(request)) column->addWidget(below);
    setMinimumWidth(420);
    column->setSizeConstraint(QLayout::SetFixedSize);
    connect(&timer_, &QTimer::timeout, this, &TaskDialog::count);
    if (seconds_ > 0) timer_.start(1000);
}

QWidget* TaskDialog::message(const TaskRequest& request) {
    auto* area = new QWidget(this);
    area->setAutoFillBackground(true);
    area->setBackgroundRole(QPalette::Base);
    auto* row = new QHBoxLayout(area);
    row->setContentsMargins(16, 16, 20, 16);
    row->setSpacing(14);
    auto* icon = new QLabel(area);
    icon->setPixmap(messageIcon(request.icon, 36, devicePixelRatioF()));
    row->addWidget(icon, 0, Qt::AlignTop);
    auto* texts = new QVBoxLayout;
    texts->setSpacing(10);
    QLabel* title = richLabel(QStringLiteral("title"), QStringLiteral("<u>%1</u>").arg(richText(request.title)), area);
    QFont font = title->font();
    font.setPointSizeF(font.pointSizeF() * 1.3);
    title->setFont(font);
    title->setForegroundRole(QPalette::Highlight);
    texts->addWidget(title);
    QLabel* text = richLabel(QStringLiteral("text"), richText(request.text), area);
    text->setMinimumWidth(340);
    texts->addWidget(text);
    texts->addStretch();
    row->addLayout(texts, 1);
    setAccessibleDescription(withoutMarkup(request.text));
    return area;
}

QWidget* TaskDialog::footer(const TaskRequest& request) {
    if (request.footer.isEmpty() && request.url.isEmpty() && seconds_ <= 0) return nullptr;
    auto* area = new QFrame(this);
    auto* lines = new QVBoxLayout(area);
    lines->setContentsMargins(16, 0, 16, 12);
    auto* rule = new QFrame(area);
    rule->setFrameShape(QFrame::HLine);
    rule->setFrameShadow(QFrame::Sunken);
    lines->addWidget(rule);
    if (!request.footer.isEmpty())
        lines->addWidget(richLabel(QStringLiteral("footer"), richText(request.footer), area));
    if (!request.url.isEmpty()) {
        const QString link = QStringLiteral("<A HREF=\"%1\">%1</A>").arg(request.url);
        QLabel* address = richLabel(QStringLiteral("laURL"), richText(tr("Per maggiori informazioni: ") + link), area);
        connect(address, &QLabel::linkActivated, address, [](const QString& target) { openWebAddress(target); });
        lines->addWidget(address);
    }
    if (seconds_ > 0) {
        count_ = richLabel(QStringLiteral("count"), {}, area);
        lines->addWidget(count_);
        showCount();
    }
    return area;
}

void TaskDialog::addButtons(const QStringList& captions) {
    first_ = captions.first();
    auto* row = static_cast<QHBoxLayout*>(check_->parentWidget()->layout());
    for (const QString& caption : captions) {
        auto* button = new QPushButton(caption, this);
        button->setMinimumWidth(84);
        connect(button, &QPushButton::clicked, this, [this, caption] { choose(caption); });
        row->addWidget(button);
        if (caption != first_) continue;
        button->setDefault(true);
        button->setFocus();
    }
}

void TaskDialog::choose(const QString& caption) {
    timer_.stop();
    chosen_ = caption;
    accept();
}

void TaskDialog::count() {
    if (--seconds_ <= 0) {
        choose(first_);
    } else {
        showCount();
    }
}

void TaskDialog::showCount() {
    // Under a footer of the caller's own the count is plain, and in other words.
    const QString words =
        plainCount_ ? QStringLiteral("Chiusura entro %1 secondi...")
                    : QStringLiteral("<TextBlock>Chiusura fra <Run Foreground='Red'>%1</Run> secondi</TextBlock>");
    count_->setText(richText(words.arg(seconds_)));
}

TaskAnswer TaskDialog::answer() const {
    return {chosen_, check_->isChecked()};
}

} // namespace platform
