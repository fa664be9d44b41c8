#include "desk/DeskFixture.h"
#include "desk/people/DeskSettings.h"
#include "desk/people/WindowPlace.h"
#include "host/contract/Host.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDockWidget>
#include <QPushButton>
#include <QTabBar>

class DeskSettingsWindow : public DeskFixture {
protected:
    ~DeskSettingsWindow() override { QApplication::setFont(font_); }

    void work(const std::function<void(QWidget&)>& act) {
        whenModal("frmImpostazioni", [&act](QWidget& window) {
            act(window);
            if (window.isVisible()) window.close();
        });
        ASSERT_TRUE(desk_->pressCommand(QStringLiteral("Impostazioni")));
    }
    static void choose(QWidget& window, const char* box, const char* text) {
        window.findChild<QComboBox*>(QLatin1String(box))->setCurrentText(QString::fromUtf8(text));
    }
    static void toggle(QWidget& window, const char* box) {
        QTest::mouseClick(window.findChild<QCheckBox*>(QLatin1String(box)), Qt::LeftButton, {}, QPoint(8, 8));
    }
    static void confirm(QWidget& window) {
        QTest::mouseClick(window.findChild<QPushButton*>(QStringLiteral("cbConferma")), Qt::LeftButton);
    }
    QString activeTab() {
        auto* tabs = control<QTabBar>("ribbonTabs");
        return tabs->tabText(tabs->currentIndex());
    }
    void reopen() {
        desk_.reset();
        desk_ = desk::Desk::open(options_);
    }
    host::Items& items() { return desk_->host().Utente().Items(); }

    const QFont font_ = QApplication::font();
};

TEST_F(DeskSettingsWindow, ChangesTheDeskAtOnceAndTheFontOnTheNextStart) {
    work([](QWidget& window) {
        choose(window, "cbScheda", "Strumenti");
        choose(window, "cbCarattere", "Grande");
        toggle(window, "ckMenu");
        confirm(window);
    });
    for (const bool again : {false, true}) {
        SCOPED_TRACE(again);
        if (again) reopen();
        EXPECT_EQ(activeTab(), QStringLiteral("Strumenti"));
        EXPECT_EQ(QApplication::font().pointSize(), again ? 11 : font_.pointSize());
        EXPECT_TRUE(control<QDockWidget>("pannelloMenu")->isHidden());
    }
    work([this](QWidget& window) {
        EXPECT_EQ(window.findChild<QComboBox*>(QStringLiteral("cbScheda"))->currentText(), QStringLiteral("Strumenti"));
        EXPECT_FALSE(window.findChild<QCheckBox*>(QStringLiteral("ckMenu"))->isChecked());
        toggle(window, "ckMenu");
        dialogs_.answer = platform::Answer::No;
        QTest::keyClick(&window, Qt::Key_Escape);
        EXPECT_TRUE(window.isVisible()) << "what was changed is not lost without a Yes";
        dialogs_.answer = platform::Answer::Yes;
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    EXPECT_EQ(desk::DeskSettings::load(items()).menuPane, std::optional(false)) << "cancelled";
}

TEST_F(DeskSettingsWindow, AwkwardStoredValuesLeaveTheDefaults) {
    for (const char* bad : {"", "0", "-3", "999", "grande", "1e9", "'; drop table"}) {
        items().SetITEM(QStringLiteral("Tessara.Carattere"), QString::fromUtf8(bad));
        EXPECT_EQ(desk::DeskSettings::load(items()).fontSize, desk::DeskSettings::normalFont) << bad;
        items().SetITEM(desk::WindowPlace::itemName(), QString::fromUtf8(bad));
        EXPECT_FALSE(desk::WindowPlace::fromText(QString::fromUtf8(bad))) << bad;
    }
    items().SetITEM(QStringLiteral("Tessara.SchedaIniziale"), QStringLiteral("Non c'è"));
    reopen();
    EXPECT_EQ(activeTab(), QStringLiteral("Ambulatorio"));
    work([](QWidget& window) { confirm(window); });
    EXPECT_EQ(desk::DeskSettings::load(items()).startTab, QStringLiteral("Non c'è"))
        << "of a module that is away today";
}

TEST_F(DeskSettingsWindow, TheWindowOpensWhereItWasLeft) {
    const QRect place(40, 60, 620, 540);
    const QRect usual = desk_->window()->geometry();
    ASSERT_NE(usual.size(), place.size());
    desk_->window()->setMinimumSize(200, 200);
    desk_->window()->setGeometry(place);
    desk_->window()->show();
    const QRect left = desk_->window()->geometry();
    desk_->window()->close();
    reopen();
    EXPECT_EQ(desk_->window()->geometry().topLeft(), left.topLeft());
    EXPECT_EQ(desk::WindowPlace::fromText(items().GetITEM(desk::WindowPlace::itemName()))->frame, left);

    options_.scenarioFile = QStringLiteral("qualunque");
    reopen();
    EXPECT_EQ(desk_->window()->size(), usual.size()) << "a script finds the usual size";
    options_.scenarioFile.clear();
    items().SetITEM(QStringLiteral("Tessara.RicordaPosizione"), QStringLiteral("0"));
    reopen();
    EXPECT_EQ(desk_->window()->size(), usual.size()) << "the user does not want it";
}

TEST(WindowPlace, FitsOnTheScreensOfToday) {
    const QRect one(0, 0, 1920, 1040);
    const QRect left(-1280, 0, 1280, 1024);
    const struct {
        const char* what;
        QRect frame;
        QList<QRect> screens;
        QRect fitted;
    } cases[] = {
        {"stays", {100, 100, 1400, 860}, {one}, {100, 100, 1400, 860}},
        {"too low", {100, 900, 1400, 860}, {one}, {100, 180, 1400, 860}},
        {"too far left", {-900, 50, 800, 600}, {one}, {0, 50, 800, 600}},
        {"second screen", {-1200, 50, 800, 600}, {one, left}, {-1200, 50, 800, 600}},
        {"second screen is gone", {-1200, 50, 800, 600}, {one}, {0, 50, 800, 600}},
        {"between two", {-100, 50, 800, 600}, {left, one}, {0, 50, 800, 600}},
        {"larger than the screen", {0, 0, 3000, 2000}, {one}, one},
        {"no screen", {5, 5, 800, 600}, {}, {5, 5, 800, 600}},
    };
    for (const auto& each : cases)
        EXPECT_EQ(desk::fittedToScreens(each.frame, each.screens), each.fitted) << each.what;
    const desk::WindowPlace place{QRect(-5, 7, 800, 600), true};
    const auto again = desk::WindowPlace::fromText(place.toText());
    ASSERT_TRUE(again);
    EXPECT_EQ(again->frame, place.frame);
    EXPECT_TRUE(again->maximized);
}
