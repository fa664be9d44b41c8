#include "platform/FormLayout.h"

#include "platform/DateBox.h"

#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <algorithm>

namespace platform::form {

namespace {

QString spokenName(const QString& caption) {
    QString name = caption;
    name.remove(QLatin1Char('&'));
    name = name.trimmed();
    while (name.endsWith(QLatin1Char(':')))
        name.chop(1);
    return name.trimmed();
}

/// The caption of a control. With the line under its key it is drawn a little wider than it measures, which without
/// the room for it cuts the colon.
class Caption : public QLabel {
public:
    using QLabel::QLabel;
    QSize sizeHint() const override { return QLabel::sizeHint() + QSize(2, 0); }
    QSize minimumSizeHint() const override { return QLabel::minimumSizeHint() + QSize(2, 0); }
};

/// Of itself a button answers Enter only where it may also become the default button of its window.
class Button : public QPushButton {
public:
    using QPushButton::QPushButton;

protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
            click();
        else
            QPushButton::keyPressEvent(event);
    }
};

/// A control that grows downwards has its caption beside its first line.
bool growsDown(const QWidget* control) {
    return (control->sizePolicy().verticalPolicy() & QSizePolicy::ExpandFlag) != 0;
}

} // namespace

QString arrayName(const char* name, int index) {
    return QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(index);
}

QLineEdit* textBox(const QString& name, QWidget* parent) {
    return named(new QLineEdit(parent), name);
}

QDateEdit* dateBox(const QString& name, QWidget* parent) {
    return named(new DateBox(parent), name);
}

QPushButton* button(const QString& name, const QString& caption, QWidget* parent) {
    auto* made = named<QPushButton>(new Button(caption, parent), name);
    made->setAccessibleName(spokenName(caption));
    return made;
}

QLabel* heading(const QString& name, const QString& text, QWidget* parent) {
    auto* label = named(new QLabel(text, parent), name);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * 1.35);
    font.setBold(true);
    label->setFont(font);
    label->setForegroundRole(QPalette::Highlight);
    label->setContentsMargins(0, 2, 0, 4);
    return label;
}

QFrame* titleStrip(const QString& title, const QString& hint, QWidget* parent) {
    auto* strip = named(new QFrame(parent), QStringLiteral("picTop"));
    strip->setAutoFillBackground(true);
    strip->setBackgroundRole(QPalette::Base);
    auto* grid = new QGridLayout(strip);
    grid->setContentsMargins(14, 10, 14, 10);
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(2);
    grid->setColumnStretch(1, 1);
    grid->addWidget(heading(QStringLiteral("laTitoloForm"), title, strip), 0, 1);
    if (!hint.isEmpty()) grid->addWidget(new QLabel(hint, strip), 1, 1);
    return strip;
}

QLabel* labelledRow(QGridLayout* grid, int row, int column, const QString& caption, QWidget* control, int span) {
    auto* label = new Caption(caption, grid->parentWidget());
    label->setBuddy(control);
    // A box of several controls hands the keyboard on to one of them, which is then the one that is spoken of.
    for (QWidget* spoken : {control, control->focusProxy()})
        if (spoken && spoken->accessibleName().isEmpty()) spoken->setAccessibleName(spokenName(caption));
    const Qt::Alignment height = growsDown(control) ? Qt::AlignTop : Qt::AlignVCenter;
    // As much room above as the frame of the control takes, so that caption and first line stand level.
    if (height == Qt::AlignTop) label->setContentsMargins(0, 5, 0, 0);
    grid->addWidget(label, row, column, Qt::AlignRight | height);
    grid->addWidget(control, row, column + 1, 1, span);
    return label;
}

void setNotice(QWidget* field, Notice notice, const QString& toolTip) {
    const QColor colour = noticeColour(notice);
    QPalette palette = field->palette();
    palette.setColor(QPalette::Text, colour.isValid() ? colour : QPalette().color(QPalette::Text));
    field->setPalette(palette);
    field->setToolTip(toolTip);
    field->setAccessibleDescription(toolTip);
}

void focusNextField(QWidget* field) {
    for (QWidget* next = field->nextInFocusChain(); next != field; next = next->nextInFocusChain()) {
        const bool stop = next->isVisible() && next->isEnabled() && (next->focusPolicy() & Qt::TabFocus) != 0;
        if (!stop || next->focusProxy() || !field->window()->isAncestorOf(next) || qobject_cast<QPushButton*>(next))
            continue;
        next->setFocus(Qt::TabFocusReason);
        return;
    }
}

QGroupBox* titledArea(const QString& title, QWidget* parent) {
    auto* area = new QGroupBox(title, parent);
    area->setAccessibleName(spokenName(title));
    return area;
}

QHBoxLayout* buttonRow(const QList<QPushButton*>& buttons) {
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    row->addStretch();
    int width = 88;
    for (const QPushButton* one : buttons)
        width = std::max(width, one->sizeHint().width());
    for (QPushButton* one : buttons) {
        // Short captions share one width; a row with a long one keeps the others as they are.
        one->setMinimumWidth(width <= 160 ? width : std::max(88, one->sizeHint().width()));
        row->addWidget(one);
    }
    return row;
}

} // namespace platform::form
