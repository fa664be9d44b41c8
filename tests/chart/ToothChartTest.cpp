#include "chart/ToothChart.h"
#include "chart/ChartComposition.h"
#include "chart/EvidencePanel.h"
#include "chart/GraphicFile.h"
#include "chart/PictureLabel.h"
#include "chart/ToothBox.h"
#include "support/Places.h"

#include <QAccessible>
#include <QLabel>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace {

QWidget* part(const QWidget& widget, const char* name) {
    auto* found = widget.findChild<QWidget*>(u8(name));
    EXPECT_NE(found, nullptr) << name;
    return found;
}

QString tag(const QWidget* widget) {
    return widget->property("tag").toString();
}

} // namespace

TEST(ToothChart, ShowsTheCompositionToothByTooth) {
    GraphicFile file;
    ASSERT_TRUE(file.load("<tooth id=\"1.1\"><trattamento id=\"A\" image=\"" + file.picture("a", QSize(20, 40)) +
                          "\" left=\"150\" top=\"300\"/></tooth>"));
    ChartComposition composition(file.graphical());
    composition.composeTeeth(u8("7:3:Carie"));
    composition.composeServices({{ToothList({u8("1.1")}), u8("A"), {}, {}, {}}});
    composition.composeMarks(
        {{ToothList({u8("1.1")}), u8("A"), {}, u8("1/1/2024"), {}}, {ToothList({u8("4.1")}), u8("A"), {}, {}, {}}});
    ToothChart chart;
    chart.resize(chart.sizeHint());
    chart.show();
    chart.setComposition(composition);

    EXPECT_EQ(tag(part(chart, "imTooth(7)")), u8("7:3:Carie"));
    EXPECT_EQ(part(chart, "imTooth(7)")->toolTip(), u8("Carie"));
    const QWidget* layer = part(chart, "imTrt01(7)");
    EXPECT_EQ(tag(layer), u8("A"));
    EXPECT_TRUE(layer->isVisible());
    EXPECT_EQ(layer->pos() - part(chart, "imTooth(7)")->pos(), QPoint(10, 20)) << "twips to pixels";
    EXPECT_EQ(layer->size(), QSize(20, 40));
    EXPECT_FALSE(part(chart, "imTrt02(7)")->isVisible());
    EXPECT_FALSE(part(chart, "imTrt01(8)")->isVisible());

    const struct {
        const char* mark;
        const char* box;
        const char* tag;
        bool upper;
    } marks[] = {{"imStatusLavori(7)", "pbTooh(7)", "AA", true}, {"imStatusLavori(24)", "pbTooh(24)", "UA", false}};
    for (const auto& m : marks) {
        SCOPED_TRACE(m.mark);
        const QWidget* mark = part(chart, m.mark);
        const QWidget* box = part(chart, m.box);
        EXPECT_TRUE(mark->isVisible());
        EXPECT_EQ(tag(mark), u8(m.tag));
        EXPECT_EQ(mark->x(), (box->width() - mark->width()) / 2);
        EXPECT_EQ(mark->y(), m.upper ? box->height() - mark->height() - 16 : 16);
    }

    composition.composeServices({});
    composition.composeMarks({});
    chart.setComposition(composition);
    EXPECT_FALSE(layer->isVisible());
    EXPECT_TRUE(tag(layer).isEmpty());
    EXPECT_FALSE(part(chart, "imStatusLavori(7)")->isVisible());
}

TEST(ToothChart, AToothWithoutAPictureIsDrawnAsTheArtworkDrawsIt) {
    const QString previous = sAppPath;
    sAppPath = places::data();
    clsGraphical artwork;
    ASSERT_TRUE(artwork.Init(places::data("/Graphical.xml")));
    const clsGraphical nothing;
    ChartComposition pictures(artwork);
    ChartComposition bare(nothing);
    pictures.composeTeeth({});
    bare.composeTeeth({});
    for (int index = 0; index < TOOTH_COUNT; ++index) {
        QWidget panel;
        ToothBox named(index, &panel);
        ToothBox unnamed(index, &panel);
        named.resize(ToothBox::naturalSize(index));
        unnamed.resize(named.size());
        named.setTooth(pictures.tooth(index));
        unnamed.setTooth(bare.tooth(index));
        EXPECT_EQ(unnamed.grab().toImage(), named.grab().toImage()) << DenteDaIndice(index).toStdString();
    }
    sAppPath = previous;
}

