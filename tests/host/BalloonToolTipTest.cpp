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

QWidget* fumetto(const QWidget& finestra) {
    return finestra.findChild<QWidget*>(QStringLiteral("fumetto"));
}

} // namespace

TEST(ClsBalloonToolTip, PointsAtItsControlUntilItIsTakenAway) {
    QWidget finestra;
    finestra.resize(400, 300);
    QLineEdit campo(&finestra);
    campo.move(150, 40);
    clsBalloonToolTip balloon;
    EXPECT_FALSE(balloon.Mostra()) << "there is nothing to point at";
    balloon.setControllo(&campo);
    balloon.setTitolo(QStringLiteral("Numero già usato"));
    balloon.setTesto(QStringLiteral("Il prossimo numero libero è <0008>."));
    balloon.setIcona(platform::MB_WARNING);
    balloon.setRitardo(0);
    EXPECT_FALSE(balloon.Mostra()) << "the control is not on the screen";
    finestra.show();
    ASSERT_TRUE(balloon.Mostra());
    ASSERT_TRUE(balloon.Visibile());
    const QWidget* mostrato = fumetto(finestra);
    ASSERT_NE(mostrato, nullptr);
    EXPECT_EQ(mostrato->findChild<QLabel*>(QStringLiteral("titolo"))->text(), balloon.Titolo());
    EXPECT_EQ(mostrato->findChild<QLabel*>(QStringLiteral("testo"))->text(), balloon.Testo());
    EXPECT_FALSE(mostrato->findChild<QLabel*>(QStringLiteral("icona"))->pixmap().isNull());
    EXPECT_GT(mostrato->y(), campo.mapToGlobal(QPoint(0, 0)).y());

    balloon.setTesto(QStringLiteral("Altro"));
    EXPECT_TRUE(balloon.Crea());
    EXPECT_FALSE(balloon.Visibile()) << "what is new shows only when it is asked to";
    ASSERT_TRUE(balloon.Mostra());
    EXPECT_EQ(finestra.findChildren<QWidget*>(QStringLiteral("fumetto")).size(), 1);
    QTest::mouseClick(fumetto(finestra), Qt::LeftButton);
    EXPECT_FALSE(balloon.Visibile());
    ASSERT_TRUE(balloon.Mostra());
    balloon.Rimuovi();
    EXPECT_EQ(fumetto(finestra), nullptr);
}

TEST(ClsBalloonToolTip, GoesAfterItsDelayAndWithItsWindow) {
    clsBalloonToolTip balloon;
    {
        QWidget finestra;
        QLineEdit campo(&finestra);
        // At the lower edge of the screen there is room only above.
        finestra.move(0, finestra.screen()->availableGeometry().bottom() - 40);
        finestra.show();
        balloon.setControllo(&campo);
        balloon.setTesto(QStringLiteral("Testo"));
        balloon.setRitardo(20);
        ASSERT_TRUE(balloon.Mostra());
        EXPECT_LT(fumetto(finestra)->y(), campo.mapToGlobal(QPoint(0, 0)).y());
        EXPECT_TRUE(QTest::qWaitFor([&] { return !balloon.Visibile(); }, 2000));
        ASSERT_TRUE(balloon.Mostra());
        finestra.hide();
        EXPECT_FALSE(balloon.Visibile());
        finestra.show();
        balloon.setRitardo(0);
        ASSERT_TRUE(balloon.Mostra());
    }
    EXPECT_FALSE(balloon.Visibile());
    EXPECT_EQ(balloon.Controllo(), nullptr);
    EXPECT_FALSE(balloon.Mostra());
    balloon.Rimuovi();
}
