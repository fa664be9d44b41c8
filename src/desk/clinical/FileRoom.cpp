#include "desk/clinical/FileRoom.h"

#include "desk/clinical/FileEditor.h"
#include "desk/clinical/WaitCursor.h"
#include "desk/data/Database.h"
#include "desk/data/FileNames.h"
#include "desk/data/Guarded.h"
#include "desk/data/PatientRecord.h"
#include "desk/data/Transaction.h"
#include "host/contract/HostError.h"
#include "platform/Dialogs.h"
#include "platform/Regional.h"

#include <QDir>

namespace desk {

RoomTexts FileRoom::texts() const {
    return {QStringLiteral("File"), QStringLiteral("rcFiles"), QStringLiteral("File"),
            QStringLiteral("Aggiu&ngi file..."), QStringLiteral("Nessun file")};
}

QList<platform::ReportColumn> FileRoom::columns() const {
    return {{.caption = QStringLiteral("Data"), .width = 80},
            {.caption = QStringLiteral("Descrizione"), .width = 300, .resizable = true},
            {.caption = QStringLiteral("Nome del file"), .width = 180, .resizable = true},
            {.caption = QStringLiteral("Dimensione"), .width = 80, .alignment = Qt::AlignRight | Qt::AlignVCenter}};
}

QList<RoomRow> FileRoom::rows() {
    const QHash<QString, qint64> sizes = patient_.Files().sizes();
    QList<RoomRow> rows;
    for (const host::VoceFile& file : patient_.Files().Lista())
        rows.append({file.ID,
                     {platform::regional().shortDate(file.Data.date()), file.Descrizione.simplified(), file.file,
                      fileSizeText(sizes.value(file.ID))}});
    return rows;
}

RoomEditor* FileRoom::editor(const QString& id, QWidget* parent) {
    if (id.isEmpty()) {
        const QString path = FileEditor::choosePath();
        return path.isEmpty() ? nullptr : new FileEditor(patient_, path, services_, parent);
    }
    const auto file = patient_.Files().Carica(id);
    if (!file) throw host::HostError(QStringLiteral("Il file non è più nell'archivio."));
    return new FileEditor(patient_, *file, patient_.Files().sizes().value(id), services_, parent);
}

QList<host::Evento> FileRoom::entriesOf(const QString& id) {
    QList<host::Evento> entries = patient_.Eventi().Lista();
    entries.removeIf([&id](const host::Evento& entry) { return entry.idfiles != id; });
    return entries;
}

QString FileRoom::removalQuestion(const QString& id) {
    const auto file = patient_.Files().Carica(id);
    if (!file) return {};
    QString question =
        QStringLiteral("Eliminare il file \u201c%1\u201d?\nIl suo contenuto andrà perduto.").arg(file->file);
    for (const host::Evento& entry : entriesOf(id))
        question += QStringLiteral("\nAnche la voce del diario del %1 sarà eliminata: %2")
                        .arg(entry.Data, entry.descrizione.simplified());
    return question;
}

bool FileRoom::remove(const QString& id) {
    const QList<host::Evento> entries = entriesOf(id);
    const QString failure = guarded([&] {
        Transaction transaction(services_.database);
        if (!patient_.Files().Elimina(id)) throw DatabaseError(QString());
        for (const host::Evento& entry : entries)
            if (!patient_.Eventi().Elimina(entry.ID)) throw DatabaseError(QString());
        transaction.commit();
    });
    if (!failure.isEmpty()) return false;
    patient_.GeneraEvento(patient_.Files());
    if (!entries.isEmpty()) patient_.GeneraEvento(patient_.Eventi());
    return true;
}

QList<RoomAction> FileRoom::actions() {
    return {
        {QStringLiteral("cbApri"), QStringLiteral("&Apri"), [this](const QString& id) { show(id); }, true},
        {QStringLiteral("cbEstrai"), QStringLiteral("E&strai copia"), [this](const QString& id) { extract(id); }},
        {QStringLiteral("cbSalva"), QStringLiteral("Sal&va con nome..."), [this](const QString& id) { saveAs(id); }}};
}

void FileRoom::failed(const QString& id, const QString& otherwise) {
    const QString why = services_.database.takeFailure();
    if (!why.isEmpty()) throw host::HostError(why);
    if (!patient_.Files().Carica(id)) throw host::HostError(QStringLiteral("Il file non è più nell'archivio."));
    throw host::HostError(otherwise);
}

QString FileRoom::extracted(const QString& id) {
    const WaitCursor wait;
    services_.database.takeFailure();
    const QString path = patient_.Files().EstraiFile(id);
    if (path.isEmpty())
        failed(id, QStringLiteral(
                       "Il file non può essere copiato nella cartella temporanea: controllare lo spazio sul disco."));
    return path;
}

void FileRoom::show(const QString& id) {
    const QString path = extracted(id);
    if (services_.showFile) services_.showFile(path);
}

void FileRoom::extract(const QString& id) {
    const QString path = extracted(id);
    platform::dialogs().message(
        QStringLiteral("Una copia del file è in:\n%1\n\nSarà tolta alla chiusura del programma.")
            .arg(QDir::toNativeSeparators(path)),
        platform::MB_INFORMATION, texts().caption);
}

void FileRoom::saveAs(const QString& id) {
    const auto file = patient_.Files().Carica(id);
    if (!file) failed(id, QString());
    const QString path = platform::dialogs().saveFile(QStringLiteral("Salva con nome"),
                                                      QStringLiteral("Tutti i file|*"), safeFileName(file->file));
    if (path.isEmpty()) return;
    const WaitCursor wait;
    services_.database.takeFailure();
    if (!patient_.Files().copyTo(id, path))
        failed(id, QStringLiteral("Il file non può essere salvato: controllare la cartella e lo spazio sul disco.\n%1")
                       .arg(QDir::toNativeSeparators(path)));
}

} // namespace desk
