#include "ReportSample.h"

#include "desk/data/Database.h"
#include "desk/data/FreeData.h"
#include "desk/report/ReportViewer.h"
#include "platform/Files.h"
#include "support/ScriptedDialogs.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QLabel>
#include <QLineEdit>
#include <QPrintPreviewWidget>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QWheelEvent>

namespace {

class ReportViewer : public testing::Test {
protected:
    ReportViewer()
        : database_(desk::Database::open(desk::DatabaseUrl::parse(u8("sqlite:") + folder_.filePath(u8("studio.db")))))
        , archive_(*database_, u8("prova"))
        , viewer_(archive_) {}

    static QString invoiceId() { return u8("{54D96C47-35BA-45AE-AE9B-245B0B7D02E3}"); }
    QString path(const char* name) const { return folder_.filePath(u8(name)); }
    static QStringList pagesIn(const QString& path) {
        return sample::pagesOf(platform::files::read(path).value_or(QByteArray()));
    }

    void putLayout(const QString& id, const QString& xml) {
        host::ItemDati item{id, u8("Certificati/Odontoiatria"), u8("Nostra"), xml};
        ASSERT_TRUE(archive_.Salva(item, true));
    }

    /// Opens the preview and works in it until it is closed.
    bool preview(const sample::Variables& variables, const std::function<void(QDialog&)>& work, bool atOnce = true) {
        bool wasOpen = false;
        QTimer::singleShot(0, qApp, [&] {
            auto* window = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!window) return;
            wasOpen = window->objectName() == u8("frmAnteprima");
            EXPECT_TRUE(QTest::qWaitForWindowExposed(window));
            work(*window);
            QTest::keyClick(window, Qt::Key_Escape);
            EXPECT_FALSE(window->isVisible()) << "Escape does not close the preview";
            if (window->isVisible()) window->reject();
        });
        viewer_.view(invoiceId(), variables, atOnce, nullptr);
        return wasOpen;
    }

    QTemporaryDir folder_;
    std::unique_ptr<desk::Database> database_;
    desk::FreeData archive_;
    desk::ReportViewer viewer_;
    ScriptedDialogs dialogs_;
};

template <class Control>
Control* in(QDialog& window, const char* name) {
    auto* control = window.findChild<Control*>(u8(name));
    EXPECT_NE(control, nullptr) << name;
    return control;
}

void press(QDialog& window, const char* name) {
    QTest::mouseClick(in<QWidget>(window, name), Qt::LeftButton);
}

void turnWheel(QWidget* viewport, int notches, Qt::KeyboardModifiers modifiers) {
    const QPointF at = QRectF(viewport->rect()).center();
    QWheelEvent event(at, viewport->mapToGlobal(at), QPoint(), QPoint(0, 120 * notches), Qt::NoButton, modifiers,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(viewport, &event);
}

} // namespace

TEST_F(ReportViewer, TurnsThePagesAsAPersonWould) {
    EXPECT_TRUE(preview(sample::document(u8("Fattura."), 60), [](QDialog& window) {
        auto* page = in<QLineEdit>(window, "tbPagina");
        auto* view = in<QPrintPreviewWidget>(window, "pbPagina");
        auto* pages = view->findChild<QGraphicsView*>();
        EXPECT_EQ(window.windowTitle(), u8("Anteprima di stampa: Fattura 2025-0042"));
        EXPECT_EQ(in<QLabel>(window, "laPagine")->text(), u8("di 3"));
        EXPECT_FALSE(in<QLabel>(window, "laStato")->isVisible());
        EXPECT_EQ(page->text(), u8("1"));
        EXPECT_FALSE(in<QWidget>(window, "cbPrima")->isEnabled());
        const QImage first = pages->viewport()->grab().toImage();
        press(window, "cbSuccessiva");
        EXPECT_EQ(page->text(), u8("2"));
        EXPECT_NE(pages->viewport()->grab().toImage(), first) << "another number over the same page";
        press(window, "cbUltima");
        EXPECT_EQ(page->text(), u8("3"));
        EXPECT_FALSE(in<QWidget>(window, "cbSuccessiva")->isEnabled());
        press(window, "cbPrecedente");
        press(window, "cbPrima");
        EXPECT_EQ(page->text(), u8("1"));
        for (const auto& [typed, shown] :
             {std::pair("3", "3"), {"99", "3"}, {"", "3"}, {"0", "1"}, {"x", "1"}, {"2", "2"}}) {
            page->setFocus();
            page->selectAll();
            QTest::keyClick(page, Qt::Key_Delete);
            QTest::keyClicks(page, u8(typed));
            QTest::keyClick(page, Qt::Key_Return);
            EXPECT_TRUE(window.isVisible());
            view->setFocus();
            EXPECT_EQ(page->text(), u8(shown)) << typed;
        }
        QTest::keyClick(pages, Qt::Key_End);
        EXPECT_EQ(page->text(), u8("3"));
        QTest::keyClick(pages, Qt::Key_Home);
        EXPECT_EQ(page->text(), u8("1"));
        for (int i = 0; i < 40 && view->currentPage() == 1; ++i)
            turnWheel(pages->viewport(), -3, Qt::NoModifier);
        EXPECT_EQ(page->text(), u8("2")) << "the wheel stops at the end of a page";
    }));
    EXPECT_TRUE(dialogs_.messages.isEmpty());
}