TEST(PictureLabel, IsDrawnAnewForAScreenOfAnotherDensityOnly) {
    /// A label that can be moved between screens.
    class Moving : public PictureLabel {
    public:
        qreal ratio = 1;

    protected:
        int metric(PaintDeviceMetric asked) const override {
            if (asked == PdmDevicePixelRatio) return qRound(ratio);
            if (asked == PdmDevicePixelRatioScaled) return qRound(ratio * devicePixelRatioFScale());
            return PictureLabel::metric(asked);
        }
    };
    Moving label;
    QList<qreal> drawn;
    label.setDrawing(QSize(10, 10), [&](const QSize& size, qreal ratio) {
        drawn.append(ratio);
        QPixmap picture(size * ratio);
        picture.setDevicePixelRatio(ratio);
        picture.fill(Qt::red);
        return picture;
    });
    label.resize(20, 20);
    QImage screen(40, 40, QImage::Format_ARGB32);
    for (const qreal ratio : {1.0, 1.0, 2.0, 2.0, 1.5}) {
        label.ratio = ratio;
        label.render(&screen);
        EXPECT_EQ(label.pixmap().devicePixelRatio(), ratio);
        EXPECT_EQ(label.pixmap().deviceIndependentSize(), QSizeF(10, 10));
    }
    EXPECT_EQ(drawn, QList<qreal>({1, 2, 1.5}));
}

TEST(ToothChart, MarksExactlyTheTeethOfASelectionAndTellsWhichWasClicked) {
    ToothChart chart;
    chart.resize(chart.sizeHint());
    chart.show();
    for (const char* selection : {"1.1", "+1.2;1.1", "+1.1;9.9", ""}) {
        SCOPED_TRACE(selection);
        chart.setSelection(u8(selection));
        const QStringList expected = u8(selection).remove(u'+').split(u';');
        for (int index = 0; index < TOOTH_COUNT; ++index)
            EXPECT_EQ(chart.isMarked(index), expected.contains(DenteDaIndice(index))) << index;
    }
    QSignalSpy left(&chart, &ToothChart::toothClicked);
    QSignalSpy right(&chart, &ToothChart::toothRightClicked);
    QTest::mouseClick(part(chart, "imTooth(3)"), Qt::LeftButton);
    QTest::mouseClick(part(chart, "pbTooh(40)"), Qt::LeftButton);
    QTest::mouseClick(part(chart, "imTooth(51)"), Qt::RightButton);
    EXPECT_EQ(left, (QList<QVariantList>{{3}, {40}}));
    EXPECT_EQ(right, (QList<QVariantList>{{51}}));
    for (const bool marked : {false, true}) {
        chart.setSelection(marked ? u8("1.8") : QString());
        QWidget* box = part(chart, "pbTooh(0)");
        const QImage shown = box->grab().toImage();
        const QRgb frame = marked ? qRgb(255, 0, 0) : qRgb(128, 128, 128);
        const int middle = box->height() / 2;
        EXPECT_EQ(shown.pixel(0, middle), frame);
        EXPECT_EQ(shown.pixel(1, middle) == frame, marked) << "two pixels wide only where it marks";
    }
}

