#include "catalogues/modRaggrMerc.h"
#include "catalogues/modServizi.h"
#include "config/clsItemRaggMerc.h"
#include "platform/XmlDocument.h"
#include "support/Places.h"
#include "support/ServiceFile.h"
#include "support/Text.h"

#include <QFile>
#include <gtest/gtest.h>

namespace {

clsItemServizio sample(const char* id) {
    clsItemServizio item;
    item.ID = u8(id);
    item.descrizione = u8("Più \"visite\" & così");
    item.breve = u8("<breve>");
    item.UM = u8("NR");
    item.prezzo = 1234.5F;
    item.codiceIva = u8("ES");
    item.raggruppamento = u8("01");
    item.usabileInPianoTrattamento = true;
    item.statusLavori = u8("Impronta\r\nProva");
    return item;
}

int nodes(const ServiceFile& file) {
    platform::XmlDocument document;
    EXPECT_TRUE(document.loadFile(file.path()));
    return static_cast<int>(document.select("/servizi/servizio").size());
}

} // namespace

TEST(Services, FirstEntryMakesTheFileAndReadsBackAsWritten) {
    ServiceFile file;
    EXPECT_TRUE(file.services().Lista().empty());
    ASSERT_TRUE(file.services().Aggiorna(sample("VISITA")));
    EXPECT_TRUE(file.bytes().contains("prezzo=\"1234,50\"")) << "no thousands mark, Italian decimals";
    EXPECT_FALSE(file.bytes().contains("visite")) << "descriptions stand as Base64";
    const QByteArray order[] = {" ID=",        " descrizione=",    " breve=",  " UM=", " prezzo=",
                                " codiceIva=", " raggruppamento=", " usabile", " inE", " statusLavori="};
    qsizetype last = -1;
    for (const QByteArray& attribute : order) {
        const qsizetype found = file.bytes().indexOf(attribute);
        EXPECT_GT(found, last) << attribute.constData();
        last = found;
    }

    const clsItemServizio* read = file.services().Carica(u8("visita"));
    ASSERT_NE(read, nullptr);
    const clsItemServizio wrote = sample("VISITA");
    EXPECT_EQ(read->descrizione, wrote.descrizione);
    EXPECT_EQ(read->breve, wrote.breve);
    EXPECT_EQ(read->prezzo, wrote.prezzo);
    EXPECT_EQ(read->statusLavori, wrote.statusLavori);
    EXPECT_TRUE(read->usabileInPianoTrattamento);
    EXPECT_FALSE(read->inEvidenza);
    EXPECT_EQ(file.services().CaricaDaDescrizione(wrote.descrizione.toUpper()), read);
}

TEST(Services, ChangingKeepsTheNodeAndAddsWhatOlderEntriesLack) {
    ServiceFile file;
    file.putEntries(ServiceFile::entry("A", "") + ServiceFile::entry("B"));
    ASSERT_NE(file.services().Carica(u8("A")), nullptr);
    EXPECT_TRUE(file.services().Carica(u8("A"))->breve.isEmpty());
    EXPECT_FALSE(file.services().Carica(u8("A"))->inEvidenza);

    clsItemServizio item = *file.services().Carica(u8("A"));
    item.breve = u8("nuova");
    item.inEvidenza = true;
    ASSERT_TRUE(file.services().Aggiorna(item));
    EXPECT_EQ(nodes(file), 2);
    ASSERT_NE(file.services().Carica(u8("a")), nullptr);
    EXPECT_EQ(file.services().Carica(u8("a"))->breve, u8("nuova"));
    EXPECT_TRUE(file.services().Carica(u8("a"))->inEvidenza);
}

TEST(Services, CodesMatchTheirCaseWhenWrittenAndNotWhenRead) {
    ServiceFile file;
    file.putEntries(ServiceFile::entry("A1") + ServiceFile::entry("Z"));
    EXPECT_NE(file.services().Carica(u8("a1")), nullptr);
    ASSERT_TRUE(file.services().Aggiorna(sample("a1")));
    EXPECT_EQ(nodes(file), 3);
    EXPECT_EQ(file.services().Lista().size(), 2U) << "reading ends at the second key";
}

