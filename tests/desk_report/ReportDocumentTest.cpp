#include "ReportSample.h"

#include "desk/report/ReportLayoutError.h"
#include "desk/report/ReportTable.h"

#include <QRegularExpression>
#include <algorithm>

namespace {

const QString& xmlOf(int shipped) {
    return desk::ReportLayouts::shipped().at(shipped).xml;
}

QString textOf(const desk::ReportBox& box) {
    QStringList lines;
    for (const desk::ReportItem& item : box.items())
        if (!item.text.isEmpty()) lines.append(item.text);
    return lines.join(u'\n');
}

/// Everything in one row of the page, from left to right: row and words.
const desk::ReportItem* itemWith(const desk::ReportBox& page, const QString& text) {
    for (const desk::ReportItem& item : page.items())
        if (item.text == text) return &item;
    ADD_FAILURE() << "not on the page: " << text.toStdString();
    return nullptr;
}

} // namespace

TEST(ReportDocument, KeepsEveryRowWholeUnderAHeadOnEachPage) {
    const struct {
        int rows;
        int pages;
    } cases[] = {{5, 1}, {60, 3}, {400, 15}};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.rows);
        const desk::ReportDocument document = sample::fill(xmlOf(0), sample::document(u8("Fattura."), each.rows));
        EXPECT_TRUE(document.missing.isEmpty()) << document.missing.join(u' ').toStdString();
        const QStringList pages = sample::pagesOf(document.toPdf());
        EXPECT_EQ(pages.size(), each.pages);
        EXPECT_EQ(document.pageCount(), pages.size());
        int rowsSeen = 0;
        for (qsizetype i = 0; i < pages.size(); ++i) {
            SCOPED_TRACE(i);
            EXPECT_TRUE(pages[i].contains(u8("Pagina %1 di %2").arg(i + 1).arg(pages.size())));
            const qsizetype onPage = pages[i].count(QRegularExpression(u8("\\bR\\d{4}\\b")));
            rowsSeen += static_cast<int>(onPage);
            EXPECT_EQ(pages[i].count(u8("Codice  ")), onPage > 0 ? 1 : 0) << "rows without their head";
            EXPECT_TRUE(pages[i].contains(u8("2025-0042"))) << "a page that does not say what it belongs to";
            // The second line of a row that wraps is on the page of its first.
            EXPECT_EQ(pages[i].count(u8("due o più")), pages[i].count(u8("superfici (dente 1.6)")));
        }
        EXPECT_EQ(rowsSeen, each.rows);
        EXPECT_TRUE(pages.last().contains(u8("Da pagare")));
        EXPECT_GT(pages.last().count(QRegularExpression(u8("\\bR\\d{4}\\b"))), 0) << "totals alone on a page";
    }
}

TEST(ReportDocument, SpellsEuroAccentsAndLigaturesInThePdf) {
    const QString text = sample::pagesOf(sample::fill(xmlOf(0), sample::document(u8("Fattura."), 2)).toPdf()).value(0);
    for (const char* wanted : {"€ 140,00", "Bèrgamo", "D'ANGELO Nicolò", "Otturazione in composito", "Contanti",
                               "Terapia endodontica", "P.IVA 01234567890", "superfici", "Imposta di bollo assolta"})
        EXPECT_TRUE(text.contains(u8(wanted))) << wanted;
}

