#include "desk/clinical/FreeDataEditor.h"

#include "desk/data/FreeData.h"

#include <QFontDatabase>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace desk {

FreeDataEditor::FreeDataEditor(FreeData& archive, host::ItemDati item, const RoomServices& services, QWidget* parent)
    : RoomEditor(services, QStringLiteral("frmEditDato"),
                 item.ID.isEmpty() ? QStringLiteral("Nuovo dato") : QStringLiteral("Dato"), parent)
    , archive_(archive)
    , item_(std::move(item)) {
    folder_ = addLine(QStringLiteral("tbCartella"), QStringLiteral("&Cartella:"), item_.Cartella);
    folder_->setToolTip(QStringLiteral("I livelli si dividono con \u201c/\u201d; un'altra cartella sposta il dato"));
    description_ = addLine(QStringLiteral("tbDescrizione"), QStringLiteral("De&scrizione:"), item_.descrizione);
    content_ = addMemo(QStringLiteral("tbContenuto"), QStringLiteral("C&ontenuto:"), item_.file);
    content_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    finish(description_, QSize(680, 460));
}

QString FreeDataEditor::whatIsWrong() {
    if (!FreeData::isFolderName(folder_->text().trimmed())) {
        folder_->setFocus();
        return QStringLiteral("Indicare la cartella; i livelli, divisi da \u201c/\u201d, non possono essere vuoti.");
    }
    if (!description_->text().trimmed().isEmpty()) return {};
    description_->setFocus();
    return QStringLiteral("Scrivere la descrizione.");
}

QStringList FreeDataEditor::storedNow() {
    const auto item = archive_.Carica(item_.ID);
    if (!item) return {};
    return {item->file, item->descrizione, item->Cartella};
}

bool FreeDataEditor::store(QString& id) {
    // Writing would bring back an item that was deleted elsewhere meanwhile.
    if (!item_.ID.isEmpty() && !archive_.Carica(item_.ID)) return false;
    host::ItemDati item = item_;
    // The folder of an item that is not moved stays as it was written, whoever wrote it.
    if (folder_->text() != item.Cartella) item.Cartella = folder_->text().trimmed();
    item.descrizione = description_->text();
    item.file = memoText(content_);
    if (!archive_.Salva(item, true)) return false;
    id = item.ID;
    return true;
}

} // namespace desk
