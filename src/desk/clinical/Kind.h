#pragma once

#include "desk/clinical/RoomServices.h"
#include "desk/data/Database.h"
#include "host/contract/HostError.h"
#include "platform/ListPage.h"
#include "platform/RecordForm.h"

#include <memory>
#include <optional>
#include <span>

namespace desk {

class PatientRecord;

/// Whom the rows of a list belong to, and the desk around it. The patient is held as long as anybody works with the
/// rows; null for what belongs to no patient.
struct RoomContext {
    std::shared_ptr<PatientRecord> patient;
    RoomServices services;
};

template <class Row>
struct KindColumn {
    const char16_t* caption;
    int width;
    QString (*text)(const Row&);
    bool resizable = false;
    Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter;
};

/// One kind of thing that is kept as a list, each with an editor: the diary, the notes. All that sets it apart from the
/// others.
template <class Row>
struct Kind {
    const char* item; ///< Names the controls: "Appunto" gives cbNuovoAppunto.
    const char* grid;
    const char16_t* caption;
    const char16_t* newCaption;
    const char16_t* empty; ///< What the list says without rows.
    std::span<const KindColumn<Row>> columns;

    const char* form;
    const char16_t* newTitle;
    const char16_t* title;
    QSize size;
    std::span<const platform::BoundField<Row>> fields;
    const char* firstField;

    const char16_t* gone; ///< Said of a row that another workstation deleted.
    QString (*removalQuestion)(const Row&, const RoomContext&);
    void (*prepare)(Row&) = nullptr;                        ///< Before it is edited.
    void (*mark)(const Row&, platform::ListRow&) = nullptr; ///< How it looks in the list.
    /// Why this user may not see it; null when it is free to see.
    const char16_t* (*secret)(const Row&, const RoomContext&) = nullptr;
    /// What is wrong with a row that was typed, beyond fields left blank; the field at fault gets the keyboard.
    QString (*check)(const Row&, const char*& field) = nullptr;
    void (*adapt)(platform::RecordForm&, const RoomContext&) = nullptr;
};

/// How the rows of a kind are read and written.
template <class Row>
struct RowStore {
    std::function<QList<Row>()> list;
    std::function<std::optional<Row>(const QString& id)> load;
    std::function<bool(Row&)> save; ///< Writes a new identity into it; tells everybody of the change, as `remove` does.
    std::function<bool(const QString& id)> remove;
    std::function<Row()> fresh = {}; ///< What a new one starts from; empty without it.
};

/// Runs what answers only false, or nothing, when the database fails, and throws what it failed at: whoever asked tells
/// it.
template <class Step>
auto checked(Database& database, Step&& step) {
    database.takeFailure();
    auto answer = step();
    const QString failure = database.takeFailure();
    if (!failure.isEmpty()) throw host::HostError(failure);
    return answer;
}

/// The same for one row, at the wish of a person, who hears of it in the answer and nowhere else.
template <class Step>
auto checkedQuietly(Database& database, Step&& step) {
    const Database::Quiet quiet(database);
    return checked(database, std::forward<Step>(step));
}

template <class Row>
class KindForm : public platform::RecordForm {
public:
    KindForm(const Kind<Row>& kind, RowStore<Row> rows, Row row, const RoomContext& context, QWidget* parent)
        : RecordForm(QLatin1String(kind.form), parent)
        , kind_(kind)
        , rows_(std::move(rows))
        , row_(std::move(row))
        , context_(context) {
        setWindowTitle(QString::fromUtf16(row_.ID.isEmpty() ? kind.newTitle : kind.title));
        build(platform::fieldsOf(kind.fields));
        Row shown = row_;
        if (kind.prepare) kind.prepare(shown);
        platform::show(*this, kind.fields, shown);
        if (kind.adapt) kind.adapt(*this, context);
        start(kind.firstField, kind.size);
    }

protected:
    QString whatIsWrong() override {
        const QString blank = RecordForm::whatIsWrong();
        if (!blank.isEmpty() || !kind_.check) return blank;
        const char* field = kind_.firstField;
        const QString wrong = kind_.check(asTyped(), field);
        return wrong.isEmpty() ? wrong : refuse(field, wrong);
    }
    std::optional<QString> changedElsewhere() override {
        if (row_.ID.isEmpty()) return std::nullopt;
        const std::optional<Row> now =
            checkedQuietly(context_.services.database, [this] { return rows_.load(row_.ID); });
        if (!now) return std::nullopt;
        bool same = true;
        QString text;
        for (const platform::BoundField<Row>& each : kind_.fields) {
            if (!each.set) continue;
            same = same && each.get(*now) == each.get(row_);
            if (each.field.kind == platform::FieldKind::Memo) text = each.get(*now).toString();
        }
        return same ? std::nullopt : std::optional(text);
    }
    QString store(QString& id) override {
        Row row = asTyped();
        const bool stored = checkedQuietly(context_.services.database, [&] { return rows_.save(row); });
        if (!stored) return QStringLiteral("I dati non sono stati salvati.\n") + QString::fromUtf16(kind_.gone);
        id = row.ID;
        return {};
    }
    void ended(bool stored) override {
        if (context_.services.setDialogCancel) context_.services.setDialogCancel(!stored);
    }

private:
    Row asTyped() const {
        Row row = row_;
        if (kind_.prepare) kind_.prepare(row);
        return platform::typed(*this, kind_.fields, row);
    }

