#include "host/modForm.h"
#include "platform/Dialogs.h"
#include "platform/QtDialogs.h"
#include "platform/WebAddress.h"
#include "support/ScriptedDialogs.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>

namespace {

/// The real task dialog, worked by `hands` as soon as it is on the screen.
class RealTask : public testing::Test {
protected:
    RealTask()
        : before_(platform::installDialogs(&dialogs_)) {
        platform::installAddressOpener([this](const QString& address) {
            opened_ << address;
            return true;
        });
    }
    ~RealTask() override {
        platform::installAddressOpener({});
        platform::installDialogs(before_);
    }

    static void onceShown(std::function<void(QDialog&)> hands) {
        QTimer::singleShot(0, qApp, [hands = std::move(hands)] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            hands(*dialog);
        });
    }
    static QString text(const QDialog& dialog, const char* name) {
        const auto* label = dialog.findChild<QLabel*>(QLatin1String(name));
        return label ? platform::withoutMarkup(label->text()) : QString();
    }
    static void press(const QDialog& dialog, const char* caption) {
        for (QPushButton* button : dialog.findChildren<QPushButton*>()) {
            if (button->text() == QLatin1String(caption)) button->click();
        }
    }

    QStringList opened_;

private:
    platform::QtDialogs dialogs_;
    platform::Dialogs* before_;
};

} // namespace

TEST_F(RealTask, BothKindsHandBackWhatWasPressedAndTicked) {
    TaskOptions options;
    options.checkCaption = QStringLiteral("Non mostrare più");
    QString title;
    QString window;
    QStringList buttons;
    onceShown([&](QDialog& dialog) {
        title = text(dialog, "title");
        window = dialog.windowTitle();
        for (const QPushButton* button : dialog.findChildren<QPushButton*>())
            buttons << button->text();
        dialog.findChild<QCheckBox*>()->click();
        press(dialog, "Chiudi");
    });
    MessaggioTask(QStringLiteral("Testo"), platform::MB_WARNING, QStringLiteral("Avviso"), &options);
    EXPECT_EQ(title, QStringLiteral("Avviso"));
    EXPECT_EQ(window, QStringLiteral("Tessara 5000. CORVALA"));
    EXPECT_EQ(buttons, QStringList{QStringLiteral("Chiudi")});
    EXPECT_TRUE(options.checked);

    const QStringList own{QStringLiteral("Si"), QStringLiteral("No")};
    onceShown([](QDialog& dialog) {
        dialog.findChild<QCheckBox*>()->click();
        press(dialog, "No");
    });
    EXPECT_EQ(askTask(QStringLiteral("Testo"), platform::MB_WARNING, QStringLiteral("Avviso"), own, &options),
              QStringLiteral("No"));
    EXPECT_FALSE(options.checked) << "the box comes back as it was left, off too";
    onceShown([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_EQ(askTask(QStringLiteral("Testo"), platform::MB_WARNING, QStringLiteral("Avviso"), own), QString());
}

TEST_F(RealTask, TheFooterCountsAndNamesTheAddress) {
    const struct {
        const char* footer;
        const char* url;
        int seconds;
        const char* count;
        const char* address;
    } cases[] = {
        {"", "", 0, "", ""},
        {"", "", 7, "Chiusura fra 7 secondi", ""},
        {"Salvare prima di uscire", "", 7, "Chiusura entro 7 secondi...", ""},
        {"", "https://example.org/?a=1&b=2", 0, "", "Per maggiori informazioni: https://example.org/?a=1&b=2"},
        {"", "https://example.org", 3, "Chiusura fra 3 secondi", "Per maggiori informazioni: https://example.org"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(testing::Message() << each.footer << '|' << each.url << '|' << each.seconds);
        TaskOptions options;
        options.footer = QLatin1String(each.footer);
        options.url = QLatin1String(each.url);
        options.seconds = each.seconds;
        onceShown([&](QDialog& dialog) {
            EXPECT_EQ(text(dialog, "count"), QLatin1String(each.count));
            EXPECT_EQ(text(dialog, "laURL"), QLatin1String(each.address));
            EXPECT_EQ(text(dialog, "footer"), QLatin1String(each.footer));
            if (auto* link = dialog.findChild<QLabel*>(QStringLiteral("laURL"))) emit link->linkActivated(options.url);
            press(dialog, "Chiudi");
        });
        MessaggioTask(QStringLiteral("Testo"), platform::MB_INFORMATION, QStringLiteral("Avviso"), &options);
    }
    EXPECT_EQ(opened_,
              (QStringList{QStringLiteral("https://example.org/?a=1&b=2"), QStringLiteral("https://example.org")}));
}

TEST_F(RealTask, OnlyAddressesOfTheWebAreOpened) {
    for (const char* address : {"", "   ", "file:///etc/passwd", "/bin/sh", "javascript:alert(1)", "C:\\a.exe"}) {
        SCOPED_TRACE(address);
        EXPECT_FALSE(platform::openWebAddress(QLatin1String(address)));
    }
    EXPECT_TRUE(opened_.isEmpty());
    EXPECT_TRUE(platform::openWebAddress(QStringLiteral(" www.studio.it ")));
    EXPECT_TRUE(platform::openWebAddress(QStringLiteral("mailto:studio@example.org")));
    EXPECT_EQ(opened_,
              (QStringList{QStringLiteral("http://www.studio.it"), QStringLiteral("mailto:studio@example.org")}));
}
