#include "desk/clinical/FreeDataRoom.h"

#include "desk/clinical/FreeDataEditor.h"
#include "desk/data/FileNames.h"
#include "desk/data/FreeData.h"
#include "host/contract/HostError.h"

namespace desk {

RoomTexts FreeDataRoom::texts() const {
    return {QStringLiteral("Dato"), QStringLiteral("rcDati"), QStringLiteral("Archivio dati"),
            QStringLiteral("&Nuovo dato"), QStringLiteral("Nessun dato in questa cartella")};
}

QList<platform::ReportColumn> FreeDataRoom::columns() const {
    return {{.caption = QStringLiteral("Descrizione"), .width = 320, .resizable = true},
            {.caption = QStringLiteral("Dimensione"), .width = 90, .alignment = Qt::AlignRight | Qt::AlignVCenter}};
}

QList<RoomRow> FreeDataRoom::rows() {
    QList<RoomRow> rows;
    for (const host::ItemDati& item : archive_.Lista(folder_, false))
        rows.append({item.ID, {item.descrizione.simplified(), fileSizeText(item.file.toUtf8().size())}});
    return rows;
}

RoomEditor* FreeDataRoom::editor(const QString& id, QWidget* parent) {
    if (id.isEmpty()) {
        host::ItemDati item = archive_.GetEmptyItem();
        item.Cartella = folder_;
        return new FreeDataEditor(archive_, item, services_, parent);
    }
    const auto item = archive_.Carica(id);
    if (!item) throw host::HostError(QStringLiteral("Il dato non è più nell'archivio."));
    return new FreeDataEditor(archive_, *item, services_, parent);
}

QString FreeDataRoom::removalQuestion(const QString& id) {
    const auto item = archive_.Carica(id);
    if (!item) return {};
    return QStringLiteral("Eliminare \u201c%1\u201d?").arg(item->descrizione);
}

bool FreeDataRoom::remove(const QString& id) {
    return archive_.Elimina(id);
}

} // namespace desk
