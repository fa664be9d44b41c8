#include "platform/FormLayout.h"
#include "support/Text.h"

#include <QApplication>
#include <QDateEdit>
#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace form = platform::form;

TEST(FormLayout, CaptionNamesItsControlAndItsLetterReachesIt) {
    QWidget window;
    auto* grid = new QGridLayout(&window);
    auto* first = form::textBox(form::arrayName("tbDati", 0), &window);
    auto* second = form::textBox(form::arrayName("tbDati", 1), &window);
    second->setAccessibleName(u8("proprio"));
    QLabel* short_ = form::labelledRow(grid, 0, 0, u8("&Data:"), first);
    QLabel* long_ = form::labelledRow(grid, 1, 0, u8("D&escrizione del piano:"), second, 2);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_EQ(first->objectName(), u8("tbDati(0)"));
    EXPECT_EQ(first->accessibleName(), u8("Data"));
    EXPECT_EQ(second->accessibleName(), u8("proprio"));
    EXPECT_EQ(short_->geometry().right(), long_->geometry().right()) << "captions line up beside their controls";
    first->setFocus();
    QTest::keyClick(&window, Qt::Key_E, Qt::AltModifier);
    EXPECT_EQ(QApplication::focusWidget(), second);
}

TEST(FormLayout, DateBoxReadsItalianDatesWhateverTheProcessSpeaks) {
    QLocale::setDefault(QLocale::c());
    QWidget window;
    QDateEdit* box = form::dateBox(u8("dtpData"), &window);
    box->setDate(QDate(2026, 11, 22));
    EXPECT_EQ(box->text(), u8("22/11/2026"));
    EXPECT_TRUE(box->calendarPopup());
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    box->setFocus();
    for (const char* typed : {"05/01/2027", "05012027", "5/1/2027", "5.1.2027"}) {
        box->setDate(QDate(2026, 11, 22));
        box->setSelectedSection(QDateTimeEdit::DaySection);
        QTest::keyClicks(box, u8(typed));
        QTest::keyClick(box, Qt::Key_Return);
        EXPECT_EQ(box->text(), u8("05/01/2027")) << typed;
    }
    // A year of two digits, and none at all.
    QLineEdit* next = form::textBox(u8("tbDati"), &window);
    next->show();
    for (const auto& [typed, read] :
         {std::pair("050127", "05/01/2027"), std::pair("5/1/27", "05/01/2027"), std::pair("5/1", "05/01/2026")}) {
        for (const bool byTab : {false, true}) {
            box->setFocus();
            box->setDate(QDate(2026, 11, 22));
            box->setSelectedSection(QDateTimeEdit::DaySection);
            QTest::keyClicks(box, u8(typed));
            byTab ? next->setFocus() : QTest::keyClick(box, Qt::Key_Return);
            EXPECT_EQ(box->text(), u8(read)) << typed << byTab;
        }
    }
}

TEST(FormLayout, EnterPressesTheButtonThatHasTheFocusAndNoOther) {
    QDialog window;
    auto* row = new QHBoxLayout(&window);
    auto* field = form::textBox(u8("tbDati"), &window);
    auto* confirm = form::button(u8("cbConferma"), u8("Conferma"), &window);
    auto* off = form::button(u8("cbAnnulla"), u8("Annulla"), &window);
    for (QWidget* each : {static_cast<QWidget*>(field), static_cast<QWidget*>(confirm), static_cast<QWidget*>(off)})
        row->addWidget(each);
    for (QPushButton* each : {confirm, off})
        each->setAutoDefault(false);
    off->setEnabled(false);
    QSignalSpy pressed(confirm, &QPushButton::clicked);
    QSignalSpy never(off, &QPushButton::clicked);
    window.show();
    for (QWidget* each : {static_cast<QWidget*>(field), static_cast<QWidget*>(confirm), static_cast<QWidget*>(off)}) {
        QTest::keyClick(each, Qt::Key_Return);
        QTest::keyClick(each, Qt::Key_Enter);
    }
    EXPECT_EQ(pressed.count(), 2);
    EXPECT_EQ(never.count(), 0);
    EXPECT_TRUE(window.isVisible());
}

TEST(FormLayout, ShortButtonsShareOneWidthAndNoneIsClipped) {
    QWidget window;
    auto* ok = form::button(u8("cbConferma"), u8("&Conferma"), &window);
    auto* close = form::button(u8("cbChiudi"), u8("C&hiudi"), &window);
    auto* wide = form::button(u8("cbFattura"), u8("Fattura i servizi terminati non ancora fatturati"), &window);
    window.setLayout(form::buttonRow({ok, close}));
    window.resize(600, 60);
    window.show();
    EXPECT_EQ(ok->width(), close->width());
    EXPECT_GT(ok->x(), 300) << "the row stands at the right";
    EXPECT_GE(wide->sizeHint().width(), wide->fontMetrics().horizontalAdvance(wide->text()));
    EXPECT_EQ(ok->accessibleName(), u8("Conferma"));
}
