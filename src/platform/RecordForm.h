#pragma once

#include "platform/FormField.h"

#include <QDialog>
#include <QHash>
#include <QList>
#include <optional>
#include <span>

class QBoxLayout;
class QGridLayout;
class QPlainTextEdit;

namespace platform {

/// The editor of one record, made from a table of fields. It is accepted only when the record could be stored; what is
/// wrong, and what fails, is told and leaves the window open with all that was typed. Leaving a changed record asks
/// first, and so does writing over one that was changed elsewhere meanwhile.
class RecordForm : public QDialog {
    Q_OBJECT

public:
    /// Runs it as a modal window and deletes it. The id of what was stored; empty when nothing was, or when the form
    /// went with its parent.
    static QString run(RecordForm* form);
    QString savedId() const { return savedId_; }

    QVariant value(const char* name) const;
    void setValue(const char* name, const QVariant& value);
    void addChoice(const char* name, const QString& text, const QVariant& value = QVariant());
    /// The control of a field. It must be there.
    template <class Control = QWidget>
    Control* field(const char* name) const {
        return findChild<Control*>(QLatin1String(name));
    }
    void setCaption(const char* name, const QString& caption);

    void reject() override;

protected:
    RecordForm(const QString& name, QWidget* parent);

    void build(const QList<FormField>& fields);
    /// The last step: what the fields hold now counts as unchanged. A size without a height takes what is needed.
    void start(const char* firstField, const QSize& size);
    bool isChanged() const;
    QString refuse(const char* name, const QString& why); ///< Brings the keyboard to the field; the reason.
    void setFailure(const QString& text) { failure_ = text; }

    /// Empty when nothing is. Asks for the fields that must not be blank.
    virtual QString whatIsWrong();
    /// A question that has to be answered with Yes before anything is stored; empty without one.
    virtual QString doubt() { return {}; }
    /// The text of the record when it is no longer as it was opened, nothing when it is.
    virtual std::optional<QString> changedElsewhere() { return std::nullopt; }
    /// Writes the id of the stored record. What kept it from being stored, empty when it was; may throw.
    virtual QString store(QString& id) = 0;
    virtual void ended(bool /*stored*/) {}

private:
    struct Place;
    void add(const FormField& field, Place& place, bool alone);
    QWidget* control(const FormField& field, QWidget* parent);
    QWidget* filePath(const FormField& field, QWidget* parent);
    QString memoText(const QPlainTextEdit& memo) const;
    QVariantList contents() const;
    void save();
    bool agreed(const QString& question);
    QString overwriting();

    QList<FormField> fields_;
    QHash<const QPlainTextEdit*, std::pair<QString, QString>> originals_; ///< The text, and as it was shown.
    QVariantList untouched_;
    QString savedId_;
    QString failure_ = QStringLiteral("I dati non sono stati salvati.");
};

template <class Record>
QList<FormField> fieldsOf(std::span<const BoundField<Record>> table) {
    QList<FormField> fields;
    for (const BoundField<Record>& each : table)
        fields.append(each.field);
    return fields;
}

template <class Record>
void show(RecordForm& form, std::span<const BoundField<Record>> table, const Record& record) {
    for (const BoundField<Record>& each : table)
        if (each.get) form.setValue(each.field.name, each.get(record));
}

/// The record with what the fields hold.
template <class Record>
Record typed(const RecordForm& form, std::span<const BoundField<Record>> table, Record record) {
    for (const BoundField<Record>& each : table)
        if (each.set) each.set(record, form.value(each.field.name));
    return record;
}

} // namespace platform
