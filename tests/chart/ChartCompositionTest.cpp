#include "chart/ChartComposition.h"
#include "chart/GraphicFile.h"
#include "support/ServiceFile.h"

#include <QFile>
#include <gtest/gtest.h>

namespace {

ChartRow row(const char* tooth, const char* service, const char* start = "", const char* end = "") {
    return {ToothList::fromSelection(u8(tooth)), u8(service), u8("testo ") + u8(service), u8(start), u8(end)};
}

QString layers(const ComposedTooth& tooth) {
    QStringList shown;
    for (const ToothLayer& layer : tooth.layers)
        shown.append(layer.service);
    return shown.join(u',');
}

/// Services A to D on 1.1 and 1.2.
QByteArray twoTeeth(GraphicFile& file) {
    QByteArray services;
    for (const char* name : {"A", "B", "C", "D"})
        services += QByteArray("<trattamento id=\"") + name + "\" image=\"" + file.picture(name) +
                    "\" left=\"30\" top=\"-15\"/>";
    return "<tooth id=\"1.1\">" + services + "</tooth><tooth id=\"1.2\">" + services + "</tooth>";
}

} // namespace

TEST(ChartComposition, LayersFillInRowOrderAndTheFourthServiceIsDropped) {
    GraphicFile file;
    ASSERT_TRUE(file.load(twoTeeth(file)));
    ChartComposition composition(file.graphical());
    const struct {
        const char* name;
        QList<ChartRow> rows;
        const char* first;  ///< Layers of 1.1.
        const char* second; ///< Of 1.2.
    } cases[] = {
        {"no rows", {}, ",,", ",,"},
        {"no tooth", {row("", "A")}, ",,", ",,"},
        {"four", {row("1.1", "A"), row("1.1", "B"), row("1.1", "C"), row("1.1", "D")}, "A,B,C", ",,"},
        {"the same twice", {row("1.1", "A"), row("1.1", "A")}, "A,A,", ",,"},
        {"several teeth", {row("+1.1;1.2", "A"), row("1.2", "B")}, "A,,", "A,B,"},
        {"unknown tooth", {row("+9.9;1.1", "A")}, "A,,", ",,"},
        {"list without plus", {row("1.1;1.2", "A")}, "A,,", "A,,"},
        {"service without picture", {row("1.1", "Z"), row("1.1", "B")}, "B,,", ",,"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        composition.composeServices(c.rows);
        EXPECT_EQ(layers(composition.tooth(7)), u8(c.first));
        EXPECT_EQ(layers(composition.tooth(6)), u8(c.second));
    }
    composition.composeServices({row("1.1", "A")});
    const ToothLayer& layer = composition.tooth(7).layers[0];
    EXPECT_EQ(layer.left, 30);
    EXPECT_EQ(layer.top, -15);
    EXPECT_EQ(layer.picture, file.shown("A"));

    QFile::remove(file.path("A"));
    composition.composeServices({row("1.1", "A"), row("1.1", "B")});
    EXPECT_EQ(layers(composition.tooth(7)), u8("B,,")) << "a missing file takes no layer";
}

TEST(ChartComposition, StatusMarksFollowTheRowsInOrder) {
    GraphicFile file;
    ASSERT_TRUE(file.load({}));
    const auto finished = [](const char* service) { return row("1.1", service, "01/02/2024", "03/02/2024"); };
    const auto open = [](const char* service) { return row("1.1", service, "01/02/2024"); };
    const auto planned = [](const char* service) { return row("1.1", service); };
    const struct {
        QList<ChartRow> rows;
        const char* open;  ///< Tag with open rows first.
        const char* worst; ///< With the worst state asked for.
    } cases[] = {
        {{}, "", ""},
        {{finished("A")}, "CA", "CA"},
        {{finished("A"), finished("B")}, "CA", "CA"},
        {{finished("A"), planned("B")}, "UB", "UB"},
        {{planned("A"), finished("B")}, "UA", "UA"},
        {{open("A"), finished("B")}, "AA", "AA"},
        {{finished("A"), open("B")}, "AB", "AB"},
        {{open("A"), open("B")}, "AA", "AA"},
        {{planned("A"), planned("B")}, "UB", "UB"},
        {{open("A"), planned("B")}, "AA", "UB"},
        {{planned("A"), open("B")}, "AB", "AB"},
        {{open("A"), planned("B"), open("C")}, "AA", "AC"},
        {{row("1.1", "A", "", "03/02/2024")}, "UA", "UA"}, // an end alone does not start a work
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << "case " << (&c - cases));
        ChartComposition composition(file.graphical());
        composition.composeMarks(c.rows);
        EXPECT_EQ(composition.tooth(7).statusTag(), u8(c.open));
        ChartComposition::Options options;
        options.worstStateWins = true;
        ChartComposition worst(file.graphical(), options);
        worst.composeMarks(c.rows);
        EXPECT_EQ(worst.tooth(7).statusTag(), u8(c.worst));
        worst.composeMarks({});
        EXPECT_TRUE(worst.tooth(7).statusTag().isEmpty()) << "marks of rows that are gone go too";
    }
}