TEST_F(ReportViewer, ZoomsWithinItsLimitsAndShowsPagesSideBySide) {
    EXPECT_TRUE(preview(sample::document(u8("Fattura."), 60), [](QDialog& window) {
        auto* view = in<QPrintPreviewWidget>(window, "pbPagina");
        auto* pages = view->findChild<QGraphicsView*>();
        auto* zoom = in<QComboBox>(window, "cbZoom");
        EXPECT_EQ(zoom->currentText(), u8("Larghezza pagina"));
        EXPECT_FALSE(pages->horizontalScrollBar()->isVisible());
        const qreal fitted = view->zoomFactor();
        window.resize(window.width() + 200, 700);
        QApplication::processEvents();
        EXPECT_GT(view->zoomFactor(), fitted) << "a fit does not follow the window";
        const auto type = [&](const char* text) {
            zoom->lineEdit()->setFocus();
            zoom->lineEdit()->selectAll();
            QTest::keyClicks(zoom->lineEdit(), u8(text));
            QTest::keyClick(zoom->lineEdit(), Qt::Key_Return);
        };
        type("120");
        EXPECT_EQ(zoom->currentText(), u8("120%"));
        turnWheel(pages->viewport(), 1, Qt::ControlModifier);
        EXPECT_EQ(zoom->currentText(), u8("130%"));
        turnWheel(pages->viewport(), -20, Qt::ControlModifier);
        EXPECT_EQ(zoom->currentText(), u8("50%"));
        EXPECT_FALSE(in<QWidget>(window, "cbRiduci")->isEnabled());
        press(window, "cbIngrandisci");
        EXPECT_EQ(zoom->currentText(), u8("75%"));
        type("1000%");
        EXPECT_EQ(zoom->currentText(), u8("300%"));
        type("molto");
        EXPECT_EQ(zoom->currentText(), u8("300%"));
        press(window, "cbUltima");
        for (const char* layout : {"Pagina intera", "Pagine affiancate", "Tutte le pagine"}) {
            type(layout);
            EXPECT_EQ(zoom->currentText(), u8(layout));
            EXPECT_EQ(in<QLineEdit>(window, "tbPagina")->text(), u8("3")) << "the page is lost: " << layout;
        }
        const QRectF all = pages->mapToScene(pages->viewport()->rect()).boundingRect();
        EXPECT_TRUE(all.contains(pages->scene()->itemsBoundingRect())) << "not all pages are in sight";
        press(window, "cbIngrandisci");
        EXPECT_EQ(view->viewMode(), QPrintPreviewWidget::SinglePageView);
    }));
}

TEST_F(ReportViewer, SavesAndPrintsWhatItShows) {
    const sample::Variables variables = sample::document(u8("Fattura."), 60);
    EXPECT_TRUE(preview(variables, [this](QDialog& window) {
        press(window, "cbSalva");
        EXPECT_EQ(dialogs_.proposed, u8("Fattura 2025-0042.pdf"));
        dialogs_.file = path("fattura.pdf");
        press(window, "cbSalva");
        EXPECT_EQ(pagesIn(dialogs_.file).size(), 3);
        EXPECT_TRUE(dialogs_.messages.isEmpty());
        dialogs_.file = path("manca/fattura.pdf");
        press(window, "cbSalva");
        ASSERT_EQ(dialogs_.messages.size(), 1);
        EXPECT_TRUE(dialogs_.messages[0].contains(u8("non si può scrivere")));

        dialogs_.paper = path("carta.pdf");
        dialogs_.choose = [](QPrinter& printer) {
            printer.setPrintRange(QPrinter::PageRange);
            printer.setFromTo(2, 3);
        };
        press(window, "cbStampa");
        EXPECT_EQ(dialogs_.offeredPages, 3);
        const QStringList printed = pagesIn(dialogs_.paper);
        ASSERT_EQ(printed.size(), 2);
        EXPECT_TRUE(printed[0].contains(u8("Pagina 2 di 3")));
    }));
}

