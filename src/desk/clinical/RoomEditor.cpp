#include "desk/clinical/RoomEditor.h"

#include "desk/clinical/WaitCursor.h"
#include "desk/data/Database.h"
#include "desk/data/Guarded.h"
#include "platform/Clock.h"
#include "platform/Dialogs.h"
#include "platform/FormLayout.h"
#include "platform/FormRegistry.h"

#include <QCheckBox>
#include <QDateEdit>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextDocument>
#include <QVBoxLayout>
#include <limits>

namespace desk {

RoomEditor::RoomEditor(RoomServices services, const QString& name, const QString& title, QWidget* parent)
    : QDialog(parent)
    , services_(std::move(services)) {
    setObjectName(name);
    setWindowTitle(title);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(14, 14, 14, 14);
    column->setSpacing(12);
    grid_ = new QGridLayout;
    grid_->setHorizontalSpacing(8);
    grid_->setVerticalSpacing(8);
    grid_->setColumnStretch(1, 1);
    column->addLayout(grid_, 1);
}

QDateEdit* RoomEditor::addDate(const QString& name, const QString& caption, const QDate& date) {
    QDateEdit* field = platform::form::dateBox(name, this);
    field->setDate(date.isValid() ? date : platform::today());
    field->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    addRow(caption, field);
    return field;
}

QLineEdit* RoomEditor::addLine(const QString& name, const QString& caption, const QString& text) {
    QLineEdit* field = platform::form::textBox(name, this);
    field->setMaxLength(std::numeric_limits<int>::max());
    field->setText(text);
    field->setCursorPosition(0);
    addRow(caption, field);
    return field;
}

QPlainTextEdit* RoomEditor::addMemo(const QString& name, const QString& caption, const QString& text) {
    auto* field = platform::form::named(new QPlainTextEdit(this), name);
    field->setTabChangesFocus(true);
    field->setPlainText(text);
    field->document()->setModified(false);
    originals_.insert(field, text);
    addRow(caption, field);
    return field;
}

QCheckBox* RoomEditor::addCheck(const QString& name, const QString& caption, bool checked) {
    auto* field = platform::form::named(new QCheckBox(caption, this), name);
    field->setChecked(checked);
    grid_->addWidget(field, grid_->rowCount(), 1);
    fields_.append(field);
    return field;
}

QLabel* RoomEditor::addText(const QString& name, const QString& caption, const QString& text) {
    auto* label = platform::form::named(new QLabel(text, this), name);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setWordWrap(true);
    // A long name of a file has no blanks at which it could be wrapped.
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    addRow(caption, label);
    return label;
}

void RoomEditor::addRow(const QString& caption, QWidget* control) {
    platform::form::labelledRow(grid_, grid_->rowCount(), 0, caption, control);
    fields_.append(control);
}

void RoomEditor::finish(QWidget* first, const QSize& size) {
    QPushButton* confirm = platform::form::button(QStringLiteral("cbConferma"), QStringLiteral("Salva"), this);
    confirm->setDefault(true);
    QPushButton* cancel = platform::form::button(QStringLiteral("cbAnnulla"), QStringLiteral("Annulla"), this);
    cancel->setAutoDefault(false);
    static_cast<QVBoxLayout*>(layout())->addLayout(platform::form::buttonRow({confirm, cancel}));
    connect(confirm, &QPushButton::clicked, this, &RoomEditor::save);
    connect(cancel, &QPushButton::clicked, this, &RoomEditor::reject);
    resize(size);
    first->setFocus();
    untouched_ = contents();
    storedBefore_ = storedNow();
    platform::FormRegistry::add(this);
}

QString RoomEditor::memoText(const QPlainTextEdit* memo) const {
    const QString original = originals_.value(memo);
    if (!memo->document()->isModified()) return original;
    // The plain text would turn fixed blanks into common ones.
    QString text = memo->document()->toRawText();
    const QString lineEnd = original.contains(QStringLiteral("\r\n")) ? QStringLiteral("\r\n") : QStringLiteral("\n");
    text.replace(QChar::ParagraphSeparator, lineEnd);
    return text.replace(QChar::LineSeparator, lineEnd);
}

QStringList RoomEditor::contents() const {
    QStringList all;
    for (const QWidget* field : fields_) {
        if (const auto* memo = qobject_cast<const QPlainTextEdit*>(field)) {
            all << memoText(memo);
        } else if (const auto* check = qobject_cast<const QCheckBox*>(field)) {
            all << QString::number(check->isChecked());
        } else {
            const QVariant text = field->property("text");
            all << text.toString();
        }
    }
    return all;
}

bool RoomEditor::isChanged() const {
    return contents() != untouched_;
}

void RoomEditor::save() {
    QString wrong;
    bool sure = true;
    const QString failure = guarded([&] {
        wrong = whatIsWrong();
        sure = wrong.isEmpty() && mayOverwrite();
        if (!sure) return;
        const WaitCursor wait;
        const Database::Quiet quiet(services_.database);
        services_.database.takeFailure();
        QString id;
        if (store(id)) {
            savedId_ = id;
            return;
        }
        const QString why = services_.database.takeFailure();
        wrong = QStringLiteral("I dati non sono stati salvati.\n") +
                (why.isEmpty() ? QStringLiteral("La voce non è più nell'archivio.") : why);
    });
    if (!failure.isEmpty()) wrong = QStringLiteral("I dati non sono stati salvati.\n") + failure;
    if (!wrong.isEmpty()) {
        platform::dialogs().message(wrong, platform::MB_WARNING, windowTitle());
        return;
    }
    if (!sure) return;
    if (services_.setDialogCancel) services_.setDialogCancel(false);
    accept();
}

bool RoomEditor::mayOverwrite() {
    constexpr qsizetype ENOUGH = 600; // letters that a message box still shows well
    const QStringList now = storedNow();
    if (now.isEmpty() || now == storedBefore_) return true;
    QString theirs = now.first();
    if (theirs.size() > ENOUGH) theirs = theirs.left(ENOUGH) + QStringLiteral("\u2026");
    return platform::dialogs().message(
               QStringLiteral("Un'altra postazione ha modificato intanto questa voce, che ora dice:\n\n%1\n\n"
                              "Scriverci sopra?")
                   .arg(theirs),
               platform::MB_QUESTION_DEFAULT_NO, windowTitle()) == platform::Answer::Yes;
}

void RoomEditor::reject() {
    if (isChanged()) {
        const auto answer = platform::dialogs().message(QStringLiteral("Chiudere senza salvare le modifiche?"),
                                                        platform::MB_QUESTION_DEFAULT_NO, windowTitle());
        if (answer != platform::Answer::Yes) return;
    }
    if (services_.setDialogCancel) services_.setDialogCancel(true);
    QDialog::reject();
}

} // namespace desk
