#pragma once

#include "documents/EditorResult.h"

#include <QDialog>
#include <QString>
#include <QStringList>

class DocumentHeader;
class QBoxLayout;
class QPushButton;

/// The editor of one document of the open patient, a new one without an id: the road that all kinds go, from opening
/// to closing. It holds the lock of its document while it is open; one in use elsewhere, or not read whole, shows
/// read-only. `Framework.DialogCancel` is false only after a good confirm. A kind derives from DocumentEditorOf and
/// says what is its own. Whatever fails is told to the user and keeps what was typed.
class DocumentEditor : public QDialog {
    Q_OBJECT

public:
    ~DocumentEditor() override;

    EditorResult run(); ///< Modal.
    void done(int result) override;
    void reject() override; ///< Escape and the frame: cancels without a question.

protected:
    struct Words {
        QString window;    ///< Name of the window.
        QString title;     ///< "Gestione Trattamento"
        QString lock;      ///< Lock word; empty for a kind without lock.
        QString inUse;     ///< Message for a document in use elsewhere.
        QString readError; ///< First lines of the messages for errors.
        QString saveError;
        bool tellsPhase = false; ///< Whether the latter says how far the saving had come.
    };

    DocumentEditor(Words words, const QString& id, QWidget* parent);
    void addButtons(QBoxLayout& footer); ///< cbConferma and cbAnnulla.
    void open();                         ///< The last step of the constructor of a kind.

    virtual DocumentHeader& header() const = 0;
    virtual void prepare() {}                         ///< A new document, beyond its header.
    virtual void shown() {}                           ///< The fields are filled, or as empty as they stay.
    virtual void setReadOnly() {}                     ///< What nobody may use then, besides cbConferma.
    virtual void endEdits() {}                        ///< Before a check: what is still being typed counts.
    virtual void afterSave() {}                       ///< What it throws leaves the window open on what is stored.
    virtual QStringList losses() const { return {}; } ///< What a cancel would lose: a question each.
    virtual void pressFunction(int /*index*/) {}      ///< F3 to F6, as 0 to 3.
    void keyPressEvent(QKeyEvent* event) override;

    const QString& id() const { return id_; } ///< Empty until the first save.
    bool isReadOnly() const { return readOnly_; }
    QPushButton& cancelButton() const { return *cbAnnulla_; }
    void confirm();
    void cancel();
    /// How far a save has come: 0 header, 1 rows, which the kind marks, 2 store, 3 stored, 4 refused.
    void mark(int phase) { phase_ = phase; }
    void setStored(const QString& id) { id_ = id; }

private:
    // What depends on the type of the document.
    virtual bool load() = 0;          ///< False when it is not there.
    virtual QString showLoaded() = 0; ///< What kept it from being read whole; empty when it was.
    virtual bool save() = 0;
    virtual void forgetList() = 0;
    virtual QString t1() const = 0;

    void read();
    void readStored();
    void notRead(const QString& why);
    void becomeReadOnly();
    bool check();
    void askToReview();
    void notSaved(const QString& why);
    void announce();
    void closeConfirmed();
    bool holdLock();
    void releaseLock();

    Words words_;
    QString id_;
    bool readOnly_ = false;
    int phase_ = 0;
    QPushButton* cbConferma_ = nullptr;
    QPushButton* cbAnnulla_ = nullptr; ///< Its tag is the id while the lock is held.
};
