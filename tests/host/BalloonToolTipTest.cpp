#include "host/clsBalloonToolTip.h"
#include "platform/Dialogs.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QTest>
#include <QWidget>
#include <gtest/gtest.h>

namespace {

QWidget* balloonOf(const QWidget& window) {
    return window.findChild<QWidget*>(QStringLiteral("fumetto"));
}

} // namespace

TEST(ClsBalloonToolTip, PointsAtItsControlUntilItIsTakenAway) {
    QWidget window;
    window.resize(400, 300);
    QLineEdit field(&window);
    field.move(150, 40);
    clsBalloonToolTip balloon;
    EXPECT_FALSE(balloon.show()) << "there is nothing to point at";
    balloon.setControl(&field);
    balloon.setTitle(QStringLiteral("Numero già usato"));
    balloon.setText(QStringLiteral("Il prossimo numero libero è <0008>."));
    balloon.setIcon(platform::MB_WARNING);
    balloon.setDelay(0);
    EXPECT_FALSE(balloon.show()) << "the control is not on the screen";
    window.show();
    ASSERT_TRUE(balloon.show());
    ASSERT_TRUE(balloon.isVisible());
    const QWidget* shown = balloonOf(window);
    ASSERT_NE(shown, nullptr);
    EXPECT_EQ(shown->findChild<QLabel*>(QStringLiteral("titolo"))->text(), balloon.title());
    EXPECT_EQ(shown->findChild<QLabel*>(QStringLiteral("testo"))->text(), balloon.text());
    EXPECT_FALSE(shown->findChild<QLabel*>(QStringLiteral("icona"))->pixmap().isNull());
    EXPECT_GT(shown->y(), field.mapToGlobal(QPoint(0, 0)).y());

    balloon.setText(QStringLiteral("Altro"));
    EXPECT_TRUE(balloon.create());
    EXPECT_FALSE(balloon.isVisible()) << "what is new shows only when it is asked to";
    ASSERT_TRUE(balloon.show());
    EXPECT_EQ(window.findChildren<QWidget*>(QStringLiteral("fumetto")).size(), 1);
    QTest::mouseClick(balloonOf(window), Qt::LeftButton);
    EXPECT_FALSE(balloon.isVisible());
    ASSERT_TRUE(balloon.show());
    balloon.remove();
    EXPECT_EQ(balloonOf(window), nullptr);
}

TEST(ClsBalloonToolTip, GoesAfterItsDelayAndWithItsWindow) {
    clsBalloonToolTip balloon;
    {
        QWidget window;
        QLineEdit field(&window);
        // At the lower edge of the screen there is room only above.
        window.move(0, window.screen()->availableGeometry().bottom() - 40);
        window.show();
        balloon.setControl(&field);
        balloon.setText(QStringLiteral("Testo"));
        balloon.setDelay(20);
        ASSERT_TRUE(balloon.show());
        EXPECT_LT(balloonOf(window)->y(), field.mapToGlobal(QPoint(0, 0)).y());
        EXPECT_TRUE(QTest::qWaitFor([&] { return !balloon.isVisible(); }, 2000));
        ASSERT_TRUE(balloon.show());
        window.hide();
        EXPECT_FALSE(balloon.isVisible());
        window.show();
        balloon.setDelay(0);
        ASSERT_TRUE(balloon.show());
    }
    EXPECT_FALSE(balloon.isVisible());
    EXPECT_EQ(balloon.control(), nullptr);
    EXPECT_FALSE(balloon.show());
    balloon.remove();
}
