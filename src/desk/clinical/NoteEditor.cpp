#include "desk/clinical/NoteEditor.h"

#include "desk/data/PatientRecord.h"
#include "platform/Clock.h"

#include <QCheckBox>
#include <QDateEdit>
#include <QPlainTextEdit>

namespace desk {

NoteEditor::NoteEditor(PatientRecord& patient, host::Appunto note, const RoomServices& services, QWidget* parent)
    : RoomEditor(services, QStringLiteral("frmEditAppunto"),
                 note.ID.isEmpty() ? QStringLiteral("Nuovo appunto") : QStringLiteral("Appunto"), parent)
    , patient_(patient)
    , note_(std::move(note)) {
    if (!note_.Data.isValid()) note_.Data = platform::now();
    date_ = addDate(QStringLiteral("tbData"), QStringLiteral("&Data:"), note_.Data.date());
    text_ = addMemo(QStringLiteral("tbTesto"), QStringLiteral("&Testo:"), note_.m1);
    important_ = addCheck(QStringLiteral("ckImportante"),
                          QStringLiteral("&Importante: mostrato all'apertura del paziente"), note_.b2.toBool());
    private_ = addCheck(QStringLiteral("ckPrivato"), QStringLiteral("&Privato: visibile solo al medico del paziente"),
                        note_.b1.toBool());
    // Anybody else could not see it any more, once written.
    private_->setEnabled(services.userId == patient.IDMedico());
    finish(text_, QSize(540, 340));
}

QString NoteEditor::whatIsWrong() {
    if (!memoText(text_).trimmed().isEmpty()) return {};
    text_->setFocus();
    return QStringLiteral("Scrivere il testo dell'appunto.");
}

/// Notes of one day keep the order in which they were written.
QDateTime NoteEditor::moment() const {
    return QDateTime(date_->date(), note_.Data.time());
}

QStringList NoteEditor::storedNow() {
    const auto note = patient_.Appunti().Carica(note_.ID);
    if (!note) return {};
    return {note->m1, note->Data.toString(Qt::ISODate), note->b1.toString(), note->b2.toString()};
}

bool NoteEditor::store(QString& id) {
    host::Appunto note = note_;
    note.Data = moment();
    note.m1 = memoText(text_);
    note.b1 = private_->isChecked();
    note.b2 = important_->isChecked();
    if (!patient_.Appunti().Salva(note)) return false;
    id = note.ID;
    patient_.GeneraEvento(patient_.Appunti());
    return true;
}

} // namespace desk