TEST(ChartComposition, OwnStatusPicturesAreTakenWhereTheFileExists) {
    GraphicFile file;
    ASSERT_TRUE(file.load({}, {},
                          "<trattamento id=\"A\" redImage=\"" + file.picture("rosso") +
                              "\" yellowImage=\"[app.path]\\manca.png\" greenImage=\"\"/>"));
    ChartComposition composition(file.graphical());
    composition.composeMarks({row("1.1", "A"), row("1.2", "A", "1/1/2024"), row("1.3", "A", "1/1/2024", "2/1/2024")});
    EXPECT_EQ(composition.tooth(7).statePicture, file.shown("rosso"));
    EXPECT_TRUE(composition.tooth(6).statePicture.isEmpty());
    EXPECT_TRUE(composition.tooth(5).statePicture.isEmpty());
    EXPECT_EQ(composition.tooth(5).state, ToothState::Finished);
}

TEST(ChartComposition, SituationsComeFromThePlanAndGoBackUnchanged) {
    GraphicFile file;
    ASSERT_TRUE(file.load("<tooth id=\"1.1\"><situazione id=\"\" image=\"" + file.picture("sano") +
                          "\"/><situazione id=\"3\" image=\"" + file.picture("carie") +
                          "\"/><situazione id=\"4\" image=\"[app.path]\\manca.png\"/></tooth>"));
    ChartComposition composition(file.graphical());
    composition.composeTeeth(u8("7:3:Carie;52:3:no;x:3:no;;8:3:"));
    EXPECT_EQ(composition.tooth(7).picture, file.shown("carie"));
    EXPECT_EQ(composition.tooth(7).text, u8("Carie"));
    EXPECT_TRUE(composition.tooth(0).situation.isEmpty()) << "an index that is no number is not tooth 0";
    EXPECT_EQ(composition.mouthSituation(), u8("7:3:Carie;8:3:"));
    for (const char* plain : {"7:4:", "7:99:", "7::nota"}) {
        composition.composeTooth(*ToothSituation::fromEntry(u8(plain)));
        EXPECT_EQ(composition.tooth(7).picture, file.shown("sano")) << plain;
        EXPECT_EQ(composition.tooth(7).situation, u8(plain));
    }
    composition.composeTooth(*ToothSituation::fromEntry(u8("7:0:")));
    EXPECT_TRUE(composition.tooth(7).situation.isEmpty());
    composition.composeTeeth(QString());
    EXPECT_TRUE(composition.mouthSituation().isEmpty());
}

TEST(ChartComposition, EvidenceBesideTheChart) {
    ServiceFile catalogue;
    catalogue.putEntries(ServiceFile::entry("A") + ServiceFile::entry("B", "inEvidenza=\"0\" breve=\"No\"") +
                         ServiceFile::entry("C", "inEvidenza=\"1\" breve=\"Ci\""));
    GraphicFile file;
    ASSERT_TRUE(file.load({}, "<trattamento id=\"A\" image=\"a\" eyeIndex=\"2\" eyeImage=\"ea\"/>"
                              "<trattamento id=\"B\" image=\"b\" eyeIndex=\"2\" eyeImage=\"eb\"/>"));
    ChartComposition::Options options;
    options.showShortList = true;
    options.showAtAGlance = true;
    options.stripPlaces = 2;
    options.shortListPlaces = 1;
    const QList<ChartRow> rows{row("1.1", "A", "1/1/2024"), row("1.2", "A"), row("", "B"), row("", "C")};

    ChartComposition composition(file.graphical(), options);
    composition.composeServices(rows);
    ASSERT_EQ(composition.strip().size(), 2) << "each row takes a box, a repeated service too, until none is left";
    EXPECT_EQ(composition.strip()[0].service, u8("A"));
    EXPECT_EQ(composition.strip()[0].state, ToothState::Open);
    EXPECT_EQ(composition.strip()[1].state, ToothState::ToStart);
    ASSERT_EQ(composition.shortList().size(), 1);
    EXPECT_EQ(composition.shortList()[0].shortText, u8("Vis"));
    EXPECT_EQ(composition.atAGlance()[2].service, u8("B")) << "the last of two services on one place stays";
    EXPECT_TRUE(composition.atAGlance()[0].service.isEmpty());

    options.shortListPlaces = 5;
    ChartComposition roomy(file.graphical(), options);
    roomy.composeServices(rows);
    ASSERT_EQ(roomy.shortList().size(), 2) << "each service in evidence once";
    EXPECT_EQ(roomy.shortList()[1].service, u8("C"));

    ChartComposition without(file.graphical());
    without.composeServices(rows);
    EXPECT_EQ(without.strip().size(), 3);
    EXPECT_TRUE(without.shortList().isEmpty());
    EXPECT_TRUE(without.atAGlance()[2].service.isEmpty());
    EXPECT_EQ(without.phase(), u8("step 5.b"));
}
