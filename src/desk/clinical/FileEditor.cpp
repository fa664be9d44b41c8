#include "desk/clinical/FileEditor.h"

#include "desk/data/FileNames.h"
#include "desk/data/PatientRecord.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "platform/FormLayout.h"
#include "platform/Regional.h"

#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

namespace desk {

FileEditor::FileEditor(PatientRecord& patient, host::VoceFile file, qint64 size, const RoomServices& services,
                       QWidget* parent)
    : RoomEditor(services, QStringLiteral("frmEditFile"), QStringLiteral("File del paziente"), parent)
    , patient_(patient)
    , file_(std::move(file)) {
    addText(QStringLiteral("laFile"), QStringLiteral("File:"), file_.file);
    addText(QStringLiteral("laData"), QStringLiteral("Inserito il:"),
            QStringLiteral("%1, %2").arg(platform::regional().shortDate(file_.Data.date()), fileSizeText(size)));
    text_ = addMemo(QStringLiteral("tbDescrizione"), QStringLiteral("De&scrizione:"), file_.Descrizione);
    finish(text_, QSize(540, 260));
}

FileEditor::FileEditor(PatientRecord& patient, const QString& path, const RoomServices& services, QWidget* parent)
    : RoomEditor(services, QStringLiteral("frmEditFile"), QStringLiteral("Aggiungi file"), parent)
    , patient_(patient) {
    addPath(path);
    text_ =
        addMemo(QStringLiteral("tbDescrizione"), QStringLiteral("De&scrizione:"), QFileInfo(path).completeBaseName());
    text_->selectAll();
    finish(text_, QSize(540, 240));
}

void FileEditor::addPath(const QString& path) {
    auto* both = new QWidget(this);
    auto* row = new QHBoxLayout(both);
    row->setContentsMargins(0, 0, 0, 0);
    path_ = platform::form::textBox(QStringLiteral("tbFile"), both);
    path_->setMaxLength(1 << 20);
    path_->setText(QDir::toNativeSeparators(path));
    path_->setAccessibleName(QStringLiteral("File"));
    QPushButton* browse = platform::form::button(QStringLiteral("cbSfoglia"), QStringLiteral("S&foglia..."), both);
    browse->setAutoDefault(false);
    row->addWidget(path_, 1);
    row->addWidget(browse);
    both->setFocusProxy(path_);
    addRow(QStringLiteral("&File:"), both);
    connect(browse, &QPushButton::clicked, this, [this] {
        const QString chosen = choosePath();
        if (!chosen.isEmpty()) path_->setText(QDir::toNativeSeparators(chosen));
    });
}

QString FileEditor::choosePath() {
    return platform::dialogs().openFile(QStringLiteral("Aggiungi file"), QStringLiteral("Tutti i file|*"), QString());
}

QString FileEditor::whatIsWrongWith(const QString& path) const {
    const QFileInfo file(platform::files::resolve(path));
    if (path.trimmed().isEmpty()) return QStringLiteral("Scegliere il file da aggiungere.");
    if (!file.isFile()) return QStringLiteral("Il file non esiste:\n%1").arg(path);
    if (!file.isReadable()) return QStringLiteral("Il file non può essere letto:\n%1").arg(path);
    if (file.size() > PatientFiles::largest)
        return QStringLiteral("Il file è di %1. Si possono conservare file fino a %2.")
            .arg(fileSizeText(file.size()), fileSizeText(PatientFiles::largest));
    return {};
}

QString FileEditor::whatIsWrong() {
    const QString wrong = path_ ? whatIsWrongWith(path_->text()) : QString();
    if (!wrong.isEmpty()) {
        path_->setFocus();
        return wrong;
    }
    if (!memoText(text_).trimmed().isEmpty()) return {};
    text_->setFocus();
    return QStringLiteral("Scrivere la descrizione del file.");
}

QStringList FileEditor::storedNow() {
    const auto file = patient_.Files().Carica(file_.ID);
    if (!file) return {};
    return {file->Descrizione, file->file};
}

bool FileEditor::store(QString& id) {
    QString stored = file_.ID;
    const QString description = memoText(text_);
    const bool done = path_ ? patient_.Files().SalvaFile(stored, description, path_->text())
                            : patient_.Files().describe(stored, description);
    if (!done) return false;
    id = stored;
    patient_.GeneraEvento(patient_.Files());
    return true;
}

} // namespace desk
