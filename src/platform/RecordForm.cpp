#include "platform/RecordForm.h"

#include "platform/Clock.h"
#include "platform/Dialogs.h"
#include "platform/FormLayout.h"
#include "platform/FormRegistry.h"
#include "platform/Guarded.h"
#include "platform/WaitCursor.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDir>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QTextDocument>
#include <QTimeEdit>
#include <algorithm>
#include <limits>
#include <memory>

namespace platform {

namespace {

bool hasValue(const FormField& field) {
    return field.kind != FieldKind::Text && field.kind != FieldKind::Note && field.kind != FieldKind::Area;
}

QGridLayout* formGrid(QWidget* parent) {
    auto* grid = parent ? new QGridLayout(parent) : new QGridLayout;
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(8);
    grid->setColumnStretch(1, 1);
    return grid;
}

} // namespace

/// Where the next field goes.
struct RecordForm::Place {
    QBoxLayout* column;           ///< Of the window.
    QBoxLayout* beside = nullptr; ///< The areas that stand side by side.
    QGridLayout* grid = nullptr;
    int row = -1;
    bool twice = false; ///< Whether two fields share a row of this area somewhere.
};

RecordForm::RecordForm(const QString& name, QWidget* parent)
    : QDialog(parent) {
    setObjectName(name);
}

QString RecordForm::run(RecordForm* form) {
    const QPointer<RecordForm> shown(form);
    form->exec();
    const std::unique_ptr<RecordForm> closed(shown);
    return closed ? closed->savedId() : QString();
}

void RecordForm::build(const QList<FormField>& fields) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(14, 14, 14, 14);
    column->setSpacing(12);
    Place place{column};
    const auto isArea = [](const FormField& field) { return field.kind == FieldKind::Area; };
    const auto isBeside = [](const FormField& field) { return (field.flags & BESIDE) != 0; };
    for (auto field = fields.begin(); field != fields.end(); ++field) {
        const auto next = field + 1;
        if (field == fields.begin() || isArea(*field))
            place.twice = std::any_of(next, std::find_if(next, fields.end(), isArea), isBeside);
        add(*field, place, !isBeside(*field) && (next == fields.end() || isArea(*next) || !isBeside(*next)));
    }
    fields_ = fields;
    const bool grows =
        std::any_of(fields.begin(), fields.end(), [](const FormField& field) { return field.kind == FieldKind::Memo; });
    if (!grows) column->addStretch();
    QPushButton* confirm = form::button(QStringLiteral("cbConferma"), QStringLiteral("Salva"), this);
    confirm->setDefault(true);
    QPushButton* cancel = form::button(QStringLiteral("cbAnnulla"), QStringLiteral("Annulla"), this);
    cancel->setAutoDefault(false);
    column->addLayout(form::buttonRow({confirm, cancel}));
    connect(confirm, &QPushButton::clicked, this, &RecordForm::save);
    connect(cancel, &QPushButton::clicked, this, &RecordForm::reject);
    FormRegistry::add(this);
}

void RecordForm::add(const FormField& field, Place& place, bool alone) {
    const bool beside = (field.flags & BESIDE) != 0;
    const QString caption = QString::fromUtf16(field.caption);
    if (field.kind == FieldKind::Area) {
        if (!beside) {
            place.beside = new QHBoxLayout;
            place.beside->setSpacing(12);
            place.column->addLayout(place.beside);
        }
        QGroupBox* area = form::named(form::titledArea(caption, this), QLatin1String(field.name));
        place.beside->addWidget(area);
        place.grid = formGrid(area);
        place.grid->setColumnStretch(3, place.twice ? 1 : 0);
        place.row = -1;
        return;
    }
    if (!place.grid) {
        place.grid = formGrid(nullptr);
        place.column->addLayout(place.grid);
    }
    if (!beside) ++place.row;
    const int column = beside ? 2 : 0;
    const int span = place.twice && alone ? 3 : 1;
    QWidget* made = control(field, place.grid->parentWidget());
    if (field.kind == FieldKind::Check || field.kind == FieldKind::Note)
        place.grid->addWidget(made, place.row, column + 1, 1, span);
    else if (!caption.isEmpty())
        form::labelledRow(place.grid, place.row, column, caption, made, span);
    else {
        made->setContentsMargins(0, 0, 0, 6);
        place.grid->addWidget(made, place.row, 0, 1, -1);
    }
}