TEST_F(ReportViewer, PrintsAtOnceWithoutAPreview) {
    dialogs_.paper = path("carta.pdf");
    viewer_.view(invoiceId(), sample::document(u8("Fattura."), 5), false, nullptr);
    EXPECT_EQ(pagesIn(dialogs_.paper).size(), 1);
    dialogs_.paper = path("manca/carta.pdf");
    viewer_.view(invoiceId(), sample::document(u8("Fattura."), 5), false, nullptr);
    ASSERT_EQ(dialogs_.messages.size(), 1);
    EXPECT_TRUE(dialogs_.messages[0].contains(u8("non è riuscita")));
}

TEST_F(ReportViewer, LooksAtThePagesInsteadOfPrintingThem) {
    dialogs_.wantsPreview = true;
    const auto look = [this](QDialog& window) {
        dialogs_.paper = path("carta.pdf");
        press(window, "cbStampa");
        EXPECT_EQ(pagesIn(dialogs_.paper).size(), 1) << "the preview offers itself";
    };
    EXPECT_TRUE(preview(sample::document(u8("Fattura."), 5), look, false));
}

TEST_F(ReportViewer, NamesInThePreviewWhatIsMissing) {
    sample::Variables variables = sample::document(u8("Fattura."), 5);
    variables.remove(u8("Fattura.APagare"));
    EXPECT_TRUE(preview(variables, [](QDialog& window) {
        auto* state = in<QLabel>(window, "laStato");
        EXPECT_TRUE(state->isVisible());
        EXPECT_EQ(state->text(), u8("Mancano le variabili: Fattura.APagare."));
    }));
}

TEST_F(ReportViewer, LeavesThePracticesOwnLayoutsAlone) {
    const QString own = sample::layoutOf(u8("<testo>Nostra carta</testo>"));
    putLayout(invoiceId(), own);
    viewer_.provideLayouts();
    const QList<host::ItemDati> items = archive_.Lista(u8("Certificati"), true);
    ASSERT_EQ(items.size(), 3);
    for (const host::ItemDati& item : items)
        EXPECT_TRUE(item.Cartella.toLower().contains(u8("odontoiatria")));
    EXPECT_EQ(archive_.Carica(invoiceId())->file, own);
    EXPECT_EQ(std::count_if(items.begin(), items.end(),
                            [](const auto& i) { return i.descrizione.toLower() == u8("riepilogo fatture emesse"); }),
              1);
    dialogs_.paper = path("carta.pdf");
    viewer_.view(invoiceId(), {}, false, nullptr);
    EXPECT_EQ(pagesIn(dialogs_.paper).value(0).trimmed(), u8("Nostra carta"));
}

TEST_F(ReportViewer, OffersTheShippedLayoutForABrokenOrMissingOne) {
    const sample::Variables invoice = sample::document(u8("Fattura."), 5);
    putLayout(u8("nostra"), u8("<report><corpo>"));
    const struct {
        const char* id;
        sample::Variables variables;
        platform::Answer answer;
        bool printed;
        const char* says;
    } cases[] = {{"nostra", invoice, platform::Answer::Yes, true, "Nostra\u201d non si pu\u00f2 usare"},
                 {"nostra", invoice, platform::Answer::No, false, "modello \u201cFattura\u201d fornito"},
                 {"persa", invoice, platform::Answer::Yes, true, "non \u00e8 nell'archivio"},
                 {"persa", {{u8("Altro"), 1}}, platform::Answer::Yes, false, "non \u00e8 nell'archivio"}};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.says);
        dialogs_.messages.clear();
        dialogs_.answer = each.answer;
        dialogs_.paper = path("carta.pdf");
        QFile::remove(dialogs_.paper);
        viewer_.view(u8(each.id), each.variables, false, nullptr);
        ASSERT_EQ(dialogs_.messages.size(), 1);
        EXPECT_TRUE(dialogs_.messages[0].contains(u8(each.says))) << dialogs_.messages[0].toStdString();
        EXPECT_EQ(QFile::exists(dialogs_.paper), each.printed);
    }
}
