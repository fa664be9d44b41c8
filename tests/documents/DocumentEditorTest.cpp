#include "documents/DocumentEditorOf.h"
#include "platform/FormLayout.h"
#include "store/modLock.h"
#include "support/ModuleFixture.h"
#include "support/Text.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <stdexcept>

namespace {

/// A kind with all that plans do not have: suffixes, phases, work that follows the save.
struct Receipt : WorkspaceItem {
    QString cliente;
    QString descrizionecliente;
    QString medico;
};

class Receipts : public WorkspaceManager<Receipt> {
public:
    Receipts()
        : WorkspaceManager(u8("FTT")) {}
    void DeserializzaMEMO(Receipt& item, const QString& memo) const override { item.medico = memo; }

protected:
    QString SerializzaMEMO(const Receipt& item) const override { return item.cliente + u'|' + item.medico; }
};

class ReceiptHeader : public DocumentHeader {
public:
    explicit ReceiptHeader(QWidget* parent)
        : DocumentHeader(u8("FTT"), parent) {
        addSuffixes();
        addDoctor(1, 4, 6, 7);
    }
};

class ReceiptEditor : public DocumentEditorOf<Receipt> {
public:
    ReceiptEditor(Receipts& receipts, const QString& id)
        : DocumentEditorOf(receipts,
                           {.window = u8("frmEditRicevuta"),
                            .title = u8("Gestione Ricevuta"),
                            .lock = u8("Ricevuta"),
                            .inUse = u8("In uso!"),
                            .readError = u8("Non letta!"),
                            .saveError = u8("Non salvata!"),
                            .tellsPhase = true},
                           id, nullptr)
        , header_(new ReceiptHeader(this)) {
        addButtons(*new QHBoxLayout(this));
        open();
    }
    bool rowsFail = false;
    bool afterSaveFails = false;
    QStringList whatIsLost;
    QList<int> functions;

protected:
    DocumentHeader& header() const override { return *header_; }
    void fill(const Receipt& item) override { header_->setDoctor(item.medico, QString()); }
    void compose(Receipt& item) override {
        item.medico = header_->doctor();
        mark(1);
        if (rowsFail) throw std::runtime_error("righi");
    }
    void afterSave() override {
        if (afterSaveFails) throw std::runtime_error("acconti");
    }
    QStringList losses() const override { return whatIsLost; }
    void pressFunction(int index) override { functions << index; }

private:
    ReceiptHeader* header_;
};

class DocumentEditorTest : public ModuleFixture {
protected:
    DocumentEditorTest() {
        start();
        openRossi();
    }
    void open(const QString& id) {
        window_ = std::make_unique<ReceiptEditor>(receipts_, id);
        window_->show();
    }
    void press(const char* button) {
        QTest::mouseClick(window_->findChild<QPushButton*>(QLatin1String(button)), Qt::LeftButton);
    }
    QLineEdit* field(int index) { return window_->findChild<QLineEdit*>(platform::form::arrayName("tbDati", index)); }
    QComboBox* suffix() { return window_->findChild<QComboBox*>(u8("cbBisTris")); }
    QList<Receipt> stored() {
        receipts_.Refresh();
        const auto& list = receipts_.Lista();
        return {list.begin(), list.end()};
    }

    Receipts receipts_;
    std::unique_ptr<ReceiptEditor> window_;
};

} // namespace

TEST_F(DocumentEditorTest, ANewDocumentKeepsItsSuffixUnderTheNextNumberAndIsFixedFromThenOn) {
    open({});
    suffix()->setCurrentText(u8("BIS"));
    Receipt other;
    other.setNumber({u8("2026"), u8("0001"), u8("BIS")});
    other.Data = u8("10/03/2026");
    ASSERT_TRUE(receipts_.Salva(other));
    press("cbConferma");
    EXPECT_FALSE(window_->isVisible());
    EXPECT_FALSE(oHost->Framework().DialogCancel());
    ASSERT_EQ(stored().size(), 2);
    const Receipt own = stored().last();
    EXPECT_EQ(own.number().text(), u8("2026-0002BIS"));
    EXPECT_EQ(own.medico, u8("RSSMRA80A01H501U|MRCPLA68S03H501R")) << "patient and doctor of the open patient";

    open(own.ID);
    EXPECT_EQ(field(1)->text(), u8("0002"));
    EXPECT_EQ(suffix()->currentText(), u8("BIS"));
    for (QWidget* fixed :
         {static_cast<QWidget*>(field(0)), static_cast<QWidget*>(field(1)), static_cast<QWidget*>(suffix())})
        EXPECT_FALSE(fixed->isEnabled()) << fixed->objectName().toStdString();
    EXPECT_TRUE(EsisteLock(u8("Ricevuta"), own.ID));
    window_.reset();
    EXPECT_FALSE(EsisteLock(u8("Ricevuta"), own.ID));
}

TEST_F(DocumentEditorTest, AnErrorAfterTheSaveLeavesTheWindowOnWhatIsStored) {
    open({});
    window_->afterSaveFails = true;
    press("cbConferma");
    EXPECT_EQ(dialogs_.messages, QStringList{u8("Non salvata!\r\nErrore: acconti step 3")});
    EXPECT_TRUE(window_->isVisible());
    ASSERT_EQ(stored().size(), 1);
    const QString id = stored().first().ID;
    EXPECT_FALSE(field(1)->isEnabled()) << "the number is that of the stored document now";
    EXPECT_TRUE(EsisteLock(u8("Ricevuta"), id));

    window_->afterSaveFails = false;
    field(2)->setText(u8("Saldo"));
    press("cbConferma");
    EXPECT_FALSE(window_->isVisible());
    ASSERT_EQ(stored().size(), 1) << "the same document, not a second one";
    EXPECT_EQ(stored().first().descrizione, u8("Saldo"));
    EXPECT_FALSE(EsisteLock(u8("Ricevuta"), id));
}

TEST_F(DocumentEditorTest, AnErrorWhileComposingTellsHowFarItCame) {
    open({});
    window_->rowsFail = true;
    press("cbConferma");
    EXPECT_EQ(dialogs_.messages, QStringList{u8("Non salvata!\r\nErrore: righi step 1")});
    EXPECT_TRUE(window_->isVisible());
    EXPECT_TRUE(oHost->Framework().DialogCancel());
    EXPECT_TRUE(stored().isEmpty());
}

TEST_F(DocumentEditorTest, AsksForEachLossAndLeavesByEscapeWithoutAQuestion) {
    open({});
    window_->whatIsLost = QStringList{u8("Fatture."), u8("Allegati.")};
    dialogs_.answers = {platform::Answer::Yes, platform::Answer::No};
    press("cbAnnulla");
    EXPECT_EQ(dialogs_.messages, (QStringList{u8("Fatture.\r\nAttenzione! Vuoi davvero non salvare le modifiche?"),
                                              u8("Allegati.\r\nAttenzione! Vuoi davvero non salvare le modifiche?")}));
    EXPECT_TRUE(window_->isVisible());
    for (const Qt::Key key : {Qt::Key_F3, Qt::Key_F6, Qt::Key_F7})
        QTest::keyClick(window_.get(), key);
    EXPECT_EQ(window_->functions, (QList<int>{0, 3}));
    QTest::keyClick(window_.get(), Qt::Key_Escape);
    EXPECT_FALSE(window_->isVisible());
    EXPECT_EQ(dialogs_.messages.size(), 2);
}
