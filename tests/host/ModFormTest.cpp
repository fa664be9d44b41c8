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

class Geometria : public testing::Test {
protected:
    Geometria() { platform::setApplicationDataFolder(cartella_.path()); }
    ~Geometria() override { platform::setApplicationDataFolder(QString()); }

    QString file() const {
        return cartella_.filePath(QStringLiteral("Lumetra/Tessara 5000 V6/Corvala/frmProva.geometry"));
    }
    static std::unique_ptr<QWidget> finestra() {
        auto form = std::make_unique<QWidget>();
        form->setObjectName(QStringLiteral("frmProva"));
        form->setGeometry(40, 50, 300, 200);
        return form;
    }

    QTemporaryDir cartella_;
};

} // namespace

TEST_F(Geometria, ComesBackAsItWasLeft) {
    auto prima = finestra();
    prima->move(60, 70);
    prima->resize(420, 310);
    SalvaGeometria(prima.get());
    EXPECT_EQ(platform::files::read(file()),
              QByteArray("WindowsState=0\r\nWidth=420\r\nHeight=310\r\nLeft=60\r\nTop=70\r\n"));
    auto dopo = finestra();
    CaricaGeometria(dopo.get());
    EXPECT_EQ(dopo->geometry(), QRect(60, 70, 420, 310));

    prima->setWindowState(Qt::WindowMaximized);
    SalvaGeometria(prima.get());
    CaricaGeometria(dopo.get());
    EXPECT_TRUE(dopo->isMaximized());
}

TEST_F(Geometria, PassesOverNonsenseAndStaysOnTheScreen) {
    auto form = finestra();
    CaricaGeometria(form.get());
    EXPECT_EQ(form->geometry(), QRect(40, 50, 300, 200)) << "without a file the window stays as designed";
    SalvaGeometria(form.get());

    const struct {
        const char* testo;
        QRect atteso;
    } casi[] = {
        {"", {40, 50, 300, 200}},
        {"Width=abc\r\nHeight=\r\nLeft\r\n", {40, 50, 300, 200}},
        {"Width=-5\r\nHeight=0\r\n", {40, 50, 300, 200}},
        {"Width=999999999999\r\nHeight=250\r\n", {40, 50, 300, 250}},
        {"WindowState=2\r\nWidth=400\r\n", {40, 50, 400, 200}}, // the key of the file is another
        {"Colore=3\r\nWidth=1=2\r\nTop=90", {40, 90, 300, 200}},
        {"\xff\xfe\x01=\r\r\n==\nWindowsState=\xc3\x28\r\nLeft=1e9\r\nTop=nan", {40, 50, 300, 200}},
        {"WindowsState=77\r\nWidth=1.000\r\nWidth=500", {40, 50, 500, 200}},
    };
    for (const auto& caso : casi) {
        SCOPED_TRACE(caso.testo);
        ASSERT_TRUE(platform::files::writeAtomically(file(), caso.testo));
        form = finestra();
        CaricaGeometria(form.get());
        EXPECT_EQ(form->geometry(), caso.atteso);
        EXPECT_FALSE(form->isMaximized());
    }
    ASSERT_TRUE(platform::files::writeAtomically(file(), "WindowsState=1\r\nWidth=420"));
    QDialog senzaBottone;
    senzaBottone.setObjectName(QStringLiteral("frmProva"));
    CaricaGeometria(&senzaBottone);
    EXPECT_FALSE(senzaBottone.isMinimized()) << "a modal window nobody sees";
    EXPECT_EQ(senzaBottone.width(), 420);
    form = finestra();
    CaricaGeometria(form.get());
    EXPECT_TRUE(form->isMinimized());
    const QRect schermo = QGuiApplication::primaryScreen()->availableGeometry();
    for (const char* testo : {"Left=20000\r\nTop=20000", "Left=-20000\r\nTop=-20000", "Width=30000\r\nHeight=30000",
                              "Left=40\r\nTop=-40"}) { // the last with its title above the screen
        SCOPED_TRACE(testo);
        ASSERT_TRUE(platform::files::writeAtomically(file(), testo));
        form = finestra();
        CaricaGeometria(form.get());
        EXPECT_TRUE(schermo.contains(form->geometry().topLeft()));
        EXPECT_LE(form->width(), schermo.width());
        EXPECT_LE(form->height(), schermo.height());
    }
}