QWidget* RecordForm::control(const FormField& field, QWidget* parent) {
    const QString name = QLatin1String(field.name ? field.name : "");
    const QString caption = QString::fromUtf16(field.caption);
    const QString hint = field.hint ? QString::fromUtf16(field.hint) : QString();
    QWidget* made = nullptr;
    switch (field.kind) {
    case FieldKind::Line:
    case FieldKind::Password: {
        QLineEdit* line = form::textBox(name, parent);
        line->setMaxLength(field.limit > 0 ? field.limit : std::numeric_limits<int>::max());
        line->setPlaceholderText(hint);
        if (field.kind == FieldKind::Password) line->setEchoMode(QLineEdit::Password);
        return line;
    }
    case FieldKind::File:
        return filePath(field, parent);
    case FieldKind::Memo: {
        auto* memo = form::named(new QPlainTextEdit(parent), name);
        memo->setTabChangesFocus(true);
        made = memo;
        break;
    }
    case FieldKind::Date:
        made = form::dateBox(name, parent);
        break;
    case FieldKind::Time: {
        auto* time = form::named(new QTimeEdit(parent), name);
        time->setDisplayFormat(QStringLiteral("HH:mm"));
        made = time;
        break;
    }
    case FieldKind::Check:
        made = form::named(new QCheckBox(caption, parent), name);
        break;
    case FieldKind::Choice:
    case FieldKind::FreeChoice: {
        auto* box = form::named(new QComboBox(parent), name);
        box->setEditable(field.kind == FieldKind::FreeChoice);
        made = box;
        break;
    }
    case FieldKind::Text:
    case FieldKind::Note:
    case FieldKind::Area: {
        auto* label = form::named(new QLabel(field.kind == FieldKind::Note ? caption : QString(), parent), name);
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        if (field.kind == FieldKind::Note) {
            label->setForegroundRole(QPalette::PlaceholderText);
            return label;
        }
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        // A long name of a file has no blanks at which it could be wrapped.
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        return label;
    }
    }
    if (field.kind == FieldKind::Date || field.kind == FieldKind::Time)
        made->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    made->setToolTip(hint);
    return made;
}

QWidget* RecordForm::filePath(const FormField& field, QWidget* parent) {
    auto* both = new QWidget(parent);
    auto* row = new QHBoxLayout(both);
    row->setContentsMargins(0, 0, 0, 0);
    QLineEdit* path = form::textBox(QLatin1String(field.name), both);
    path->setMaxLength(std::numeric_limits<int>::max());
    QPushButton* browse = form::button(QStringLiteral("cbSfoglia"), QStringLiteral("S&foglia..."), both);
    browse->setAutoDefault(false);
    row->addWidget(path, 1);
    row->addWidget(browse);
    both->setFocusProxy(path);
    connect(browse, &QPushButton::clicked, this, [this, path] {
        const QString chosen = dialogs().openFile(windowTitle(), {everyFile()}, QString());
        if (!chosen.isEmpty()) path->setText(QDir::toNativeSeparators(chosen));
    });
    return both;
}

void RecordForm::start(const char* firstField, const QSize& size) {
    resize(size.width(), size.height() > 0 ? size.height() : sizeHint().height());
    field(firstField)->setFocus();
    untouched_ = contents();
}

QVariant RecordForm::value(const char* name) const {
    const auto described = std::find_if(fields_.begin(), fields_.end(), [name](const FormField& each) {
        return each.name && qstrcmp(each.name, name) == 0;
    });
    if (described == fields_.end()) return {};
    const bool trims = described->kind != FieldKind::Password && (described->flags & KEEP_BLANKS) == 0;
    const QWidget* made = field(name);
    if (const auto* line = qobject_cast<const QLineEdit*>(made)) return trims ? line->text().trimmed() : line->text();
    if (const auto* memo = qobject_cast<const QPlainTextEdit*>(made)) return memoText(*memo);
    if (const auto* time = qobject_cast<const QTimeEdit*>(made)) return time->time();
    if (const auto* date = qobject_cast<const QDateEdit*>(made)) return date->date();
    if (const auto* check = qobject_cast<const QCheckBox*>(made)) return check->isChecked();
    const auto* box = qobject_cast<const QComboBox*>(made);
    if (!box) return {};
    if (box->isEditable() || !box->currentData().isValid()) return box->currentText().trimmed();
    return box->currentData();
}