TEST(ToothChart, EveryToothIsReachableInANarrowWindowAndOnItsSide) {
    ToothChart chart;
    chart.resize(400, 330);
    chart.show();
    auto* bar = chart.findChild<QScrollBar*>(u8("hsDenti"));
    ASSERT_TRUE(bar->isVisible());
    bar->setValue(bar->maximum());
    const QWidget* panel = part(chart, "pbDenti");
    EXPECT_EQ(panel->x(), -bar->maximum());
    const QWidget* last = part(chart, "pbTooh(15)");
    EXPECT_LE(last->mapTo(&chart, last->rect().topRight()).x(), chart.width());
    for (const char* lowest : {"laDente(16)", "laDente(31)"}) {
        const QWidget* number = part(chart, lowest);
        EXPECT_LE(number->geometry().bottom(), bar->y()) << "the bar covers " << lowest;
    }

    chart.resize(1400, 700);
    EXPECT_FALSE(bar->isVisible());
    EXPECT_EQ(panel->x(), 0);
    for (int index = 0; index < TOOTH_COUNT; ++index) {
        const QRect box = chart.findChild<QWidget*>(u8("pbTooh(%1)").arg(index))->geometry();
        const int quadrant = toothQuadrant(index);
        const bool left = quadrant == 1 || quadrant == 4 || quadrant == 5 || quadrant == 8;
        EXPECT_EQ(box.center().x() < panel->width() / 2, left) << index;
        EXPECT_EQ(box.center().y() < panel->height() / 2, isUpper(index)) << index;
        EXPECT_TRUE(panel->rect().contains(box)) << index;
    }
}

