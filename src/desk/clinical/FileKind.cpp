#include "desk/clinical/ClinicalKinds.h"
#include "desk/data/FileNames.h"
#include "desk/data/PatientRecord.h"
#include "desk/data/Transaction.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "platform/Guarded.h"
#include "platform/Regional.h"
#include "platform/WaitCursor.h"

#include <QDir>
#include <QFileInfo>
#include <QPlainTextEdit>

namespace desk {

namespace {

using platform::bound;
using platform::FieldKind;
using platform::regional;

/// A file that is stored, or one on the disk that is to be.
struct PatientFile : host::VoceFile {
    qint64 size = 0;
    QString path; ///< Of a new one.
};

constexpr KindColumn<PatientFile> COLUMNS[] = {
    {u"Data", 80, [](const PatientFile& file) { return regional().shortDate(file.Data.date()); }},
    {u"Descrizione", 300, [](const PatientFile& file) { return file.Descrizione.simplified(); }, true},
    {u"Nome del file", 180, [](const PatientFile& file) { return file.file; }, true},
    {u"Dimensione", 80, [](const PatientFile& file) { return fileSizeText(file.size); }, false,
     Qt::AlignRight | Qt::AlignVCenter}};

constexpr platform::FormField DESCRIPTION{"tbDescrizione", u"De&scrizione:", FieldKind::Memo, 0,
                                          u"Scrivere la descrizione del file."};

constexpr platform::BoundField<PatientFile> FIELDS[] = {
    {{"laFile", u"File:", FieldKind::Text}, [](const PatientFile& file) { return QVariant(file.file); }},
    {{"laData", u"Inserito il:", FieldKind::Text},
     [](const PatientFile& file) {
         return QVariant(QStringLiteral("%1, %2").arg(regional().shortDate(file.Data.date()), fileSizeText(file.size)));
     }},
    bound<&PatientFile::Descrizione, PatientFile>(DESCRIPTION)};

constexpr platform::BoundField<PatientFile> NEW_FIELDS[] = {
    bound<&PatientFile::path>(
        {"tbFile", u"&File:", FieldKind::File, platform::KEEP_BLANKS, u"Scegliere il file da aggiungere."}),
    bound<&PatientFile::Descrizione, PatientFile>(DESCRIPTION)};

QString whatIsWrong(const PatientFile& typed, const char*& field) {
    field = "tbFile";
    const QFileInfo file(platform::files::resolve(typed.path));
    if (!file.isFile()) return QStringLiteral("Il file non esiste:\n%1").arg(typed.path);
    if (!file.isReadable()) return QStringLiteral("Il file non può essere letto:\n%1").arg(typed.path);
    if (file.size() > PatientFiles::largest)
        return QStringLiteral("Il file è di %1. Si possono conservare file fino a %2.")
            .arg(fileSizeText(file.size()), fileSizeText(PatientFiles::largest));
    return {};
}

QList<host::Evento> entriesOf(PatientRecord& patient, const QString& id) {
    QList<host::Evento> entries = patient.Eventi().Lista();
    entries.removeIf([&id](const host::Evento& entry) { return entry.idfiles != id; });
    return entries;
}

QString removalQuestion(const PatientFile& file, const RoomContext& context) {
    QString question =
        QStringLiteral("Eliminare il file \u201c%1\u201d?\nIl suo contenuto andrà perduto.").arg(file.file);
    for (const host::Evento& entry : entriesOf(*context.patient, file.ID))
        question += QStringLiteral("\nAnche la voce del diario del %1 sarà eliminata: %2")
                        .arg(entry.Data, entry.descrizione.simplified());
    return question;
}

constexpr Kind<PatientFile> FILES{.item = "File",
                                  .grid = "rcFiles",
                                  .caption = u"File",
                                  .newCaption = u"Aggiu&ngi file...",
                                  .empty = u"Nessun file",
                                  .columns = COLUMNS,
                                  .form = "frmEditFile",
                                  .newTitle = u"",
                                  .title = u"File del paziente",
                                  .size = {540, 260},
                                  .fields = FIELDS,
                                  .firstField = "tbDescrizione",
                                  .gone = u"Il file non è più nell'archivio.",
                                  .removalQuestion = removalQuestion};

constexpr Kind<PatientFile> NEW_FILE = [] {
    Kind<PatientFile> kind = FILES;
    kind.newTitle = u"Aggiungi file";
    kind.size = {540, 240};
    kind.fields = NEW_FIELDS;
    kind.check = whatIsWrong;
    kind.adapt = [](platform::RecordForm& form, const RoomContext&) {
        form.field<QPlainTextEdit>("tbDescrizione")->selectAll();
    };
    return kind;
}();

/// The file with its entries in the diary: all or nothing.
bool removeFile(const RoomContext& context, const QString& id) {
    PatientRecord& patient = *context.patient;
    const QList<host::Evento> entries = entriesOf(patient, id);
    const QString failure = platform::guarded([&] {
        Transaction transaction(context.services.database);
        if (!patient.Files().Elimina(id)) throw DatabaseError(QString());
        for (const host::Evento& entry : entries)
            if (!patient.Eventi().Elimina(entry.ID)) throw DatabaseError(QString());
        transaction.commit();
    });
    if (!failure.isEmpty()) return false;
    patient.GeneraEvento(patient.Files());
    if (!entries.isEmpty()) patient.GeneraEvento(patient.Eventi());
    return true;
}

RowStore<PatientFile> storeOf(const RoomContext& context) {
    return {.list =
                [patient = context.patient] {
                    const QHash<QString, qint64> sizes = patient->Files().sizes();
                    QList<PatientFile> files;
                    for (const host::VoceFile& file : patient->Files().Lista())
                        files.append({file, sizes.value(file.ID), {}});
                    return files;
                },
            .load = [patient = context.patient](const QString& id) -> std::optional<PatientFile> {
                const auto file = patient->Files().Carica(id);
                if (!file) return std::nullopt;
                return PatientFile{*file, patient->Files().sizes().value(id), {}};
            },
            .save =
                [patient = context.patient](PatientFile& file) {
                    const bool stored = file.path.isEmpty()
                                            ? patient->Files().describe(file.ID, file.Descrizione)
                                            : patient->Files().SalvaFile(file.ID, file.Descrizione, file.path);
                    if (stored) patient->GeneraEvento(patient->Files());
                    return stored;
                },
            .remove = [context](const QString& id) { return removeFile(context, id); }};
}

platform::RecordForm* addFile(const RoomContext& context, QWidget* parent) {
    PatientFile file;
    file.path = QDir::toNativeSeparators(platform::dialogs().openFile(QString::fromUtf16(NEW_FILE.newTitle),
                                                                      {platform::everyFile()}, QString()));
    if (file.path.isEmpty()) return nullptr;
    file.Descrizione = QFileInfo(file.path).completeBaseName();
    return new KindForm<PatientFile>(NEW_FILE, storeOf(context), file, context, parent);
}

[[noreturn]] void failed(const RoomContext& context, const QString& id, const QString& otherwise) {
    const QString why = context.services.database.takeFailure();
    if (!why.isEmpty()) throw host::HostError(why);
    if (!context.patient->Files().Carica(id)) throw host::HostError(QString::fromUtf16(FILES.gone));
    throw host::HostError(otherwise);
}

/// Path of a copy; throws HostError.
QString extracted(const RoomContext& context, const QString& id) {
    const platform::WaitCursor wait;
    context.services.database.takeFailure();
    const QString path = context.patient->Files().EstraiFile(id);
    if (path.isEmpty())
        failed(context, id,
               QStringLiteral(
                   "Il file non può essere copiato nella cartella temporanea: controllare lo spazio sul disco."));
    return path;
}

void extractFile(const RoomContext& context, const QString& id) {
    const QString path = extracted(context, id);
    platform::dialogs().message(
        QStringLiteral("Una copia del file è in:\n%1\n\nSarà tolta alla chiusura del programma.")
            .arg(QDir::toNativeSeparators(path)),
        platform::MB_INFORMATION, QString::fromUtf16(FILES.caption));
}

void saveFileAs(const RoomContext& context, const QString& id) {
    const PatientFile file = loaded(FILES, storeOf(context), context, id);
    const QString path = platform::dialogs().saveFile(QStringLiteral("Salva con nome"),
                                                      {platform::everyFile()}, safeFileName(file.file));
    if (path.isEmpty()) return;
    const platform::WaitCursor wait;
    context.services.database.takeFailure();
    if (!context.patient->Files().copyTo(id, path))
        failed(context, id,
               QStringLiteral("Il file non può essere salvato: controllare la cartella e lo spazio sul disco.\n%1")
                   .arg(QDir::toNativeSeparators(path)));
}

/// A command on a file that changes nothing in the list.
platform::ListCommand onFile(const char* name, const char16_t* caption, const RoomContext& context,
                             void (*run)(const RoomContext&, const QString& id), bool main = false) {
    return {.name = QLatin1String(name),
            .caption = QString::fromUtf16(caption),
            .run = [context, run](const QString& id, platform::ListPage&) -> std::optional<QString> {
                run(context, id);
                return std::nullopt;
            },
            .main = main};
}

} // namespace

void showPatientFile(const RoomContext& context, const QString& id) {
    const QString path = extracted(context, id);
    if (context.services.showFile) context.services.showFile(path);
}

platform::ListSource fileList(const RoomContext& context) {
    const auto rows = storeOf(context);
    platform::ListSource source = listOf(FILES, rows, context, [rows, context](const QString& id, QWidget* parent) {
        return id.isEmpty() ? addFile(context, parent) : formOf(FILES, rows, context, id, parent);
    });
    for (platform::ListCommand& command : source.commands)
        command.main = false;
    source.commands << onFile("cbApriFile", u"&Apri", context, showPatientFile, true)
                    << onFile("cbEstraiFile", u"E&strai copia", context, extractFile)
                    << onFile("cbSalvaFile", u"Sal&va con nome...", context, saveFileAs);
    return source;
}

} // namespace desk
