#include "documents/DocumentEditor.h"

#include "documents/DocumentHeader.h"
#include "host/Changes.h"
#include "host/Step.h"
#include "host/context.h"
#include "host/contract/Host.h"
#include "host/modForm.h"
#include "platform/Dialogs.h"
#include "platform/FormLayout.h"
#include "store/modLock.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <exception>
#include <utility>

namespace {

const char* const TAG = "Tag";
const QString LINE_END = QStringLiteral("\r\n");

platform::Answer message(const QString& text, int value) {
    return platform::dialogs().message(text, value, QString::fromUtf16(CORVALA_TITLE));
}

} // namespace

DocumentEditor::DocumentEditor(Words words, const QString& id, QWidget* parent)
    : QDialog(parent)
    , words_(std::move(words))
    , id_(id) {
    setObjectName(words_.window);
    setWindowTitle(TitoloForm(words_.title));
}

DocumentEditor::~DocumentEditor() {
    releaseLock();
}

void DocumentEditor::addButtons(QBoxLayout& footer) {
    cbConferma_ = platform::form::button(QStringLiteral("cbConferma"), QStringLiteral("Conferma"), this);
    cbAnnulla_ = platform::form::button(QStringLiteral("cbAnnulla"), QStringLiteral("Annulla"), this);
    cbAnnulla_->setProperty(TAG, QString());
    for (QPushButton* button : {cbConferma_, cbAnnulla_}) {
        button->setAutoDefault(false); // Enter belongs to the fields and to the grid
        footer.addWidget(button);
    }
    connect(cbConferma_, &QPushButton::clicked, this, &DocumentEditor::confirm);
    connect(cbAnnulla_, &QPushButton::clicked, this, &DocumentEditor::cancel);
}

EditorResult DocumentEditor::run() {
    const bool isConfirmed = exec() == Accepted;
    return {isConfirmed, id_};
}

void DocumentEditor::keyPressEvent(QKeyEvent* event) {
    if (event->key() >= Qt::Key_F3 && event->key() <= Qt::Key_F6)
        pressFunction(event->key() - Qt::Key_F3);
    else
        QDialog::keyPressEvent(event);
}

// ----------------------------------------------------------------------------------------------------------- opening

void DocumentEditor::open() {
    InizializzaForm(this);
    keepGeometry(this);
    read();
    if (oHost) oHost->Framework().setDialogCancel(true);
}

void DocumentEditor::read() {
    try {
        if (id_.isEmpty()) {
            header().prepare();
            prepare();
        } else {
            readStored();
        }
        shown();
    } catch (const std::exception& error) {
        notRead(QString::fromUtf8(error.what()));
    }
}

void DocumentEditor::readStored() {
    // Marked before it is read: what others saved until then is in it.
    const bool isOwn = holdLock();
    if (!load()) { // the window stays empty, without a word
        releaseLock();
        return;
    }
    if (!isOwn) {
        becomeReadOnly();
        message(words_.inUse, platform::MB_WARNING);
    }
    if (const QString fault = showLoaded(); !fault.isEmpty()) notRead(fault);
}

// What was read only in part must not be saved over the whole.
void DocumentEditor::notRead(const QString& why) {
    releaseLock();
    becomeReadOnly();
    message(words_.readError + LINE_END + QStringLiteral("Errore: ") + why, platform::MB_WARNING);
}

void DocumentEditor::becomeReadOnly() {
    readOnly_ = true;
    cbConferma_->setEnabled(false);
    setReadOnly();
}

// ------------------------------------------------------------------------------------------------------------ saving

void DocumentEditor::confirm() {
    bool isSaved = false;
    try {
        endEdits();
        if (!check()) return;
        isSaved = save();
        if (isSaved) afterSave();
    } catch (const std::exception& error) {
        if (isSaved) {
            announce();
            holdLock(); // a new document has become one that others can open
        }
        notSaved(QString::fromUtf8(error.what()));
        return;
    }
    isSaved ? closeConfirmed() : askToReview();
}

bool DocumentEditor::check() {
    const auto missing = header().check();
    if (!missing) return true;
    message(missing->message, platform::MB_WARNING);
    missing->field->setFocus();
    return false;
}

void DocumentEditor::askToReview() {
    const platform::Answer review = message(
        QStringLiteral("Attenzione! Salvataggio non a buon fine! Vuoi rivedere i dati?"), platform::MB_QUESTION);
    if (review != platform::Answer::Yes) reject();
}

void DocumentEditor::notSaved(const QString& why) {
    QString text = words_.saveError + LINE_END + QStringLiteral("Errore: ") + why;
    if (words_.tellsPhase) text += QStringLiteral(" step %1").arg(phase_);
    message(text, platform::MB_WARNING);
}

void DocumentEditor::announce() {
    step([] {
        if (host::Paziente* patient = currentPatient()) patient->GeneraEvento(patient->corvala());
    });
    forgetList();
    announceChange(t1(), id_);
}

// The document is stored: what fails from here on concerns who shows it, and keeps nobody from the rest.
void DocumentEditor::closeConfirmed() {
    releaseLock();
    announce();
    step([] {
        if (oHost) oHost->Framework().setDialogCancel(false);
    });
    deliverChanges();
    done(Accepted);
}

// ----------------------------------------------------------------------------------------------------------- closing

void DocumentEditor::cancel() {
    for (const QString& loss : losses()) {
        const QString question = loss + LINE_END + QStringLiteral("Attenzione! Vuoi davvero non salvare le modifiche?");
        if (message(question, platform::MB_QUESTION_DEFAULT_NO) != platform::Answer::Yes) return;
    }
    reject();
}

void DocumentEditor::reject() {
    if (oHost) oHost->Framework().setDialogCancel(true); // the module may have ended under the open window
    done(Rejected);
}

void DocumentEditor::done(int result) {
    releaseLock();
    QDialog::done(result);
}

bool DocumentEditor::holdLock() {
    if (words_.lock.isEmpty() || !cbAnnulla_->property(TAG).toString().isEmpty()) return true;
    const bool isOwn = CreaLock(words_.lock, id_);
    if (isOwn) cbAnnulla_->setProperty(TAG, id_);
    return isOwn;
}

void DocumentEditor::releaseLock() {
    const QString tag = cbAnnulla_->property(TAG).toString();
    if (tag.isEmpty() || !oConfig) return; // the folder of the locks went with the module
    cbAnnulla_->setProperty(TAG, QString());
    RimuoviLock(words_.lock, tag);
}