TEST(ReportDocument, FillsEstimateAndSummaryByTheirOwnNames) {
    const desk::ReportDocument estimate = sample::fill(xmlOf(1), sample::document(u8("Preventivo."), 3));
    EXPECT_TRUE(estimate.missing.isEmpty()) << estimate.missing.join(u' ').toStdString();
    EXPECT_EQ(estimate.title, u8("Preventivo 2025-0042"));
    EXPECT_TRUE(textOf(estimate.pages[0]).contains(u8("Imponibile\nImposta"))) << "head under the misplaced point";
    EXPECT_FALSE(textOf(estimate.pages[0]).contains(u8("Bollo"))) << "an empty amount keeps its line";

    const desk::ReportDocument summary = sample::fill(xmlOf(2), sample::summary(101));
    EXPECT_TRUE(summary.missing.isEmpty()) << summary.missing.join(u' ').toStdString();
    EXPECT_GT(summary.pageSize().width(), summary.pageSize().height());
    const QString last = sample::pagesOf(summary.toPdf()).value(summary.pageCount() - 1);
    EXPECT_TRUE(last.contains(QRegularExpression(u8("Imponibile IVA +14140,00"))));
    EXPECT_TRUE(last.contains(QRegularExpression(u8("Bolli +12,00"))));
}

TEST(ReportDocument, ShowsUnknownVariablesAsNothingAndNamesThem) {
    sample::Variables some = sample::document(u8("Fattura."), 2);
    some.remove(u8("Fattura.Totale"));
    some.remove(u8("Fattura.APagare"));
    some.remove(u8("Fattura.Corpo.Righi"));
    // Parts that are only there at times are not missing when they are not.
    some.remove(u8("Fattura.BolloNote"));
    const desk::ReportDocument document = sample::fill(xmlOf(0), some);
    EXPECT_EQ(document.missing, (QStringList{u8("Fattura.Corpo.Righi"), u8("Fattura.Totale"), u8("Fattura.APagare")}));
    EXPECT_FALSE(textOf(document.pages[0]).contains(u8("Totale fattura")));
    EXPECT_FALSE(textOf(document.pages[0]).contains(u8("Da pagare")));
    EXPECT_FALSE(textOf(document.pages[0]).contains(u'{'));

    const desk::ReportDocument blank = sample::fill(xmlOf(0), {});
    EXPECT_EQ(blank.pageCount(), 1);
    EXPECT_TRUE(blank.missing.contains(u8("Fattura.Numero")));
    EXPECT_FALSE(blank.missing.contains(u8("Pagina")));
}

TEST(ReportDocument, ReadsPlaceholdersAndConditions) {
    const sample::Variables v{{u8("A.B"), u8("x {C}")}, {u8("Vuota"), QString()}};
    const desk::ReportDocument document =
        sample::fill(sample::layoutOf(u8("<testo>[{A.B}] [{ A.B }] {{no} {aperta</testo><testo se=\"Vuota\">mai</testo>"
                                         "<testo se=\"Ignota\">mai</testo><testo se=\"A.B\">{Ignota}sempre</testo>")),
                     v);
    // What a variable holds is a text, never a placeholder.
    EXPECT_EQ(textOf(document.pages[0]), u8("[x {C}] [x {C}] {no} {aperta\nsempre"));
    EXPECT_EQ(document.missing, QStringList{u8("Ignota")});
}

TEST(ReportDocument, LosesNothingOfTextsThatAreTooLong) {
    const QString word = QString(500, u'W');
    const QString story = QString(u8("parola ")).repeated(3000);
    const sample::Variables v{{u8("G.Header"), u8("Nome,Importo")},
                              {u8("G.Percentuali"), u8("80,20")},
                              {u8("G.Allineamenti"), u8("L,R")},
                              {u8("G.Righi"), sample::row({word, u8("€ 1,00")}) + QChar(8) +
                                                  sample::row({story, u8("€ 2,00")}) + QChar(8) +
                                                  sample::row({u8("fine"), u8("€ 3,00")})},
                              {u8("N"), u8("D'Angelo \"100%\" 😀 <b> ") + word}};
    const desk::ReportDocument document =
        sample::fill(sample::layoutOf(u8("<colonne><colonna><testo>{N}</testo></colonna><colonna/></colonne>"
                                         "<griglia variabile=\"G\"/>")),
                     v);
    QString all;
    qreal lowest = 0;
    for (const desk::ReportBox& page : document.pages) {
        all += textOf(page) + u'\n';
        for (const desk::ReportItem& item : page.items())
            lowest = std::max(lowest, item.rect.bottom());
        EXPECT_EQ(textOf(page).count(u8("Nome\nImporto")), 1);
    }
    EXPECT_EQ(all.count(u8("parola")), 3000);
    EXPECT_EQ(all.count(u'W'), 1000);
    EXPECT_TRUE(all.contains(u8("D'Angelo \"100%\" 😀 <b>")));
    EXPECT_GT(document.pageCount(), 2);
    EXPECT_LE(lowest, document.pageSize().height() - desk::fromMillimetres(10) + 1) << "text below the margin";
}

