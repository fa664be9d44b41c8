#include "treatments/clsTrattamenti.h"

#include "TreatmentFixture.h"
#include "platform/XmlDocument.h"
#include "treatments/TreatmentMemo.h"
#include "treatments/modTrattamenti.h"

namespace {

clsItemRigoTrattamento row(const char* number, const char* start, const char* end) {
    clsItemRigoTrattamento row;
    row.progressivo = QLatin1String(number);
    row.servizio = QStringLiteral("CORONA");
    row.inizio = QLatin1String(start);
    row.fine = QLatin1String(end);
    row.prezzo = 10;
    return row;
}

} // namespace

using ClsTrattamenti = TreatmentFixture;

TEST_F(ClsTrattamenti, StoresAPlanAsOneRowAndReadsItBack) {
    clsItemTrattamento item = savedPlan(QStringLiteral("2026"), QStringLiteral("0041"));
    ASSERT_FALSE(item.ID.isEmpty());
    const auto stored = storedRow(QStringLiteral("2026-0041"));
    ASSERT_TRUE(stored);
    EXPECT_EQ(stored->t1, QStringLiteral("TRT"));
    EXPECT_EQ(stored->m1, writeTreatmentMemo(item));

    const QString id = item.ID;
    item.descrizione = QStringLiteral("Cambiato");
    ASSERT_TRUE(treatments().Salva(item));
    EXPECT_EQ(item.ID, id);
    const auto readBack = treatments().Carica(id);
    ASSERT_TRUE(readBack);
    EXPECT_EQ(readBack->descrizione, QStringLiteral("Cambiato"));
    EXPECT_EQ(readBack->Data, QStringLiteral("10/03/2026"));
    EXPECT_FALSE(treatments().Carica(QStringLiteral("non c'è")));
}

TEST_F(ClsTrattamenti, ListsWhatWasThereUntilRefreshed) {
    savedPlan(QStringLiteral("2026"), QStringLiteral("0041"));
    EXPECT_EQ(treatments().Lista().size(), 1U);
    savedPlan(QStringLiteral("2026"), QStringLiteral("0042"));
    EXPECT_EQ(treatments().Lista().size(), 1U);
    treatments().Refresh();
    EXPECT_EQ(treatments().Lista().size(), 2U);
}

TEST_F(ClsTrattamenti, FindsTheLastPlanByItsNumberAsText) {
    EXPECT_FALSE(treatments().CaricaUltimo());
    treatments().Refresh();
    for (const char* number : {"10", "9", "11"})
        savedPlan(QStringLiteral("2024"), QLatin1String(number));
    const auto last = treatments().CaricaUltimo();
    ASSERT_TRUE(last);
    EXPECT_EQ(last->progressivo, QStringLiteral("9"));
}

TEST_F(ClsTrattamenti, ShowsAPlanWithABrokenMemoByWhatItsRowGives) {
    QString id;
    host::DatiCorvala data{QStringLiteral("05/01/2026"), QStringLiteral("2026-0050"), QStringLiteral("In chiaro"),
                           QStringLiteral("TRT"), QStringLiteral("<trattamento")};
    ASSERT_TRUE(patient().corvala().Salva(id, data));
    patient().corvala().Refresh();
    const auto& list = treatments().Lista();
    ASSERT_EQ(list.size(), 1U);
    EXPECT_EQ(list[0].anno, QStringLiteral("2026"));
    EXPECT_EQ(list[0].progressivo, QStringLiteral("0050"));
    EXPECT_EQ(list[0].Data, QStringLiteral("05/01/2026"));
    EXPECT_EQ(list[0].descrizione, QStringLiteral("In chiaro"));
    EXPECT_TRUE(list[0].righi.empty());
}

TEST_F(ClsTrattamenti, FindsThePlansWithWorkGoingOn) {
    EXPECT_EQ(PrimoTrattamento(), QString());
    EXPECT_EQ(UltimoTrattamentoAperto(), QString());
    treatments().Refresh();
    QStringList ids;
    for (const char* end : {"", "11/03/2026", ""}) {
        clsItemTrattamento item = savedPlan(QStringLiteral("2026"), QString::number(60 + ids.size()));
        item.righi.add(QStringLiteral("01"), row("01", "10/03/2026", end));
        ASSERT_TRUE(treatments().Salva(item));
        ids << item.ID;
    }
    treatments().Refresh();
    patient().corvala().Refresh();
    EXPECT_EQ(ContaTrattamentiAperti(), 2);
    const auto& list = treatments().Lista();
    ASSERT_EQ(list.size(), 3U);
    EXPECT_EQ(PrimoTrattamento(), list[0].ID);
    EXPECT_EQ(UltimoTrattamentoAperto(), list[2].lavoriaperti > 0 ? list[2].ID : list[1].ID);
}

TEST_F(ClsTrattamenti, DeletesOnlyAfterAYes) {
    const clsItemTrattamento item = savedPlan(QStringLiteral("2026"), QStringLiteral("0041"));
    for (const char* answer : {"No", ""}) {
        dialogs_.taskAnswer.button = QLatin1String(answer);
        EXPECT_FALSE(treatments().Elimina(patient(), item.ID));
        EXPECT_TRUE(treatments().Carica(item.ID));
    }
    EXPECT_TRUE(dialogs_.messages.value(0).contains(QStringLiteral("Vuoi eliminare il trattamento numero 2026-0041?")));
    dialogs_.taskAnswer.button = QStringLiteral("Si");
    EXPECT_TRUE(treatments().Elimina(patient(), item.ID));
    EXPECT_FALSE(treatments().Carica(item.ID));
    EXPECT_FALSE(treatments().Elimina(patient(), item.ID));
    EXPECT_EQ(dialogs_.messages.last(), QStringLiteral("Segnalare problema"));
}
