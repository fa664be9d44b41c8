#include "host/Changes.h"
#include "CountingHost.h"
#include "host/clsViewBase.h"
#include "platform/ReportGrid.h"
#include "support/ModuleFixture.h"
#include "support/Text.h"
#include "treatments/ModalWindow.h"
#include "treatments/TreatmentColumns.h"
#include "treatments/clsViewTrattamenti.h"

#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QTest>

using platform::ReportGrid;

namespace {

/// The plans of the open patient on screen twice: in the practice-wide list and in the patient's panel.
class ChangesTest : public ModuleFixture {
protected:
    ChangesTest() {
        start();
        openRossi();
        counted_ = std::make_unique<CountingHost>(desk_->host());
        oHost = counted_.get();
        EXPECT_TRUE(desk_->pressCommand(u8("CRVL0301")));
        confirm(u8("Primo"), [this] { desk_->pressCommand(u8("CRVL0302")); });
    }
    ~ChangesTest() override {
        oHost = &desk_->host();
        desk_.reset(); // while the counting host is there
    }

    ReportGrid& list() { return *desk_->window()->findChild<ReportGrid*>(u8("rcTrattamenti")); }
    ReportGrid& panel() { return *desk_->window()->findChild<ReportGrid*>(u8("pannello(Corvala: Lista Trattamenti)")); }
    static QStringList descriptions(const ReportGrid& grid) {
        QStringList texts;
        for (int row = 0; row < grid.rowCount(); ++row)
            texts << grid.rowRecord(row)->cell(treatmentcolumns::DESCRIPTION).value;
        return texts;
    }
    /// The way to the editor, in which a description is typed and confirmed; what follows it is over at the end.
    void confirm(const QString& description, const std::function<void()>& way) {
        {
            const ModalWindow expected("frmEditTrattamento", [&](QWidget& editor) {
                counted_->reset();
                editor.findChild<QLineEdit*>(u8("tbDati(2)"))->setText(description);
                QTest::mouseClick(editor.findChild<QPushButton*>(u8("cbConferma")), Qt::LeftButton);
            });
            way();
        }
        QTest::qWait(20);
    }
    void expectOneReading(const QStringList& plans) {
        EXPECT_EQ(counted_->practiceLists(), 1);
        EXPECT_EQ(counted_->patientLists(), 1);
        EXPECT_EQ(descriptions(list()), plans);
        EXPECT_EQ(descriptions(panel()), plans);
    }

    std::unique_ptr<CountingHost> counted_;
};

} // namespace

TEST_F(ChangesTest, AConfirmReadsEveryOpenListOnceWhateverTheWay) {
    expectOneReading({u8("Primo")});
    confirm(u8("Secondo"), [this] { desk_->pressCommand(u8("CRVL0302")); });
    expectOneReading({u8("Secondo"), u8("Primo")});
    ASSERT_NE(list().focusedRecord(), nullptr);
    EXPECT_EQ(list().focusedRecord()->cell(treatmentcolumns::DESCRIPTION).value, u8("Secondo")) << "what was confirmed";

    confirm(u8("Dal pannello"), [this] { emit panel().rowDoubleClicked(panel().rowRecord(0), 0); });
    expectOneReading({u8("Dal pannello"), u8("Primo")});
    confirm(u8("Dal menu"), [this] {
        panel().setFocusedRecord(panel().rowRecord(1));
        oViewTrattamenti->PopupExecute(COMMAND_EDIT, &panel());
    });
    expectOneReading({u8("Dal pannello"), u8("Dal menu")});
    confirm(u8("Dall'elenco"), [this] { emit list().rowDoubleClicked(list().rowRecord(1), 0); });
    expectOneReading({u8("Dal pannello"), u8("Dall'elenco")});
}

TEST_F(ChangesTest, ADeletionReadsEveryOpenListOnceWhereverItWasAsked) {
    confirm(u8("Secondo"), [this] { desk_->pressCommand(u8("CRVL0302")); });
    confirm(u8("Terzo"), [this] { desk_->pressCommand(u8("CRVL0302")); });
    dialogs_.taskAnswer.button = u8("Si");

    counted_->reset();
    panel().setFocusedRecord(panel().rowRecord(0));
    oViewTrattamenti->PopupExecute(COMMAND_REMOVE, &panel());
    EXPECT_EQ(panel().rowCount(), 2) << "at once";
    QTest::qWait(20);
    expectOneReading({u8("Secondo"), u8("Primo")});

    counted_->reset();
    dialogs_.choice = u8("Elimina");
    list().setFocusedRecord(list().rowRecord(0));
    emit list().rowRightClicked(list().rowRecord(0), 0);
    QTest::qWait(20);
    expectOneReading({u8("Primo")});
}

TEST_F(ChangesTest, WhatIsAnnouncedInOneTurnIsToldOnceAndNothingAfterTheEnd) {
    counted_->reset();
    for (const char* t1 : {"TRT", "FTT", "TRT"})
        announceChange(QLatin1String(t1));
    EXPECT_EQ(counted_->practiceLists(), 0) << "later, since whoever announces may hold rows of a list";
    deliverChanges();
    EXPECT_EQ(counted_->practiceLists(), 1);
    QTest::qWait(20);
    EXPECT_EQ(counted_->practiceLists(), 1);
    announceChange(u8("TRT"));
    raiseEvent("fine");
    QTest::qWait(20);
    EXPECT_EQ(counted_->practiceLists(), 1);
}