TEST(ReportTable, SharesTheWidthAndAlignsTheColumns) {
    const desk::ReportTableLook look{{}, Qt::black, {}, Qt::gray};
    const auto widths = [&](const char* percentages, const QString& rows) {
        const desk::ReportTable table({u8("A,B,C"), u8(percentages), u8("L,C,R"), rows}, look, 1000);
        QStringList list;
        for (const qreal width : table.columnWidths())
            list.append(QString::number(qRound(width)));
        return list.join(u',');
    };
    const QString brief = sample::row({u8("a"), u8("b"), u8("1")});
    const struct {
        const char* percentages;
        const char* expected;
    } cases[] = {{"20,50,30", "200,500,300"}, {"20,30,20", "200,300,200"},   {"40,80,80", "200,400,400"},
                 {"50", "500,250,250"},       {"", "333,333,333"},           {"x,50,30", "200,500,300"},
                 {"-5,50,30", "200,500,300"}, {"20,50,30,40", "200,500,300"}};
    for (const auto& each : cases)
        EXPECT_EQ(widths(each.percentages, brief), u8(each.expected)) << each.percentages;
    // An amount stays in one line: its column takes what it needs from the one with room.
    const desk::ReportTable narrow(
        {u8("A,B,C"), u8("45,50,5"), u8("L,L,R"), sample::row({u8("a"), u8("b"), u8("€ 12345,00")})}, look, 3000);
    EXPECT_GT(narrow.columnWidths()[2], 150);
    EXPECT_EQ(std::count_if(narrow.rows()[0].items().begin(), narrow.rows()[0].items().end(),
                            [](const desk::ReportItem& item) { return item.text == u8("€ 12345,00"); }),
              1);

    const desk::ReportTable table({u8("A,B,C"), u8("40,20,40"), u8("L,C,R"), brief}, look, 1000);
    const auto middle = itemWith(table.rows()[0], u8("b"))->rect.center().x();
    EXPECT_LT(itemWith(table.rows()[0], u8("a"))->rect.left(), 50);
    EXPECT_NEAR(middle, 500, 2);
    EXPECT_GT(itemWith(table.rows()[0], u8("1"))->rect.right(), 950);
}

TEST(ReportTable, ReadsRowsByTheirMarks) {
    const desk::ReportTableLook look{{}, Qt::black, {}, Qt::gray};
    const struct {
        QString rows;
        std::size_t count;
        int tooLong;
    } cases[] = {{QString(), 0, 0},
                 {u8("a"), 1, 0},
                 {sample::row({u8("a"), u8("b")}) + QChar(8), 1, 0},
                 {u8("a") + QChar(8) + QChar(8) + u8("c"), 3, 0},
                 {sample::row({u8("a"), u8("b"), u8("c")}) + QChar(8) + u8("d"), 2, 1}};
    for (const auto& each : cases) {
        const desk::ReportTable table({u8("A,B"), u8("50,50"), u8("L,R"), each.rows}, look, 1000);
        EXPECT_EQ(table.rows().size(), each.count);
        EXPECT_EQ(table.rowsWithMoreFields(), each.tooLong);
    }
}

