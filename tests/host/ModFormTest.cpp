#include "host/modForm.h"
#include "host/frmOggetti.h"
#include "host/modIcone.h"
#include "platform/Files.h"
#include "platform/FormRegistry.h"
#include "platform/SpecialFolders.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDialog>
#include <QGuiApplication>
#include <QLabel>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QTextEdit>
#include <QTimer>
#include <gtest/gtest.h>

namespace {

class WindowGeometry : public testing::Test {
protected:
    WindowGeometry() { platform::setApplicationDataFolder(folder_.path()); }
    ~WindowGeometry() override { platform::setApplicationDataFolder(QString()); }

    QString file() const {
        return folder_.filePath(QStringLiteral("Lumetra/Tessara 5000 V6/Corvala/frmProva.geometry"));
    }
    static std::unique_ptr<QWidget> window() {
        auto form = std::make_unique<QWidget>();
        form->setObjectName(QStringLiteral("frmProva"));
        form->setGeometry(40, 50, 300, 200);
        return form;
    }

    QTemporaryDir folder_;
};

} // namespace

TEST_F(WindowGeometry, ComesBackAsItWasLeft) {
    auto before = window();
    before->move(60, 70);
    before->resize(420, 310);
    SalvaGeometria(before.get());
    EXPECT_EQ(platform::files::read(file()),
              QByteArray("WindowsState=0\r\nWidth=420\r\nHeight=310\r\nLeft=60\r\nTop=70\r\n"));
    auto after = window();
    CaricaGeometria(after.get());
    EXPECT_EQ(after->geometry(), QRect(60, 70, 420, 310));

    before->setWindowState(Qt::WindowMaximized);
    SalvaGeometria(before.get());
    CaricaGeometria(after.get());
    EXPECT_TRUE(after->isMaximized());
}

TEST_F(WindowGeometry, PassesOverNonsenseAndStaysOnTheScreen) {
    auto form = window();
    CaricaGeometria(form.get());
    EXPECT_EQ(form->geometry(), QRect(40, 50, 300, 200)) << "without a file the window stays as designed";
    SalvaGeometria(form.get());

    const struct {
        const char* text;
        QRect expected;
    } cases[] = {
        {"", {40, 50, 300, 200}},
        {"Width=abc\r\nHeight=\r\nLeft\r\n", {40, 50, 300, 200}},
        {"Width=-5\r\nHeight=0\r\n", {40, 50, 300, 200}},
        {"Width=999999999999\r\nHeight=250\r\n", {40, 50, 300, 250}},
        {"WindowState=2\r\nWidth=400\r\n", {40, 50, 400, 200}}, // the key of the file is another
        {"Colore=3\r\nWidth=1=2\r\nTop=90", {40, 90, 300, 200}},
        {"\xff\xfe\x01=\r\r\n==\nWindowsState=\xc3\x28\r\nLeft=1e9\r\nTop=nan", {40, 50, 300, 200}},
        {"WindowsState=77\r\nWidth=1.000\r\nWidth=500", {40, 50, 500, 200}},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.text);
        ASSERT_TRUE(platform::files::writeAtomically(file(), each.text));
        form = window();
        CaricaGeometria(form.get());
        EXPECT_EQ(form->geometry(), each.expected);
        EXPECT_FALSE(form->isMaximized());
    }
    ASSERT_TRUE(platform::files::writeAtomically(file(), "WindowsState=1\r\nWidth=420"));
    QDialog withoutButton;
    withoutButton.setObjectName(QStringLiteral("frmProva"));
    CaricaGeometria(&withoutButton);
    EXPECT_FALSE(withoutButton.isMinimized()) << "a modal window nobody sees";
    EXPECT_EQ(withoutButton.width(), 420);
    form = window();
    CaricaGeometria(form.get());
    EXPECT_TRUE(form->isMinimized());
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    for (const char* text : {"Left=20000\r\nTop=20000", "Left=-20000\r\nTop=-20000", "Width=30000\r\nHeight=30000",
                             "Left=40\r\nTop=-40"}) { // the last with its title above the screen
        SCOPED_TRACE(text);
        ASSERT_TRUE(platform::files::writeAtomically(file(), text));
        form = window();
        CaricaGeometria(form.get());
        EXPECT_TRUE(screen.contains(form->geometry().topLeft()));
        EXPECT_LE(form->width(), screen.width());
        EXPECT_LE(form->height(), screen.height());
    }
}

TEST_F(WindowGeometry, AWindowThatKeepsItIsFoundAsItWasLeft) {
    auto form = window();
    keepGeometry(form.get());
    form->show();
    form->move(70, 80);
    form->resize(360, 240);
    form->close();
    form = window();
    keepGeometry(form.get());
    EXPECT_EQ(form->size(), QSize(360, 240));
    EXPECT_EQ(form->pos(), QPoint(70, 80));
    form.reset(); // a window that was never shown keeps nothing

    // A window that needs more than the screen has is not cut on its second opening.
    ASSERT_TRUE(platform::files::remove(file()));
    const QSize large = QGuiApplication::primaryScreen()->availableSize() + QSize(300, 200);
    for (int round = 0; round < 2; ++round) {
        form = window();
        form->resize(large);
        keepGeometry(form.get());
        form->show();
        EXPECT_EQ(form->size(), large);
        form->close();
    }
}