    const Kind<Row>& kind_; ///< A table of the program.
    RowStore<Row> rows_;
    Row row_; ///< As it was opened.
    RoomContext context_;
};

/// The row, which must be there and free to see; throws HostError.
template <class Row>
Row loaded(const Kind<Row>& kind, const RowStore<Row>& rows, const RoomContext& context, const QString& id) {
    std::optional<Row> row = checkedQuietly(context.services.database, [&] { return rows.load(id); });
    if (!row) throw host::HostError(QString::fromUtf16(kind.gone));
    if (const char16_t* why = kind.secret ? kind.secret(*row, context) : nullptr)
        throw host::HostError(QString::fromUtf16(why));
    return *row;
}

/// The editor of a row, new with an empty id; owned by the caller. Throws HostError.
template <class Row>
platform::RecordForm* formOf(const Kind<Row>& kind, const RowStore<Row>& rows, const RoomContext& context,
                             const QString& id, QWidget* parent) {
    const Row row = !id.isEmpty() ? loaded(kind, rows, context, id) : rows.fresh ? rows.fresh() : Row{};
    return new KindForm<Row>(kind, rows, row, context, parent);
}

template <class Row>
platform::ListRows shownRows(const Kind<Row>& kind, const RowStore<Row>& rows, const RoomContext& context) {
    platform::ListRows found;
    for (const Row& row : checked(context.services.database, rows.list)) {
        if (kind.secret && kind.secret(row, context)) continue;
        platform::ListRow shown{row.ID, {}};
        for (const KindColumn<Row>& column : kind.columns)
            shown.cells.append(column.text(row));
        if (kind.mark) kind.mark(row, shown);
        found.rows.append(shown);
    }
    return found;
}

using FormMaker = std::function<platform::RecordForm*(const QString& id, QWidget* parent)>;

/// The list of a kind, with its editor and the question before a row is deleted.
template <class Row>
platform::ListSource listOf(const Kind<Row>& kind, const RowStore<Row>& rows, const RoomContext& context,
                            const FormMaker& form) {
    const QString item = QLatin1String(kind.item);
    platform::ListSource source{.name = QStringLiteral("pagina") + item,
                                .grid = QLatin1String(kind.grid),
                                .status = QStringLiteral("laErrore") + item,
                                .caption = QString::fromUtf16(kind.caption),
                                .empty = QString::fromUtf16(kind.empty),
                                .columns = {},
                                .rows = [&kind, rows, context](const auto&) { return shownRows(kind, rows, context); }};
    for (const KindColumn<Row>& column : kind.columns)
        source.columns.append({.caption = QString::fromUtf16(column.caption),
                               .width = column.width,
                               .resizable = column.resizable,
                               .alignment = column.alignment});
    source.commands =
        platform::editCommands(item, QString::fromUtf16(kind.newCaption), form,
                               [&kind, rows, context](const QString& id, platform::ListPage& page) {
                                   if (!page.agreed(kind.removalQuestion(loaded(kind, rows, context, id), context)))
                                       return false;
                                   if (!checkedQuietly(context.services.database, [&] { return rows.remove(id); }))
                                       throw host::HostError(QString::fromUtf16(kind.gone));
                                   return true;
                               });
    return source;
}

template <class Row>
platform::ListSource listOf(const Kind<Row>& kind, const RowStore<Row>& rows, const RoomContext& context) {
    return listOf(kind, rows, context, [&kind, rows, context](const QString& id, QWidget* parent) {
        return formOf(kind, rows, context, id, parent);
    });
}

} // namespace desk
