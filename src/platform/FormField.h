#pragma once

#include <QVariant>

namespace platform {

enum class FieldKind {
    Line,
    Password,
    Memo, ///< Keeps line ends and blanks of a text that is not changed.
    Date,
    Time,
    Check,      ///< Its caption stands beside it.
    Choice,     ///< One of a list; its value is the data behind the entry, or else its text.
    FreeChoice, ///< One of a list, or what is typed.
    File,       ///< A path, with a button that looks for one.
    Text,       ///< Not to be changed; without a caption it has the whole row.
    Note,       ///< A remark on the field above.
    Area        ///< No field: the ones that follow stand in a titled area.
};

/// How fields lie and what they take.
enum FieldFlag {
    BESIDE = 1,      ///< To the right of the field, or of the area, before.
    KEEP_BLANKS = 2, ///< At both ends of a line, which is trimmed otherwise.
};

/// One field of a record form, as a line of a table.
struct FormField {
    const char* name;        ///< Of its control; null where it does not matter.
    const char16_t* caption; ///< With its access key; the text of a note.
    FieldKind kind = FieldKind::Line;
    int flags = 0;
    const char16_t* missing = nullptr; ///< Said when it is left blank; null for a field that may be.
    const char16_t* hint = nullptr;    ///< In an empty line, at the pointer otherwise.
    int limit = 0;                     ///< Letters of a line; 0 for any number.
};

/// A field and where its value lies in a record.
template <class Record>
struct BoundField {
    FormField field;
    QVariant (*get)(const Record&) = nullptr; ///< Null for what holds no value.
    void (*set)(Record&, const QVariant&) = nullptr;
};

template <class Record, class Value>
Record recordOf(Value Record::*);

/// A field that shows a member as it is.
template <auto Member, class Record = decltype(recordOf(Member))>
constexpr BoundField<Record> bound(const FormField& field) {
    using Value = std::decay_t<decltype(std::declval<Record>().*Member)>;
    return {field, [](const Record& record) { return QVariant::fromValue(record.*Member); },
            [](Record& record, const QVariant& value) { record.*Member = value.value<Value>(); }};
}

} // namespace platform