TEST(ToothChart, TheKeyboardWalksTheArchesAndClicks) {
    ToothChart chart;
    chart.resize(400, 420);
    chart.show();
    QSignalSpy clicked(&chart, &ToothChart::toothClicked);
    QSignalSpy right(&chart, &ToothChart::toothRightClicked);
    const auto walk = [&](std::initializer_list<Qt::Key> keys) {
        for (Qt::Key key : keys)
            QTest::keyClick(&chart, key);
        QTest::keyClick(&chart, Qt::Key_Space);
        return DenteDaIndice(clicked.takeLast().first().toInt());
    };
    EXPECT_EQ(walk({}), u8("1.8"));
    EXPECT_EQ(walk({Qt::Key_Left, Qt::Key_Up, Qt::Key_Right}), u8("1.7")) << "nothing beyond the corner";
    EXPECT_EQ(walk({Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Down}), u8("5.4"));
    EXPECT_EQ(walk({Qt::Key_Down, Qt::Key_Down}), u8("4.4"));
    for (int step = 0; step < 20; ++step)
        QTest::keyClick(&chart, Qt::Key_Right);
    EXPECT_EQ(walk({}), u8("3.8"));
    const QWidget* last = part(chart, "pbTooh(16)");
    EXPECT_LE(last->mapTo(&chart, last->rect().topRight()).x(), chart.width()) << "the tooth is scrolled into sight";
    QTest::keyClick(&chart, Qt::Key_Menu);
    QTest::mouseClick(part(chart, "imTooth(10)"), Qt::LeftButton);
    QTest::keyClick(&chart, Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_EQ(right, (QList<QVariantList>{{16}, {10}})) << "the keyboard goes on from the mouse";
}

TEST(ToothChart, AnArrowNeverGoesMoreAsideThanAhead) {
    ToothChart chart;
    chart.resize(chart.sizeHint());
    chart.show();
    QSignalSpy clicked(&chart, &ToothChart::toothClicked);
    const struct {
        const char* from;
        Qt::Key key;
        const char* to;
    } cases[] = {
        {"1.6", Qt::Key_Right, "1.5"}, {"1.1", Qt::Key_Right, "2.1"}, {"5.1", Qt::Key_Right, "6.1"},
        {"1.5", Qt::Key_Down, "5.5"},  {"5.5", Qt::Key_Down, "8.5"},  {"4.6", Qt::Key_Up, "8.5"},
        {"6.5", Qt::Key_Right, "2.8"}, {"2.7", Qt::Key_Down, "6.5"},  {"1.8", Qt::Key_Up, "1.8"},
    };
    for (const auto& c : cases) {
        const QString box = u8("pbTooh(%1)").arg(IndiceDaDente(u8(c.from)));
        QTest::mouseClick(chart.findChild<QWidget*>(box), Qt::LeftButton);
        QTest::keyClick(&chart, c.key);
        QTest::keyClick(&chart, Qt::Key_Space);
        EXPECT_EQ(DenteDaIndice(clicked.takeLast().first().toInt()), u8(c.to)) << c.from << c.key;
    }
}

TEST(ToothChart, AScreenReaderIsToldTheToothItsStateAndWhereTheKeyboardIs) {
    const clsGraphical nothing;
    ChartComposition composition(nothing);
    composition.composeTeeth(u8("6:2:dolente"));
    composition.composeMarks({{ToothList({u8("1.2")}), u8("CORONA"), {}, u8("1/1/2024"), {}}});
    ToothChart chart;
    chart.setComposition(composition);
    chart.show();
    chart.activateWindow();
    chart.setFocus();
    ASSERT_TRUE(QTest::qWaitFor([&chart] { return chart.hasFocus(); }));
    const auto spoken = [](QWidget* widget, QAccessible::Text text) {
        QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(widget);
        return reader ? reader->text(text) : u8("no reader");
    };
    for (int index = 0; index < TOOTH_COUNT; ++index) {
        const QString tooth = u8("Dente ") + DenteDaIndice(index);
        EXPECT_TRUE(spoken(chart.box(index), QAccessible::Name).startsWith(tooth));
        EXPECT_TRUE(spoken(part(chart, qPrintable(u8("imTooth(%1)").arg(index))), QAccessible::Name).startsWith(tooth));
    }
    EXPECT_EQ(spoken(&chart, QAccessible::Name), u8("Schema dei denti"));
    EXPECT_EQ(spoken(&chart, QAccessible::Description), u8("Dente 1.8"));
    for (int step = 0; step < 6; ++step)
        QTest::keyClick(&chart, Qt::Key_Right);
    EXPECT_EQ(spoken(&chart, QAccessible::Description), u8("Dente 1.2, dolente, CORONA in corso"));
    chart.setSelection(u8("1.2"));
    EXPECT_EQ(spoken(&chart, QAccessible::Description), u8("Dente 1.2, dolente, CORONA in corso, evidenziato"));
}

TEST(EvidencePanel, EachEntryTellsItsService) {
    GraphicFile file;
    ASSERT_TRUE(file.load({}, "<trattamento id=\"A\" image=\"" + file.picture("a") + "\" eyeIndex=\"5\" eyeImage=\"" +
                                  file.picture("e") + "\"/><trattamento id=\"B\" image=\"[app.path]\\manca.png\"/>"));
    ChartComposition::Options options;
    options.showAtAGlance = true;
    ChartComposition composition(file.graphical(), options);
    composition.composeServices(
        {{{}, u8("B"), u8("Ponte"), {}, {}}, {{}, u8("A"), u8("Corona"), u8("1/1/2024"), u8("2/1/2024")}});
    EvidencePanel panel;
    panel.show();
    panel.setComposition(composition);
    auto* first = qobject_cast<QLabel*>(part(panel, "pbLavoriSeri(0)"));
    EXPECT_EQ(first->text(), u8("B")) << "a service whose picture is missing shows its code";
    EXPECT_EQ(first->toolTip(), u8("Ponte"));
    EXPECT_EQ(part(panel, "shLavoriSeri(0)")->palette().color(QPalette::WindowText), QColor(192, 192, 0));
    EXPECT_EQ(part(panel, "shLavoriSeri(1)")->palette().color(QPalette::WindowText), QColor(0, 192, 0));
    EXPECT_FALSE(part(panel, "pbLavoriSeri(2)")->isVisible());
    EXPECT_FALSE(part(panel, "pbEvidenziaInBreve")->isVisible());
    QSignalSpy clicked(&panel, &EvidencePanel::serviceClicked);
    QTest::mouseClick(first, Qt::LeftButton);
    QTest::mouseClick(part(panel, "imSaltaAllOcchio(5)"), Qt::LeftButton);
    EXPECT_EQ(clicked, (QList<QVariantList>{{u8("B")}, {u8("A")}}));
}
