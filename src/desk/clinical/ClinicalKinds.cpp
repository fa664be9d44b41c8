#include "desk/clinical/ClinicalKinds.h"

#include "desk/data/PatientRecord.h"
#include "platform/Clock.h"
#include "platform/Regional.h"

namespace desk {

namespace {

using platform::bound;
using platform::FieldKind;
using platform::regional;

QString yes(bool flag) {
    return flag ? QStringLiteral("sì") : QString();
}

/// Rows of one of the patient's collections, which all have the same shape.
template <class Row, auto Collection>
RowStore<Row> storeOf(const RoomContext& context) {
    const auto rows = [patient = context.patient]() -> auto& {
        return ((*patient).*Collection)();
    };
    const auto told = [patient = context.patient, rows](bool changed) {
        if (changed) patient->GeneraEvento(rows());
        return changed;
    };
    return {.list = [rows] { return rows().Lista(); },
            .load = [rows](const QString& id) { return rows().Carica(id); },
            .save = [rows, told](Row& row) { return told(rows().Salva(row)); },
            .remove = [rows, told](const QString& id) { return told(rows().Elimina(id)); }};
}

// The diary. An entry may hold a file, which a button shows.

constexpr KindColumn<host::Evento> EVENT_COLUMNS[] = {
    {u"Data", 80, [](const host::Evento& event) { return event.Data; }},
    {u"Descrizione", 400, [](const host::Evento& event) { return event.descrizione.simplified(); }, true},
    {u"File", 50, [](const host::Evento& event) { return yes(!event.idfiles.isEmpty()); }}};

constexpr platform::BoundField<host::Evento> EVENT_FIELDS[] = {
    {{"tbData", u"&Data:", FieldKind::Date},
     [](const host::Evento& event) { return QVariant(regional().toDate(event.Data).value_or(QDate())); },
     [](host::Evento& event, const QVariant& day) { event.Data = regional().shortDate(day.toDate()); }},
    bound<&host::Evento::descrizione>(
        {"tbDescrizione", u"De&scrizione:", FieldKind::Memo, 0, u"Scrivere la descrizione."})};

constexpr Kind<host::Evento> EVENTS{
    .item = "Evento",
    .grid = "rcEventi",
    .caption = u"Diario clinico",
    .newCaption = u"&Nuova voce",
    .empty = u"Il diario è vuoto",
    .columns = EVENT_COLUMNS,
    .form = "frmEditEvento",
    .newTitle = u"Nuova voce del diario",
    .title = u"Voce del diario",
    .size = {520, 300},
    .fields = EVENT_FIELDS,
    .firstField = "tbDescrizione",
    .gone = u"La voce del diario non è più nell'archivio.",
    .removalQuestion = [](const host::Evento& event, const RoomContext&) {
        const QString question = QStringLiteral("Eliminare dal diario la voce del %1?").arg(event.Data);
        if (event.idfiles.isEmpty()) return question;
        return question + QStringLiteral("\nIl suo file resta tra i file del paziente.");
    }};

// The notes. Private ones are for the patient's own doctor alone: nobody else sees, changes or deletes them here.

bool isDoctorOf(const RoomContext& context) {
    return context.services.userId == context.patient->IDMedico();
}

constexpr KindColumn<host::Appunto> NOTE_COLUMNS[] = {
    {u"Data", 80, [](const host::Appunto& note) { return regional().shortDate(note.Data.date()); }},
    {u"Testo", 400, [](const host::Appunto& note) { return note.m1.simplified(); }, true},
    {u"Importante", 80, [](const host::Appunto& note) { return yes(note.b2.toBool()); }},
    {u"Privato", 70, [](const host::Appunto& note) { return yes(note.b1.toBool()); }}};

constexpr platform::BoundField<host::Appunto> NOTE_FIELDS[] = {
    {{"tbData", u"&Data:", FieldKind::Date},
     [](const host::Appunto& note) { return QVariant(note.Data.date()); },
     // Notes of one day keep the order in which they were written.
     [](host::Appunto& note, const QVariant& day) { note.Data = QDateTime(day.toDate(), note.Data.time()); }},
    bound<&host::Appunto::m1>({"tbTesto", u"&Testo:", FieldKind::Memo, 0, u"Scrivere il testo dell'appunto."}),
    bound<&host::Appunto::b2>({"ckImportante", u"&Importante: mostrato all'apertura del paziente", FieldKind::Check}),
    bound<&host::Appunto::b1>({"ckPrivato", u"&Privato: visibile solo al medico del paziente", FieldKind::Check})};

constexpr Kind<host::Appunto> NOTES{
    .item = "Appunto",
    .grid = "rcAppunti",
    .caption = u"Appunti",
    .newCaption = u"&Nuovo appunto",
    .empty = u"Nessun appunto",
    .columns = NOTE_COLUMNS,
    .form = "frmEditAppunto",
    .newTitle = u"Nuovo appunto",
    .title = u"Appunto",
    .size = {540, 340},
    .fields = NOTE_FIELDS,
    .firstField = "tbTesto",
    .gone = u"L'appunto non è più nell'archivio.",
    .removalQuestion =
        [](const host::Appunto& note, const RoomContext&) {
            return QStringLiteral("Eliminare l'appunto del %1?").arg(regional().shortDate(note.Data.date()));
        },
    .prepare =
        [](host::Appunto& note) {
            if (!note.Data.isValid()) note.Data = platform::now();
        },
    .mark = [](const host::Appunto& note, platform::ListRow& row) { row.bold = note.b2.toBool(); },
    .secret = [](const host::Appunto& note, const RoomContext& context) -> const char16_t* {
        return note.b1.toBool() && !isDoctorOf(context) ? u"L'appunto è privato del medico del paziente." : nullptr;
    },
    // Anybody else could not see it any more, once written.
    .adapt = [](platform::RecordForm& form,
                const RoomContext& context) { form.field("ckPrivato")->setEnabled(isDoctorOf(context)); }};

// The visits, in the surgery and at home.

constexpr KindColumn<host::Visita> VISIT_COLUMNS[] = {
    {u"Data", 80, [](const host::Visita& visit) { return regional().shortDate(visit.Data.date()); }},
    // Visits that came from elsewhere have a day and no hour.
    {u"Ora", 50,
     [](const host::Visita& visit) {
         const QTime time = visit.Data.time();
         return time == QTime(0, 0) ? QString() : time.toString(QStringLiteral("HH:mm"));
     }},
    {u"Descrizione", 400, [](const host::Visita& visit) { return visit.descrizione.simplified(); }, true}};

constexpr platform::BoundField<host::Visita> VISIT_FIELDS[] = {
    {{"tbData", u"&Data:", FieldKind::Date},
     [](const host::Visita& visit) { return QVariant(visit.Data.date()); },
     [](host::Visita& visit, const QVariant& day) { visit.Data.setDate(day.toDate()); }},
    {{"tbOra", u"&Ora:", FieldKind::Time},
     [](const host::Visita& visit) { return QVariant(visit.Data.time()); },
     [](host::Visita& visit, const QVariant& time) { visit.Data.setTime(time.toTime()); }},
    bound<&host::Visita::descrizione>(
        {"tbDescrizione", u"De&scrizione:", FieldKind::Memo, 0, u"Scrivere la descrizione della visita."})};

constexpr Kind<host::Visita> VISITS{
    .item = "Visita",
    .grid = "rcVisite",
    .caption = u"Visite",
    .newCaption = u"&Nuova visita",
    .empty = u"Nessuna visita",
    .columns = VISIT_COLUMNS,
    .form = "frmEditVisita",
    .newTitle = u"Nuova visita",
    .title = u"Visita",
    .size = {520, 320},
    .fields = VISIT_FIELDS,
    .firstField = "tbDescrizione",
    .gone = u"La visita non è più nell'archivio.",
    .removalQuestion =
        [](const host::Visita& visit, const RoomContext&) {
            return QStringLiteral("Eliminare la visita del %1?").arg(regional().shortDate(visit.Data.date()));
        },
    .prepare =
        [](host::Visita& visit) {
            if (!visit.Data.isValid()) visit.Data = platform::now();
        }};

// The due dates: those that have passed and are not done stand out.

bool isOverdue(const DueDate& dueDate) {
    return !dueDate.chiusa && dueDate.Data.isValid() && dueDate.Data < platform::today();
}

constexpr KindColumn<DueDate> DUE_DATE_COLUMNS[] = {
    {u"Data", 80, [](const DueDate& dueDate) { return regional().shortDate(dueDate.Data); }},
    {u"Descrizione", 400, [](const DueDate& dueDate) { return dueDate.descrizione.simplified(); }, true},
    {u"Stato", 80, [](const DueDate& dueDate) {
         return dueDate.chiusa       ? QStringLiteral("Fatta")
                : isOverdue(dueDate) ? QStringLiteral("Scaduta")
                                     : QStringLiteral("Da fare");
     }}};

constexpr platform::BoundField<DueDate> DUE_DATE_FIELDS[] = {
    bound<&DueDate::Data>({"tbData", u"&Data:", FieldKind::Date}),
    bound<&DueDate::descrizione>(
        {"tbDescrizione", u"De&scrizione:", FieldKind::Memo, 0, u"Scrivere la descrizione della scadenza."}),
    bound<&DueDate::chiusa>({"ckFatta", u"&Fatta", FieldKind::Check})};

constexpr Kind<DueDate> DUE_DATES{
    .item = "Scadenza",
    .grid = "rcScadenze",
    .caption = u"Scadenze",
    .newCaption = u"&Nuova scadenza",
    .empty = u"Nessuna scadenza",
    .columns = DUE_DATE_COLUMNS,
    .form = "frmEditScadenza",
    .newTitle = u"Nuova scadenza",
    .title = u"Scadenza",
    .size = {500, 280},
    .fields = DUE_DATE_FIELDS,
    .firstField = "tbDescrizione",
    .gone = u"La scadenza non è più nell'archivio.",
    .removalQuestion =
        [](const DueDate& dueDate, const RoomContext&) {
            return QStringLiteral("Eliminare la scadenza del %1?").arg(regional().shortDate(dueDate.Data));
        },
    .mark =
        [](const DueDate& dueDate, platform::ListRow& row) {
            row.bold = isOverdue(dueDate);
            if (dueDate.chiusa) row.colour = QColor(110, 122, 134);
            if (row.bold) row.colour = QColor(176, 32, 32);
        }};

/// A button beside the usual ones shows the file of an entry.
platform::ListSource eventList(const RoomContext& context) {
    const auto rows = storeOf<host::Evento, &PatientRecord::Eventi>(context);
    platform::ListSource source = listOf(EVENTS, rows, context);
    source.commands.append({.name = QStringLiteral("cbApriFileEvento"),
                            .caption = QStringLiteral("Apri &file"),
                            .run = [rows, context](const QString& id, platform::ListPage&) -> std::optional<QString> {
                                const host::Evento event = loaded(EVENTS, rows, context, id);
                                if (event.idfiles.isEmpty())
                                    throw host::HostError(QStringLiteral("Questa voce del diario non ha un file."));
                                showPatientFile(context, event.idfiles);
                                return std::nullopt;
                            }});
    return source;
}

template <const auto& KIND, class Row, auto Collection>
constexpr ClinicalKind inCollection() {
    return {KIND.caption,
            [](const RoomContext& context) { return listOf(KIND, storeOf<Row, Collection>(context), context); },
            [](const RoomContext& context, const QString& id, QWidget* parent) {
                return formOf(KIND, storeOf<Row, Collection>(context), context, id, parent);
            }};
}

constexpr ClinicalKind KINDS[] = {{EVENTS.caption, eventList, nullptr},
                                  inCollection<NOTES, host::Appunto, &PatientRecord::Appunti>(),
                                  inCollection<VISITS, host::Visita, &PatientRecord::VisiteAmbDom>(),
                                  inCollection<DUE_DATES, DueDate, &PatientRecord::scadenze>(),
                                  {u"File", fileList, nullptr}};

} // namespace

std::span<const ClinicalKind> clinicalKinds() {
    return KINDS;
}

} // namespace desk