TEST_F(Geometria, AWindowThatKeepsItIsFoundAsItWasLeft) {
    auto form = finestra();
    ConservaGeometria(form.get());
    form->show();
    form->move(70, 80);
    form->resize(360, 240);
    form->close();
    form = finestra();
    ConservaGeometria(form.get());
    EXPECT_EQ(form->size(), QSize(360, 240));
    EXPECT_EQ(form->pos(), QPoint(70, 80));
    form.reset(); // a window that was never shown keeps nothing

    // A window that needs more than the screen has is not cut on its second opening.
    ASSERT_TRUE(platform::files::remove(file()));
    const QSize grande = QGuiApplication::primaryScreen()->availableSize() + QSize(300, 200);
    for (int volta = 0; volta < 2; ++volta) {
        form = finestra();
        form->resize(grande);
        ConservaGeometria(form.get());
        form->show();
        EXPECT_EQ(form->size(), grande);
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
    QLabel altra(&form);
    InizializzaForm(&form);
    EXPECT_EQ(platform::FormRegistry::find(QStringLiteral("frmProva")), &form);
    EXPECT_TRUE(area.autoFillBackground());
    EXPECT_FALSE(altra.autoFillBackground());
}

TEST(ModForm, AWindowWithoutItsCloseEntryClosesOnlyByItself) {
    const auto dalTelaio = [](QWidget& form) {
        QCloseEvent chiusura;
        QSpontaneKeyEvent::setSpontaneous(&chiusura);
        qApp->notify(&form, &chiusura);
        return chiusura.isAccepted();
    };
    QWidget form;
    DisabilitaChiudi(&form, true);
    form.show();
    EXPECT_FALSE(form.windowFlags() & Qt::WindowCloseButtonHint);
    EXPECT_FALSE(dalTelaio(form));
    DisabilitaChiudi(&form, false);
    EXPECT_TRUE(form.isVisible());
    EXPECT_TRUE(dalTelaio(form));
    DisabilitaChiudi(&form, true);
    EXPECT_TRUE(form.close());

    QDialog domanda;
    auto* testo = new QTextEdit(&domanda);
    for (const bool soloDaiBottoni : {true, false}) {
        DisabilitaChiudi(&domanda, soloDaiBottoni);
        domanda.show();
        QTest::keyClick(testo, Qt::Key_Escape);
        EXPECT_EQ(domanda.isVisible(), soloDaiBottoni);
    }
}

TEST(ModIcone, EveryStateHasAMarkOfItsOwn) {
    QList<QImage> immagini;
    for (const int indice : {2, 3, 5}) {
        const QImage immagine = IconaStato(indice).pixmap(16, 16).toImage();
        EXPECT_GT(qAlpha(immagine.pixel(8, 2)), 0) << indice;
        EXPECT_FALSE(immagini.contains(immagine)) << indice;
        immagini << immagine;
    }
    EXPECT_TRUE(IconaStato(0).isNull());
}

TEST(FrmOggetti, RefreshesAtEveryMinuteOfTheSetting) {
    std::optional<int> minuti;
    int refresh = 0;
    bool spentoDurante = false;
    bool rotto = false;
    frmOggetti* form = nullptr;
    frmOggetti oggetti({[&] { return minuti; },
                        [&] {
                            ++refresh;
                            spentoDurante = !form->findChild<QTimer*>(QStringLiteral("Timer1"))->isActive();
                            if (rotto) throw std::runtime_error("archivio");
                        }});
    form = &oggetti;
    auto* timer = oggetti.findChild<QTimer*>(QStringLiteral("Timer1"));
    ASSERT_NE(timer, nullptr);
    EXPECT_EQ(timer->interval(), 60000);
    const auto tick = [&](int volte) {
        for (int i = 0; i < volte; ++i)
            oggetti.Timer1_Timer();
    };
    minuti = 5;
    tick(7);
    EXPECT_EQ(refresh, 0) << "the timer is off until the module turns it on";
    oggetti.setTimerAttivo(true);
    tick(4);
    EXPECT_EQ(refresh, 0);
    tick(1);
    EXPECT_EQ(refresh, 1);
    EXPECT_TRUE(spentoDurante);
    EXPECT_TRUE(timer->isActive());
    tick(4);
    EXPECT_EQ(refresh, 1);
    tick(1);
    EXPECT_EQ(refresh, 2);
    minuti = 5;
    rotto = true;
    tick(5);
    EXPECT_EQ(refresh, 3);
    EXPECT_TRUE(timer->isActive());
    rotto = false;
    tick(5);
    EXPECT_EQ(refresh, 4) << "one that failed is followed by the next";
    tick(3);
    minuti = 2;
    tick(1);
    EXPECT_EQ(refresh, 5) << "a setting that was lowered under the count";
    minuti.reset();
    tick(20);
    EXPECT_TRUE(timer->isActive()) << "no configuration, nothing happens";
    minuti = 0;
    tick(1);
    EXPECT_FALSE(timer->isActive());
    EXPECT_EQ(refresh, 5);
}