TEST(ReportLayout, TellsWhatIsWrongWithABrokenLayout) {
    const auto body = [](const char* inside) { return sample::layoutOf(u8(inside)); };
    const struct {
        QString xml;
        const char* says;
    } cases[] = {
        {QString(), "XML"},
        {u8("Gentile paziente"), "XML"},
        {u8("<report><corpo></report>"), "Riga 1"},
        {u8("<report><corpo>a & b</corpo></report>"), "XML"},
        {u8("<!DOCTYPE report [<!ENTITY e 'x'>]><report><corpo/></report>"), "XML"},
        {u8("<fattura/>"), "<fattura>"},
        {u8("<report/>"), "<corpo>"},
        {u8("<report><corpo/><corpo/></report>"), "due volte"},
        {body("<tabella/>"), "<tabella> \u00e8 sconosciuto"},
        {body("<voce/>"), "<voce> non pu\u00f2 stare dentro <corpo>"},
        {body("<testo dimensioni=\"9\">x</testo>"), "\u201cdimensioni\u201d"},
        {body("<testo dimensione=\"grande\">x</testo>"), "un numero da 4 a 72"},
        {body("<testo dimensione=\"900\">x</testo>"), "un numero da 4 a 72"},
        {body("<testo grassetto=\"forse\">x</testo>"), "\u201csi\u201d o \u201cno\u201d"},
        {body("<testo colore=\"verdolino\">x</testo>"), "un colore"},
        {body("<testo allineamento=\"giustificato\">x</testo>"), "sinistra, centro, destra"},
        {body("<griglia/>"), "variabile"},
        {u8("<report><pagina margini=\"10; 10\"/><corpo/></report>"), "quattro numeri"},
        {u8("<report><pagina formato=\"A9\"/><corpo/></report>"), "A4, A5"},
        {u8("<report><pagina formato=\"A5\" margini=\"0; 80; 0; 80\"/><corpo/></report>"), "margini"},
        {u8("<report><pagina margini=\"80; 0; 80; 0\"/><intestazione><testo sopra=\"200\">x</testo></intestazione>"
            "<corpo/></report>"),
         "non lasciano spazio"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.xml.toStdString());
        try {
            sample::fill(each.xml, {});
            ADD_FAILURE() << "was taken for a good layout";
        } catch (const desk::ReportLayoutError& error) {
            EXPECT_TRUE(error.text().contains(u8(each.says))) << error.text().toStdString();
        }
    }
}

TEST(ReportLogo, StandsInTheHeadFromTextOrFile) {
    QTemporaryDir folder;
    QImage picture(60, 20, QImage::Format_RGB32);
    picture.fill(Qt::red);
    const QString path = folder.filePath(u8("logo.png"));
    ASSERT_TRUE(picture.save(path));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString base64 = QString::fromLatin1(file.readAll().toBase64());
    const struct {
        QString logo;
        bool shown;
        bool noted;
    } cases[] = {{u8("<logo altezza=\"10\">%1</logo>").arg(base64), true, false},
                 {u8("<logo altezza=\"10\" file=\"%1\"/>").arg(path), true, false},
                 {u8("<logo file=\"non-c-e.png\"/>"), false, true},
                 {u8("<logo file=\"non-c-e.png\" facoltativo=\"si\"/>"), false, false},
                 {u8("<logo>bm9uIMOoIHVuIGRpc2Vnbm8=</logo>"), false, true}};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.logo.left(60).toStdString());
        const desk::ReportDocument document = sample::fill(sample::layoutOf(each.logo), {});
        EXPECT_EQ(document.notes.size(), each.noted ? 1 : 0);
        const auto& items = document.pages[0].items();
        ASSERT_EQ(items.size(), each.shown ? 1U : 0U);
        if (!each.shown) continue;
        EXPECT_NEAR(items[0].rect.height(), desk::fromMillimetres(10), 0.5);
        EXPECT_NEAR(items[0].rect.width(), desk::fromMillimetres(30), 0.5) << "out of proportion";
    }
}