void RecordForm::setValue(const char* name, const QVariant& value) {
    QWidget* made = field(name);
    if (auto* line = qobject_cast<QLineEdit*>(made)) {
        line->setText(value.toString());
        line->setCursorPosition(0);
    } else if (auto* memo = qobject_cast<QPlainTextEdit*>(made)) {
        memo->setPlainText(value.toString());
        originals_.insert(memo, {value.toString(), memo->document()->toRawText()});
    } else if (auto* time = qobject_cast<QTimeEdit*>(made)) {
        time->setTime(value.toTime());
    } else if (auto* date = qobject_cast<QDateEdit*>(made)) {
        date->setDate(value.toDate().isValid() ? value.toDate() : today());
    } else if (auto* check = qobject_cast<QCheckBox*>(made)) {
        check->setChecked(value.toBool());
    } else if (auto* label = qobject_cast<QLabel*>(made)) {
        label->setText(value.toString());
    } else if (auto* box = qobject_cast<QComboBox*>(made)) {
        if (box->isEditable()) return box->setCurrentText(value.toString());
        const int entry = box->findData(value);
        box->setCurrentIndex(qMax(0, entry >= 0 ? entry : box->findText(value.toString())));
    }
}

void RecordForm::addChoice(const char* name, const QString& text, const QVariant& value) {
    field<QComboBox>(name)->addItem(text, value);
}

void RecordForm::setCaption(const char* name, const QString& caption) {
    for (QLabel* label : findChildren<QLabel*>())
        if (label->buddy() && label->buddy() == field(name)) label->setText(caption);
    field(name)->setAccessibleName(QString(caption).remove(QLatin1Char('&')).remove(QLatin1Char(':')));
}

QString RecordForm::memoText(const QPlainTextEdit& memo) const {
    const auto [original, shown] = originals_.value(&memo);
    // The plain text would turn fixed blanks into common ones.
    QString text = memo.document()->toRawText();
    if (text == shown) return original;
    const QString lineEnd = original.contains(QStringLiteral("\r\n")) ? QStringLiteral("\r\n") : QStringLiteral("\n");
    text.replace(QChar::ParagraphSeparator, lineEnd);
    return text.replace(QChar::LineSeparator, lineEnd);
}

QVariantList RecordForm::contents() const {
    QVariantList all;
    for (const FormField& each : fields_)
        if (hasValue(each)) all.append(value(each.name));
    return all;
}

bool RecordForm::isChanged() const {
    return contents() != untouched_;
}

QString RecordForm::refuse(const char* name, const QString& why) {
    field(name)->setFocus();
    return why;
}

QString RecordForm::whatIsWrong() {
    for (const FormField& each : std::as_const(fields_))
        if (each.missing && value(each.name).toString().trimmed().isEmpty())
            return refuse(each.name, QString::fromUtf16(each.missing));
    return {};
}

bool RecordForm::agreed(const QString& question) {
    return question.isEmpty() || dialogs().message(question, MB_QUESTION_DEFAULT_NO, windowTitle()) == Answer::Yes;
}

QString RecordForm::overwriting() {
    constexpr qsizetype ENOUGH = 600; // letters that a message box still shows well
    std::optional<QString> theirs = changedElsewhere();
    if (!theirs) return {};
    if (theirs->size() > ENOUGH) theirs = theirs->left(ENOUGH) + QStringLiteral("\u2026");
    return QStringLiteral("Un'altra postazione ha modificato intanto questa voce, che ora dice:\n\n%1\n\n"
                          "Scriverci sopra?")
        .arg(*theirs);
}

void RecordForm::save() {
    QString wrong;
    QString id;
    bool sure = false;
    const QString failure = guarded([&] {
        wrong = whatIsWrong();
        sure = wrong.isEmpty() && agreed(doubt()) && agreed(overwriting());
        if (!sure) return;
        const WaitCursor wait;
        wrong = store(id);
    });
    if (!failure.isEmpty()) wrong = failure_ + QLatin1Char('\n') + failure;
    if (!wrong.isEmpty()) {
        dialogs().message(wrong, MB_WARNING, windowTitle());
        return;
    }
    if (!sure) return;
    savedId_ = id;
    ended(true);
    accept();
}

void RecordForm::reject() {
    if (isChanged() && !agreed(QStringLiteral("Chiudere senza salvare le modifiche?"))) return;
    ended(false);
    QDialog::reject();
}

} // namespace platform
