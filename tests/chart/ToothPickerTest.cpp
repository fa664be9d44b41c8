#include "chart/GraphicFile.h"
#include "chart/frmSceltaDente.h"
#include "chart/modSceltaDenti.h"
#include "platform/FormLayout.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <functional>
#include <gtest/gtest.h>

namespace {

/// A person at the window.
struct Visit {
    frmSceltaDente* window;
    template <class Control>
    Control* control(const char* name) const {
        return window->findChild<Control*>(u8(name));
    }
    QCheckBox* tooth(const char* tooth) const {
        return window->findChild<QCheckBox*>(platform::form::arrayName("cbTooth", IndiceDaDente(u8(tooth))));
    }
    void click(const QString& name) const {
        auto* widget = window->findChild<QWidget*>(name);
        ASSERT_NE(widget, nullptr) << name.toStdString();
        QTest::mouseClick(widget, Qt::LeftButton);
    }
    void press(const char* button) const { click(u8(button)); }
};

bool choose(QString& selection, qint16& count, const std::function<void(const Visit&)>& script) {
    QTimer::singleShot(0, qApp, [&script] {
        auto* window = qobject_cast<frmSceltaDente*>(QApplication::activeModalWidget());
        ASSERT_NE(window, nullptr);
        script(Visit{window});
        if (window->isVisible()) window->close();
    });
    return ScegliDenti(selection, count);
}

} // namespace

TEST(ToothPicker, ConfirmingGivesTheSelectionBackInIndexOrder) {
    const struct {
        const char* before;
        const char* after;
        qint16 count;
    } cases[] = {
        {"", "", 0},
        {"1.1", "1.1", 1},
        {"+1.2;1.1", "+1.2;1.1", 2},
        {"+1.1;9.9", "1.1", 1},
        {"+8.5;1.8", "+1.8;8.5", 2},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.before);
        QString selection = u8(c.before);
        qint16 count = 99;
        EXPECT_TRUE(choose(selection, count, [](const Visit& visit) { visit.press("cbPiglia"); }));
        EXPECT_EQ(selection, u8(c.after));
        EXPECT_EQ(count, c.count);
    }
}

TEST(ToothPicker, CancellingLeavesEverythingAsItWas) {
    const std::function<void(const Visit&)> ways[] = {
        [](const Visit& visit) { visit.press("cbChiudi"); },
        [](const Visit& visit) { QTest::keyClick(visit.window, Qt::Key_Escape); },
        [](const Visit& visit) { visit.window->close(); },
    };
    for (const auto& way : ways) {
        SCOPED_TRACE(testing::Message() << "way " << (&way - ways));
        QString selection = u8("+1.1;1.2");
        qint16 count = 42;
        QString result;
        EXPECT_FALSE(choose(selection, count, [&](const Visit& visit) {
            visit.tooth("1.3")->click();
            way(visit);
            result = visit.control<QLabel>("laOUTB")->text();
        }));
        EXPECT_EQ(result, u8("CANCEL"));
        EXPECT_EQ(selection, u8("+1.1;1.2"));
        EXPECT_EQ(count, 42);
    }
}

TEST(ToothPicker, NumberPictureAndBoxToggleTheToothAndColourItsNumber) {
    QString selection;
    qint16 count = 0;
    EXPECT_TRUE(choose(selection, count, [](const Visit& visit) {
        EXPECT_EQ(visit.window->windowTitle(), u8("Selezione Dente. Tessara 5000. CORVALA"));
        auto* number = visit.control<QLabel>("laDente(7)");
        const auto colour = [number] { return number->palette().color(QPalette::WindowText); };
        EXPECT_EQ(colour(), QColor(0, 0, 0));
        visit.click(u8("laDente(7)"));
        EXPECT_TRUE(visit.tooth("1.1")->isChecked());
        EXPECT_EQ(colour(), QColor(255, 0, 0));
        visit.click(u8("pbTooth(7)"));
        EXPECT_FALSE(visit.tooth("1.1")->isChecked());
        EXPECT_EQ(colour(), QColor(0, 0, 0));
        visit.click(u8("pbTooth(51)"));
        visit.press("cbPiglia");
    }));
    EXPECT_EQ(selection, u8("8.5"));
}

TEST(ToothPicker, AnArrowTakesItsQuadrantAndNoToothIsAChoiceToo) {
    const struct {
        const char* button;
        const char* selection;
        qint16 count;
    } cases[] = {
        {"arrow(0)", "+1.8;1.7;1.6;1.5;1.4;1.3;1.2;1.1", 8},
        {"arrow(1)", "+2.1;2.2;2.3;2.4;2.5;2.6;2.7;2.8", 8},
        {"arrow(2)", "+3.8;3.7;3.6;3.5;3.4;3.3;3.2;3.1", 8},
        {"arrow(3)", "+4.1;4.2;4.3;4.4;4.5;4.6;4.7;4.8", 8},
        {"arrow(4)", "+5.5;5.4;5.3;5.2;5.1", 5},
        {"arrow(5)", "+6.1;6.2;6.3;6.4;6.5", 5},
        {"arrow(6)", "+7.5;7.4;7.3;7.2;7.1", 5},
        {"arrow(7)", "+8.1;8.2;8.3;8.4;8.5", 5},
        {"cbNessuno", "", 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.button);
        QString selection = u8("+1.1;8.5;3.3");
        qint16 count = 3;
        EXPECT_TRUE(choose(selection, count, [&c](const Visit& visit) {
            visit.press(c.button);
            EXPECT_FALSE(visit.window->isVisible());
        }));
        EXPECT_EQ(selection, u8(c.selection));
        EXPECT_EQ(count, c.count);
    }
}

TEST(ToothPicker, TwoDigitsToggleAToothWhereverTheFocusIs) {
    QString selection;
    qint16 count = 0;
    EXPECT_TRUE(choose(selection, count, [](const Visit& visit) {
        QTest::keyClicks(visit.window, u8("11"));
        EXPECT_TRUE(visit.tooth("1.1")->isChecked());
        QTest::keyClicks(visit.tooth("1.8"), u8("9918"));
        EXPECT_TRUE(visit.tooth("1.8")->isChecked()) << "an unknown tooth empties the buffer";
        QTest::keyClicks(visit.window, u8("1-2")); // what is no digit leaves the first one in place
        EXPECT_TRUE(visit.tooth("1.2")->isChecked());
        QTest::keyClicks(visit.window, u8("11"));
        EXPECT_FALSE(visit.tooth("1.1")->isChecked());
        auto* timer = visit.control<QTimer>("Timer1");
        timer->setInterval(5);
        QTest::keyClicks(visit.window, u8("4"));
        EXPECT_TRUE(QTest::qWaitFor([timer] { return !timer->isActive(); }, 2000));
        QTest::keyClicks(visit.window, u8("85"));
        EXPECT_TRUE(visit.tooth("8.5")->isChecked()) << "the digit left alone no longer counts";
        visit.press("cbPiglia");
    }));
    EXPECT_EQ(selection, u8("+1.8;1.2;8.5"));
}
