#include "desk/clinical/FileRoom.h"

#include "desk/clinical/FileEditor.h"
#include "desk/clinical/WaitCursor.h"
#include "desk/data/Database.h"
#include "desk/data/FileNames.h"
#include "desk/data/PatientRecord.h"
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

QString FileRoom::removalQuestion(const QString& id) {
    const auto file = patient_.Files().Carica(id);
    if (!file) return {};
    return QStringLiteral("Eliminare il file \u201c%1\u201d?\nIl suo contenuto andrà perduto.").arg(file->file);
}

bool FileRoom::remove(const QString& id) {
    if (!patient_.Files().Elimina(id)) return false;
    patient_.GeneraEvento(patient_.Files());
    return true;
}

QList<RoomAction> FileRoom::actions() {
    return {{QStringLiteral("cbApri"), QStringLiteral("&Apri"), [this](const QString& id) { show(id); }, true},
            {QStringLiteral("cbEstrai"), QStringLiteral("E&strai copia"), [this](const QString& id) { extract(id); }}};
}

QString FileRoom::extracted(const QString& id) {
    const WaitCursor wait;
    services_.database.takeFailure();
    const QString path = patient_.Files().EstraiFile(id);
    if (!path.isEmpty()) return path;
    const QString why = services_.database.takeFailure();
    if (!why.isEmpty()) throw host::HostError(why);
    if (!patient_.Files().Carica(id)) throw host::HostError(QStringLiteral("Il file non è più nell'archivio."));
    throw host::HostError(
        QStringLiteral("Il file non può essere copiato nella cartella temporanea: controllare lo spazio sul disco."));
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

} // namespace desk