TEST(Services, DeletingRefusesWhatIsThereAndAgreesToWhatIsNot) {
    ServiceFile file;
    EXPECT_FALSE(file.services().Elimina(u8("A"))) << "no file";
    file.putEntries(ServiceFile::entry("A"));
    const QByteArray before = file.bytes();
    EXPECT_TRUE(file.services().Elimina(u8("a"))) << "the case counts, so this one is not there";
    EXPECT_FALSE(file.services().Elimina(u8("A")));
    EXPECT_EQ(file.bytes(), before);
    EXPECT_NE(file.services().Carica(u8("A")), nullptr);
}

TEST(Services, DamagedFilesGiveWhatCanBeReadAndStayAsTheyAre) {
    const QByteArray good = ServiceFile::entry("A") + ServiceFile::entry("B");
    const QByteArray head = "<?xml version=\"1.0\" encoding=\"utf-8\"?>";
    const QByteArray noUnit = ServiceFile::entry("B").replace("UM=\"NR\"", "");
    const struct {
        const char* name;
        QByteArray content;
        std::size_t entries;
        bool updates; ///< Takes an entry that is not there yet.
    } cases[] = {
        {"empty file", QByteArray(), 0, false},
        {"cut off", head + "<servizi>" + good, 0, false},
        {"bare ampersand", head + "<servizi>" + good + ServiceFile::entry("C & D") + "</servizi>", 0, false},
        {"attribute twice", head + "<servizi>" + ServiceFile::entry("A", "UM=\"x\"") + "</servizi>", 0, false},
        {"not UTF-8", head + "<servizi>" + ServiceFile::entry("\xe0") + "</servizi>", 0, false},
        {"document type", head + "<!DOCTYPE servizi [<!ENTITY a \"aa\">]><servizi>" + good + "</servizi>", 0, false},
        {"another root", head + "<articoli>" + good + "</articoli>", 0, false},
        {"no code",
         head + "<servizi>" + ServiceFile::entry("A") + "<servizio UM=\"NR\"/>" + ServiceFile::entry("B") +
             "</servizi>",
         1, false},
        {"no unit in the one to change",
         head + "<servizi>" + ServiceFile::entry("NUOVO").replace("UM=\"NR\"", "") + "</servizi>", 0, false},
        {"no unit", head + "<servizi>" + ServiceFile::entry("A") + noUnit + ServiceFile::entry("C") + "</servizi>", 1,
         true},
        {"same key, other case", head + "<servizi>" + good + ServiceFile::entry("a") + "</servizi>", 2, true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        ServiceFile file;
        file.put(c.content);
        EXPECT_EQ(file.services().Lista().size(), c.entries);
        EXPECT_EQ(file.bytes(), c.content);
        EXPECT_EQ(file.services().Aggiorna(sample("NUOVO")), c.updates);
        if (!c.updates) {
            EXPECT_EQ(file.bytes(), c.content);
        }
    }
}

TEST(Services, AHugeFileIsAnsweredWithAnEmptyList) {
    ServiceFile file;
    QByteArray content = "<?xml version=\"1.0\" encoding=\"utf-8\"?><servizi>" + ServiceFile::entry("A") + "<x a=\"";
    content += QByteArray(100 * 1024 * 1024, 'x') + "\"/></servizi>";
    file.put(content);
    EXPECT_TRUE(file.services().Lista().empty());
    EXPECT_FALSE(file.services().Aggiorna(sample("A")));
    EXPECT_EQ(QFile(file.path()).size(), content.size());
}

TEST(Services, TheListStaysUntilItIsRefreshed) {
    ServiceFile file;
    EXPECT_TRUE(file.services().Lista().empty());
    platform::files::writeAtomically(file.path(), "<servizi>" + ServiceFile::entry("A") + "</servizi>");
    EXPECT_TRUE(file.services().Lista().empty()) << "an empty list counts as read";
    file.services().Refresh();
    EXPECT_EQ(file.services().Lista().size(), 1U);
}

TEST(Services, OddTextsReadAsNothing) {
    ServiceFile file;
    QByteArray odd = ServiceFile::entry("A", "inEvidenza=\"true\"");
    odd.replace("usabileInPianoTrattamento=\"1\"", "usabileInPianoTrattamento=\"True\"");
    odd.replace("60,00", "sessanta");
    file.putEntries(odd);
    const clsItemServizio* item = file.services().Carica(u8("A"));
    ASSERT_NE(item, nullptr);
    EXPECT_FALSE(item->usabileInPianoTrattamento);
    EXPECT_FALSE(item->inEvidenza);
    EXPECT_EQ(item->prezzo, 0.0F);
}

TEST(ModServizi, LookUpsAnswerUnknownCodesWithNothing) {
    ServiceFile file;
    file.putEntries(ServiceFile::entry("A").replace("statusLavori=\"\"", "statusLavori=\"DQpJbXByb250YQ0K\""));
    QString shortText = u8("vecchio");
    EXPECT_TRUE(ServizioInEvidenza(u8("a"), shortText));
    EXPECT_EQ(shortText, u8("Vis"));
    EXPECT_EQ(PrezzoServizio(u8("A")), 60.0F);
    EXPECT_EQ(StatusLavoriServizio(u8("A")), u8("Impronta"));
    EXPECT_EQ(RaggruppamentoServizio(u8("A")), u8("01"));
    for (const char* unknown : {"", "B"}) {
        SCOPED_TRACE(unknown);
        shortText = u8("vecchio");
        EXPECT_FALSE(ServizioInEvidenza(u8(unknown), shortText));
        EXPECT_TRUE(shortText.isEmpty());
        EXPECT_EQ(PrezzoServizio(u8(unknown)), 0.0F);
        EXPECT_TRUE(StatusLavoriServizio(u8(unknown)).isEmpty());
        EXPECT_TRUE(RaggruppamentoServizio(u8(unknown)).isEmpty());
    }
}

TEST(ModRaggrMerc, TheLastOfSeveralMatchesCounts) {
    platform::Collection<clsItemRaggMerc> groups;
    groups.add(u8("01"), {u8("01"), u8("Visite")});
    groups.add(u8("02"), {u8("02"), u8("Visite")});
    colRaggMerc = &groups;
    EXPECT_EQ(CodiceRaggrMerc(u8("Visite")), u8("02"));
    EXPECT_EQ(DescrizioneRaggrMerc(u8("01")), u8("Visite"));
    EXPECT_TRUE(DescrizioneRaggrMerc(u8("9")).isEmpty());
    EXPECT_TRUE(CodiceRaggrMerc(u8("visite")).isEmpty());
    colRaggMerc = nullptr;
    EXPECT_TRUE(DescrizioneRaggrMerc(u8("01")).isEmpty());
}

TEST(ServicesTemplate, HoldsTheServicesOfAPracticeWithValidCodes) {
    platform::XmlDocument configuration;
    ASSERT_TRUE(configuration.loadFile(places::data("/Config.xml")));
    QStringList rates;
    QStringList groups;
    for (const auto& node : configuration.select("//accise/iva"))
        rates.append(node.attribute("codice", QString()));
    for (const auto& node : configuration.select("//ragruppamentiMerciologici/ragruppamento"))
        groups.append(node.attribute("codice", QString()));

    clsServizi services([] { return places::data("/DB/tabellaServizi.xml"); });
    platform::XmlDocument document;
    ASSERT_TRUE(document.loadFile(places::data("/DB/TabellaServizi.xml")));
    ASSERT_EQ(services.Lista().size(), document.select("/servizi/servizio").size()) << "an entry ends the reading";
    for (const clsItemServizio& item : services.Lista()) {
        SCOPED_TRACE(item.ID.toStdString());
        EXPECT_TRUE(rates.contains(item.codiceIva));
        EXPECT_TRUE(groups.contains(item.raggruppamento));
        EXPECT_GT(item.prezzo, Amount());
        const auto states = item.statusLavori.split(u8("\r\n"), Qt::SkipEmptyParts).size();
        EXPECT_LT(states, 5);
        EXPECT_LT(item.statusLavori.size() + 17 * states, 256);
    }
    for (const char* code : {"VISITA", "OTTURAZ", "CORONA", "IMPIANTO", "ESTRAZ", "DEVITAL", "IGIENE"})
        EXPECT_NE(services.Carica(u8(code)), nullptr) << code;
    EXPECT_TRUE(services.Carica(u8("CORONA"))->statusLavori.startsWith(u8("Preparazione\r\nImpronta")));
}
