#include "chart/GraphicFile.h"
#include "chart/PictureFiles.h"
#include "chart/modDenti.h"
#include "platform/XmlDocument.h"
#include "support/Places.h"

#include <QSet>
#include <gtest/gtest.h>

TEST(Graphical, LookUpsAnswerFalseWithoutAFile) {
    GraphicFile file;
    QString image = u8("prima");
    qint16 left = 3;
    qint16 top = 3;
    const auto allFalse = [&] {
        clsGraphical& graphical = file.graphical();
        EXPECT_FALSE(graphical.ImmagineServizio(u8("1.1"), u8("A"), left, top, image));
        EXPECT_FALSE(graphical.SituazioneDente(u8("1.1"), QString(), image));
        EXPECT_FALSE(graphical.ImmagineInEvidenza(u8("A"), image));
        EXPECT_FALSE(graphical.ImmagineAllOcchio(u8("A"), left, image));
        EXPECT_FALSE(graphical.ServizioConStatus(u8("A"), u8("RED"), image));
        EXPECT_TRUE(image.isEmpty());
        EXPECT_EQ(left, 0);
    };
    allFalse();
    EXPECT_FALSE(file.graphical().Init(file.folder() + u8("/manca.xml")));
    EXPECT_EQ(file.graphical().LastError(), u8("Non è stato possibile caricare il file di configurazione"));
    ASSERT_TRUE(file.load("<tooth id=\"1.1\"><situazione id=\"\" image=\"x\"/></tooth>"));
    EXPECT_TRUE(file.graphical().LastError().isEmpty());
    EXPECT_TRUE(file.graphical().SituazioneDente(u8("1.1"), QString(), image));
    EXPECT_FALSE(file.load("<tooth id='1.1'>")) << "not well-formed";
    allFalse();
}

TEST(Graphical, TheFirstExactMatchCounts) {
    GraphicFile file;
    ASSERT_TRUE(file.load("<tooth id=\"1.1\">"
                          "<trattamento id=\"A\" image=\"[app.path]\\a.png\" left=\"-150\" top=\"300\"/>"
                          "<trattamento id=\"A\" image=\"dopo\"/>"
                          "<trattamento id=\"B\" image=\"\"/><trattamento id=\"B\" image=\"dopo\"/>"
                          "<trattamento id=\"C\" image=\"[APP.PATH]c\"/>"
                          "</tooth><tooth id=\"1.1\"><trattamento id=\"D\" image=\"d\"/></tooth>"));
    QString image;
    qint16 left = 0;
    qint16 top = 0;
    const auto found = [&](const char* service) {
        return file.graphical().ImmagineServizio(u8("1.1"), u8(service), left, top, image);
    };
    ASSERT_TRUE(found("A"));
    EXPECT_EQ(image, file.folder() + u8("\\a.png"));
    EXPECT_EQ(left, -150);
    EXPECT_EQ(top, 300);
    EXPECT_FALSE(found("B")) << "an empty picture of the first entry is not made up for by a later one";
    EXPECT_FALSE(found("a")) << "ids keep their case";
    EXPECT_FALSE(found("D")) << "only the first tooth of an id";
    ASSERT_TRUE(found("C"));
    EXPECT_EQ(image, u8("[APP.PATH]c")) << "the token is lower case";
    sAppPath = u8("/altrove");
    ASSERT_TRUE(found("A"));
    EXPECT_EQ(image, u8("/altrove\\a.png")) << "replaced at each look-up";
}

TEST(Graphical, MarksAtAGlanceNeedAPlaceFromZeroToEleven) {
    GraphicFile file;
    ASSERT_TRUE(file.load({}, "<trattamento id=\"A\" image=\"i\" eyeIndex=\"12\" eyeImage=\"no\"/>"
                              "<trattamento id=\"B\" image=\"\" eyeIndex=\"0\" eyeImage=\"b\"/>"
                              "<trattamento id=\"A\" eyeIndex=\"\" eyeImage=\"no\"/>"
                              "<trattamento id=\"A\" eyeIndex=\"-1\" eyeImage=\"no\"/>"
                              "<trattamento id=\"A\" eyeIndex=\"dieci\" eyeImage=\"no\"/>"
                              "<trattamento id=\"A\" eyeIndex=\"65541\" eyeImage=\"no\"/>"
                              "<trattamento id=\"A\" eyeIndex=\"11\" eyeImage=\"a\"/>"
                              "<trattamento id=\"C\" image=\"c\" eyeIndex=\"3\" eyeImage=\"\"/>"));
    qint16 index = -1;
    QString image;
    ASSERT_TRUE(file.graphical().ImmagineAllOcchio(u8("A"), index, image));
    EXPECT_EQ(index, 11);
    EXPECT_EQ(image, u8("a"));
    ASSERT_TRUE(file.graphical().ImmagineAllOcchio(u8("B"), index, image));
    EXPECT_EQ(index, 0);
    EXPECT_FALSE(file.graphical().ImmagineAllOcchio(u8("C"), index, image));
    EXPECT_TRUE(file.graphical().ImmagineInEvidenza(u8("C"), image));
    EXPECT_FALSE(file.graphical().ImmagineInEvidenza(u8("B"), image));
}

TEST(Graphical, StatusColoursIgnoreCaseAndOtherColoursAreRefused) {
    GraphicFile file;
    ASSERT_TRUE(file.load({}, {}, "<trattamento id=\"A\" redImage=\"r\" yellowImage=\"y\" greenImage=\"g\"/>"));
    const struct {
        const char* colour;
        const char* image;
    } cases[] = {{"green", "g"}, {"GREEN", "g"}, {"Red", "r"}, {"yellow", "y"}, {"blue", ""}, {"", ""}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.colour);
        QString image;
        EXPECT_EQ(file.graphical().ServizioConStatus(u8("A"), u8(c.colour), image), *c.image != '\0');
        EXPECT_EQ(image, u8(c.image));
    }
}

TEST(GraphicalTemplate, NamesPicturesThatAreThere) {
    clsGraphical graphical;
    const QString previous = sAppPath;
    sAppPath = places::data();
    ASSERT_TRUE(graphical.Init(places::data("/Graphical.xml")));
    platform::XmlDocument configuration;
    ASSERT_TRUE(configuration.loadFile(places::data("/Config.xml")));
    QStringList situations{QString()};
    for (const auto& node : configuration.select("//situazioniDenti/situazione"))
        situations.append(node.attribute("id", QString()));
    EXPECT_GT(situations.size(), 5);
    for (int index = 0; index < TOOTH_COUNT; ++index) {
        for (const QString& situation : situations) {
            QString image;
            EXPECT_TRUE(graphical.SituazioneDente(DenteDaIndice(index), situation, image)) << situation.toStdString();
            EXPECT_TRUE(platform::files::exists(image)) << image.toStdString();
        }
    }
    platform::XmlDocument document;
    ASSERT_TRUE(document.loadFile(places::data("/Graphical.xml")));
    QSet<QString> named;
    for (const auto& node : document.select("//*[@image or @redImage]")) {
        for (const char* attribute : {"image", "eyeImage", "redImage", "yellowImage", "greenImage"})
            named.insert(node.attribute(attribute, QString()).replace(u8("[app.path]"), sAppPath));
    }
    named.remove(QString());
    EXPECT_GT(named.size(), 500);
    for (const QString& image : named) // each is a picture, not only a file
        EXPECT_FALSE(loadPicture(image, QSize(40, 84), 1).isNull()) << image.toStdString();
    sAppPath = previous;
}
