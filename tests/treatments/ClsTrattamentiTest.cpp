#include "treatments/clsTrattamenti.h"

#include "StudioDiProva.h"
#include "platform/XmlDocument.h"
#include "treatments/MemoTrattamento.h"
#include "treatments/modTrattamenti.h"

namespace {

clsItemRigoTrattamento rigo(const char* numero, const char* inizio, const char* fine) {
    clsItemRigoTrattamento rigo;
    rigo.progressivo = QLatin1String(numero);
    rigo.servizio = QStringLiteral("CORONA");
    rigo.inizio = QLatin1String(inizio);
    rigo.fine = QLatin1String(fine);
    rigo.prezzo = 10;
    return rigo;
}

} // namespace

using ClsTrattamenti = StudioDiProva;

TEST_F(ClsTrattamenti, StoresAPlanAsOneRowAndReadsItBack) {
    clsItemTrattamento item = salvato(QStringLiteral("2026"), QStringLiteral("0041"));
    ASSERT_FALSE(item.ID.isEmpty());
    const auto stored = riga(QStringLiteral("2026-0041"));
    ASSERT_TRUE(stored);
    EXPECT_EQ(stored->t1, QStringLiteral("TRT"));
    EXPECT_EQ(stored->m1, scriviMemoTrattamento(item));

    const QString id = item.ID;
    item.descrizione = QStringLiteral("Cambiato");
    ASSERT_TRUE(trattamenti().Salva(item));
    EXPECT_EQ(item.ID, id);
    const auto riletto = trattamenti().Carica(id);
    ASSERT_TRUE(riletto);
    EXPECT_EQ(riletto->descrizione, QStringLiteral("Cambiato"));
    EXPECT_EQ(riletto->Data, QStringLiteral("10/03/2026"));
    EXPECT_FALSE(trattamenti().Carica(QStringLiteral("non c'è")));
}

TEST_F(ClsTrattamenti, ListsWhatWasThereUntilRefreshed) {
    salvato(QStringLiteral("2026"), QStringLiteral("0041"));
    EXPECT_EQ(trattamenti().Lista().size(), 1U);
    salvato(QStringLiteral("2026"), QStringLiteral("0042"));
    EXPECT_EQ(trattamenti().Lista().size(), 1U);
    trattamenti().Refresh();
    EXPECT_EQ(trattamenti().Lista().size(), 2U);
}

TEST_F(ClsTrattamenti, FindsTheLastPlanByItsNumberAsText) {
    EXPECT_FALSE(trattamenti().CaricaUltimo());
    trattamenti().Refresh();
    for (const char* numero : {"10", "9", "11"})
        salvato(QStringLiteral("2024"), QLatin1String(numero));
    const auto ultimo = trattamenti().CaricaUltimo();
    ASSERT_TRUE(ultimo);
    EXPECT_EQ(ultimo->progressivo, QStringLiteral("9"));
}

TEST_F(ClsTrattamenti, ShowsAPlanWithABrokenMemoByWhatItsRowGives) {
    QString id;
    host::DatiCorvala dati{QStringLiteral("05/01/2026"), QStringLiteral("2026-0050"), QStringLiteral("In chiaro"),
                           QStringLiteral("TRT"), QStringLiteral("<trattamento")};
    ASSERT_TRUE(paziente().corvala().Salva(id, dati));
    paziente().corvala().Refresh();
    const auto& lista = trattamenti().Lista();
    ASSERT_EQ(lista.size(), 1U);
    EXPECT_EQ(lista[0].anno, QStringLiteral("2026"));
    EXPECT_EQ(lista[0].progressivo, QStringLiteral("0050"));
    EXPECT_EQ(lista[0].Data, QStringLiteral("05/01/2026"));
    EXPECT_EQ(lista[0].descrizione, QStringLiteral("In chiaro"));
    EXPECT_TRUE(lista[0].righi.empty());
}

TEST_F(ClsTrattamenti, FindsThePlansWithWorkGoingOn) {
    EXPECT_EQ(PrimoTrattamento(), QString());
    EXPECT_EQ(UltimoTrattamentoAperto(), QString());
    trattamenti().Refresh();
    QStringList ids;
    for (const char* fine : {"", "11/03/2026", ""}) {
        clsItemTrattamento item = salvato(QStringLiteral("2026"), QString::number(60 + ids.size()));
        item.righi.add(QStringLiteral("01"), rigo("01", "10/03/2026", fine));
        ASSERT_TRUE(trattamenti().Salva(item));
        ids << item.ID;
    }
    trattamenti().Refresh();
    paziente().corvala().Refresh();
    EXPECT_EQ(ContaTrattamentiAperti(), 2);
    const auto& lista = trattamenti().Lista();
    ASSERT_EQ(lista.size(), 3U);
    EXPECT_EQ(PrimoTrattamento(), lista[0].ID);
    EXPECT_EQ(UltimoTrattamentoAperto(), lista[2].lavoriaperti > 0 ? lista[2].ID : lista[1].ID);
}

TEST_F(ClsTrattamenti, DeletesOnlyAfterAYes) {
    const clsItemTrattamento item = salvato(QStringLiteral("2026"), QStringLiteral("0041"));
    for (const char* risposta : {"No", ""}) {
        dialoghi_.taskAnswer.button = QLatin1String(risposta);
        EXPECT_FALSE(trattamenti().Elimina(paziente(), item.ID));
        EXPECT_TRUE(trattamenti().Carica(item.ID));
    }
    EXPECT_TRUE(
        dialoghi_.messages.value(0).contains(QStringLiteral("Vuoi eliminare il trattamento numero 2026-0041?")));
    dialoghi_.taskAnswer.button = QStringLiteral("Si");
    EXPECT_TRUE(trattamenti().Elimina(paziente(), item.ID));
    EXPECT_FALSE(trattamenti().Carica(item.ID));
    EXPECT_FALSE(trattamenti().Elimina(paziente(), item.ID));
    EXPECT_EQ(dialoghi_.messages.last(), QStringLiteral("Segnalare problema"));
}