TEST(ModForm, AWindowOpensNoHigherThanTheScreenBelowItsTitle) {
    QDialog form;
    resizeToScreen(&form, QSize(1280, 300));
    EXPECT_EQ(form.size(), QSize(1280, 300));
    resizeToScreen(&form, QSize(1280, 5000));
    EXPECT_EQ(form.width(), 1280);
    EXPECT_LT(form.height(), form.screen()->availableGeometry().height());
    EXPECT_GT(form.height(), form.screen()->availableGeometry().height() - 60);
}

TEST(ModForm, AWindowIsKnownAndItsTitledAreasAreOpaque) {
    EXPECT_EQ(TitoloForm(QStringLiteral("Prova")), QStringLiteral("Prova. Tessara 5000. CORVALA"));
    QWidget form;
    form.setObjectName(QStringLiteral("frmProva"));
    QLabel area(&form);
    area.setObjectName(QStringLiteral("laTitoloArea"));
    QLabel other(&form);
    InizializzaForm(&form);
    EXPECT_EQ(platform::FormRegistry::find(QStringLiteral("frmProva")), &form);
    EXPECT_TRUE(area.autoFillBackground());
    EXPECT_FALSE(other.autoFillBackground());
}

TEST(ModForm, AWindowWithoutItsCloseEntryClosesOnlyByItself) {
    const auto closesByFrame = [](QWidget& form) {
        QCloseEvent closing;
        QSpontaneKeyEvent::setSpontaneous(&closing);
        qApp->notify(&form, &closing);
        return closing.isAccepted();
    };
    QWidget form;
    DisabilitaChiudi(&form, true);
    form.show();
    EXPECT_FALSE(form.windowFlags() & Qt::WindowCloseButtonHint);
    EXPECT_FALSE(closesByFrame(form));
    DisabilitaChiudi(&form, false);
    EXPECT_TRUE(form.isVisible());
    EXPECT_TRUE(closesByFrame(form));
    DisabilitaChiudi(&form, true);
    EXPECT_TRUE(form.close());

    QDialog question;
    auto* text = new QTextEdit(&question);
    for (const bool byButtonsOnly : {true, false}) {
        DisabilitaChiudi(&question, byButtonsOnly);
        question.show();
        QTest::keyClick(text, Qt::Key_Escape);
        EXPECT_EQ(question.isVisible(), byButtonsOnly);
    }
}

TEST(ModIcone, EveryStateHasAMarkOfItsOwn) {
    QList<QImage> images;
    for (const int index : {2, 3, 5}) {
        const QImage picture = stateIcon(index).pixmap(16, 16).toImage();
        EXPECT_GT(qAlpha(picture.pixel(8, 2)), 0) << index;
        EXPECT_FALSE(images.contains(picture)) << index;
        images << picture;
    }
    EXPECT_TRUE(stateIcon(0).isNull());
}

TEST(FrmOggetti, RefreshesAtEveryMinuteOfTheSetting) {
    std::optional<int> minutes;
    int refresh = 0;
    bool offMeanwhile = false;
    bool isBroken = false;
    frmOggetti* form = nullptr;
    frmOggetti objects({[&] { return minutes; },
                        [&] {
                            ++refresh;
                            offMeanwhile = !form->findChild<QTimer*>(QStringLiteral("Timer1"))->isActive();
                            if (isBroken) throw std::runtime_error("archivio");
                        }});
    form = &objects;
    auto* timer = objects.findChild<QTimer*>(QStringLiteral("Timer1"));
    ASSERT_NE(timer, nullptr);
    EXPECT_EQ(timer->interval(), 60000);
    const auto tick = [&](int times) {
        for (int i = 0; i < times; ++i)
            objects.Timer1_Timer();
    };
    minutes = 5;
    tick(7);
    EXPECT_EQ(refresh, 0) << "the timer is off until the module turns it on";
    objects.setTimerActive(true);
    tick(4);
    EXPECT_EQ(refresh, 0);
    tick(1);
    EXPECT_EQ(refresh, 1);
    EXPECT_TRUE(offMeanwhile);
    EXPECT_TRUE(timer->isActive());
    tick(4);
    EXPECT_EQ(refresh, 1);
    tick(1);
    EXPECT_EQ(refresh, 2);
    minutes = 5;
    isBroken = true;
    tick(5);
    EXPECT_EQ(refresh, 3);
    EXPECT_TRUE(timer->isActive());
    isBroken = false;
    tick(5);
    EXPECT_EQ(refresh, 4) << "one that failed is followed by the next";
    tick(3);
    minutes = 2;
    tick(1);
    EXPECT_EQ(refresh, 5) << "a setting that was lowered under the count";
    minutes.reset();
    tick(20);
    EXPECT_TRUE(timer->isActive()) << "no configuration, nothing happens";
    minutes = 0;
    tick(1);
    EXPECT_FALSE(timer->isActive());
    EXPECT_EQ(refresh, 5);
}
