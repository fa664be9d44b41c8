#include "desk/clinical/FolderEditor.h"

#include "desk/data/FreeData.h"
#include "platform/Dialogs.h"

#include <QLineEdit>

namespace desk {

FolderEditor::FolderEditor(FreeData& archive, const QString& folder, const RoomServices& services, QWidget* parent)
    : RoomEditor(services, QStringLiteral("frmEditCartella"), QStringLiteral("Rinomina o sposta cartella"), parent)
    , archive_(archive)
    , folder_(folder) {
    name_ = addLine(QStringLiteral("tbCartella"), QStringLiteral("&Cartella:"), folder);
    name_->selectAll();
    addText(QStringLiteral("laAiuto"), QString(),
            QStringLiteral("I livelli si dividono con \u201c/\u201d: così una cartella si sposta anche in un'altra."));
    finish(name_, QSize(520, 120));
}

QString FolderEditor::whatIsWrong() {
    if (FreeData::isFolderName(name_->text().trimmed())) return {};
    name_->setFocus();
    return QStringLiteral("Indicare la cartella; i livelli, divisi da \u201c/\u201d, non possono essere vuoti.");
}

bool FolderEditor::store(QString& id) {
    const QString target = name_->text().trimmed();
    if (target != folder_ && !archive_.Lista(target, true).isEmpty()) {
        const auto answer = platform::dialogs().message(
            QStringLiteral("La cartella \u201c%1\u201d esiste già. Unire le due cartelle?").arg(target),
            platform::MB_QUESTION_DEFAULT_NO, windowTitle());
        if (answer != platform::Answer::Yes) throw std::runtime_error("Scegliere un altro nome.");
    }
    if (target != folder_ && !archive_.moveFolder(folder_, target)) return false;
    id = target;
    return true;
}

} // namespace desk
