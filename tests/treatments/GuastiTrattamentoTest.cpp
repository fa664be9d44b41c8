// What can go wrong under the editor of a plan: bad records, other workstations, the database.
#include "EditorDiProva.h"
#include "FinestraModale.h"
#include "catalogues/clsServizi.h"
#include "host/contract/Forms.h"
#include "platform/FormRegistry.h"
#include "store/modLock.h"
#include "treatments/ApriTrattamento.h"
#include "treatments/ColonneTrattamenti.h"
#include "treatments/PannelloDenti.h"
#include "treatments/frmMDITrattamenti.h"
#include "treatments/modTrattamenti.h"

#include <QApplication>
#include <QDateEdit>
#include <memory>
#include <stdexcept>
#include <utility>

namespace {

const QString DOMANDA = QStringLiteral("Attenzione! Salvataggio non a buon fine! Vuoi rivedere i dati?");

class Guasti : public EditorDiProva {
protected:
    /// While it lives the rows of all records are away, as when the server is.
    class Away {
    public:
        explicit Away(PracticeDatabase& place, const char* table = "tblWorkspace")
            : place_(place)
            , table_(QLatin1String(table)) {
            place_.execute(QStringLiteral("alter table %1 rename to altrove").arg(table_));
        }
        ~Away() { place_.execute(QStringLiteral("alter table altrove rename to %1").arg(table_)); }
        Away(const Away&) = delete;
        Away& operator=(const Away&) = delete;

    private:
        PracticeDatabase& place_;
        QString table_;
    };
    void conMemo(const QString& numero, const QString& memo) {
        archivio_.execute(QStringLiteral("update tblWorkspace set m1 = '%1' where idrif1 = '%2'").arg(memo, numero));
        trattamenti().Refresh();
    }
    /// A plan whose stored rows bear the same number twice: one at work, the other finished.
    clsItemTrattamento pianoDoppio(const char* numero) {
        clsItemTrattamento item = salvato(QStringLiteral("2026"), QLatin1String(numero));
        conMemo(unisciIdrif1(item),
                QStringLiteral("<trattamento anno=\"2026\" progressivo=\"%1\" data=\"10/03/2026\"><righi>"
                               "<rigo progressivo=\"01\" servizio=\"VISITA\" inizioLavori=\"01/02/2026\"/>"
                               "<rigo progressivo=\" 01\" servizio=\"CORONA\" inizioLavori=\"01/02/2026\" "
                               "fineLavori=\"01/03/2026\"/></righi><descrizione>RG9wcGlv</descrizione></trattamento>")
                    .arg(QLatin1String(numero)));
        return item;
    }
};

class Ambulatorio : public host::HostForm {
public:
    QString Name() const override { return QStringLiteral("frmAmbulatorio"); }
};

/// A window of the program that fails whenever it is told of a change.
class FinestraRotta : public QWidget {
    Q_OBJECT

public:
    explicit FinestraRotta(const char* nome) {
        setObjectName(QLatin1String(nome));
        platform::FormRegistry::add(this);
    }
    Q_INVOKABLE void plbRefresh() { throw std::runtime_error("sintesi"); }
    Q_INVOKABLE void RefreshTrattamenti(const QString&) { throw std::runtime_error("elenco"); }
};

} // namespace

TEST_F(Guasti, OneBadPlanHidesNoOtherAndStandsAlikeInPanelAndList) {
    salvato(QStringLiteral("2026"), QStringLiteral("0001"));
    const clsItemTrattamento doppio = pianoDoppio("0002");
    salvato(QStringLiteral("2026"), QStringLiteral("0003"));
    trattamenti().Refresh();
    ASSERT_EQ(trattamenti().Lista().size(), 3U);
    EXPECT_EQ(trattamenti().Lista().find(doppio.ID)->descrizione, QStringLiteral("Doppio"));
    EXPECT_EQ(ContaTrattamentiAperti(), 1);
    platform::ReportGrid pannello;
    vista().refreshGrid(&pannello, doppio.ID);
    EXPECT_EQ(pannello.rowCount(), 3);
    EXPECT_EQ(pannello.focusedRecord()->tag, doppio.ID);
    frmMDITrattamenti finestra;
    auto& elenco = *finestra.findChild<platform::ReportGrid*>(QStringLiteral("rcTrattamenti"));
    ASSERT_EQ(elenco.rowCount(), 3);
    for (platform::ReportGrid* griglia : {&pannello, &elenco}) {
        const platform::ReportCell& stato = griglia->rowRecord(1)->cell(colonnetrattamenti::STATUS);
        EXPECT_EQ(stato.value, QStringLiteral("1 lavori finiti. Ci sono 1 lavori aperti"));
        EXPECT_EQ(stato.style().iconIndex, 2);
    }
    EXPECT_TRUE(dialoghi_.messages.isEmpty());
    EXPECT_THROW(trattamenti().Carica(doppio.ID), platform::DuplicateKey);
}

TEST_F(Guasti, ShowsWhatCanBeReadOfABadPlanAndNeverWritesOverIt) {
    const QString testa = QStringLiteral("<trattamento anno=\"2026\" progressivo=\"0002\" data=\"05/01/2026\">");
    const QString rigo = QStringLiteral("<rigo progressivo=\"01\" servizio=\"VISITA\"/>");
    const QString fine = QStringLiteral("</trattamento>");
    const struct {
        const char* guasto;
        QString memo;
        int righi; ///< That are shown.
    } casi[] = {
        {"empty", QString(), 0},
        {"cut off", testa + QStringLiteral("<righi>") + rigo, 0},
        {"no text at all", QStringLiteral("\u0001\u0002"), 0},
        {"two roots", testa + fine + testa + fine, 0},
        {"another document", QStringLiteral("<preventivo><righi>%1</righi></preventivo>").arg(rigo), 0},
        {"rows are missing", testa + fine, 0},
        {"rows twice", testa + QStringLiteral("<righi>%1</righi><righi>%1</righi>").arg(rigo) + fine, 1},
        {"a row by another name", testa + QStringLiteral("<righi>%1<rixo/></righi>").arg(rigo) + fine, 1},
        {"a row in a row", testa + QStringLiteral("<righi><rigo progressivo=\"01\">%1</rigo></righi>").arg(rigo) + fine,
         1},
        {"a value by another name", testa + QStringLiteral("<righi><rigo progrexxivo=\"01\"/></righi>") + fine, 1},
        {"a part by another name", testa + QStringLiteral("<righi>%1</righi><annotaxioni/>").arg(rigo) + fine, 1},
        {"a number twice", testa + QStringLiteral("<righi>%1%1%1</righi>").arg(rigo) + fine, 3},
    };
    const QString id = salvato(QStringLiteral("2026"), QStringLiteral("0002")).ID;
    for (const auto& caso : casi) {
        SCOPED_TRACE(caso.guasto);
        conMemo(QStringLiteral("2026-0002"), caso.memo);
        const QString prima = riga(QStringLiteral("2026-0002"))->m1;
        dialoghi_.messages.clear();
        apri(id);
        ASSERT_EQ(dialoghi_.messages.size(), 1);
        EXPECT_TRUE(dialoghi_.messages[0].startsWith(
            QStringLiteral("Attenzione! Riscontrati errori in lettura dati trattamento!\r\nErrore: ")));
        EXPECT_FALSE(trova<QPushButton>(QStringLiteral("cbConferma"))->isEnabled());
        EXPECT_EQ(trova<QPushButton>(QStringLiteral("cbAnnulla"))->text(), QStringLiteral("Chiudi"));
        EXPECT_EQ(dato(0)->text() + dato(1)->text(), QStringLiteral("20260002"));
        EXPECT_EQ(righi()->rowCount(), caso.righi);
        const bool testaLetta = caso.righi > 0 || caso.memo == testa + fine;
        EXPECT_EQ(trova<QDateEdit>(QStringLiteral("dtpData"))->date(),
                  testaLetta ? QDate(2026, 1, 5) : QDate(2026, 3, 10));
        EXPECT_FALSE(EsisteLock(QStringLiteral("Trattamento"), id)) << "nobody is working in it";
        premi(QStringLiteral("cbAnnulla"));
        EXPECT_FALSE(finestra_->isVisible());
        EXPECT_EQ(riga(QStringLiteral("2026-0002"))->m1, prima);
    }
    EXPECT_EQ(righi()->rowRecord(2)->cell(rigogriglia::SERVIZIO).value, QStringLiteral("VISITA"));
    EXPECT_TRUE(dialoghi_.messages[0].contains(QStringLiteral("01"))) << "which number it is";

    platform::ReportGrid griglia;
    vista().refreshGrid(&griglia, id);
    dialoghi_.taskAnswer.button = QStringLiteral("Si");
    vista().PopupExecute(10079, &griglia); // deletes
    EXPECT_EQ(griglia.rowCount(), 0);
    EXPECT_FALSE(riga(QStringLiteral("2026-0002")));
}

TEST_F(Guasti, OpensReadOnlyWhatCouldNotBeReadAndSaysSo) {
    const QString id = salvato(QStringLiteral("2026"), QStringLiteral("0001")).ID;
    for (const QString& quale : {id, QString()}) {
        SCOPED_TRACE(qPrintable(quale));
        dialoghi_.messages.clear();
        {
            const Away away(archivio_);
            apri(quale);
        }
        ASSERT_FALSE(dialoghi_.messages.isEmpty());
        EXPECT_TRUE(dialoghi_.messages[0].startsWith(QStringLiteral("Attenzione! Riscontrati errori in lettura")));
        EXPECT_FALSE(trova<QPushButton>(QStringLiteral("cbConferma"))->isEnabled());
        EXPECT_FALSE(EsisteLock(QStringLiteral("Trattamento"), id));
    }
    apri(id);
    EXPECT_EQ(dato(2)->text(), QStringLiteral("Piano 0001"));
    EXPECT_TRUE(trova<QPushButton>(QStringLiteral("cbConferma"))->isEnabled());
}

TEST_F(Guasti, KeepsTheDateOfTheRowWhenTheMemoHasNone) {
    const QString id = salvato(QStringLiteral("2026"), QStringLiteral("0001")).ID;
    archivio_.execute(QStringLiteral("update tblWorkspace set Data = '2025-11-22' where idrif1 = '2026-0001'"));
    for (const char* data : {"", "31/02/2026", "ieri"}) {
        SCOPED_TRACE(data);
        conMemo(QStringLiteral("2026-0001"), QStringLiteral("<trattamento anno=\"2026\" progressivo=\"0001\" "
                                                            "data=\"%1\"><righi/></trattamento>")
                                                 .arg(QLatin1String(data)));
        apri(id);
        EXPECT_EQ(trova<QDateEdit>(QStringLiteral("dtpData"))->date(), QDate(2025, 11, 22));
        conferma();
        EXPECT_EQ(riga(QStringLiteral("2026-0001"))->Data.date(), QDate(2025, 11, 22));
    }
}

TEST_F(Guasti, AConfirmStandsWhateverFailsAfterIt) {
    const QString id = salvato(QStringLiteral("2026"), QStringLiteral("0001")).ID;
    const FinestraRotta elenco("frmMDITrattamenti");
    const FinestraRotta sintesi("frmMDISintesi");
    platform::ReportGrid pannello;
    vista().refreshGrid(&pannello, id);
    apri(id);
    QTest::keyClicks(dato(2), QStringLiteral(" corretto"));
    conferma();
    EXPECT_TRUE(dialoghi_.messages.isEmpty()) << dialoghi_.messages.value(0).toStdString();
    EXPECT_FALSE(finestra_->isVisible());
    EXPECT_FALSE(oHost->Framework().DialogCancel());
    EXPECT_FALSE(EsisteLock(QStringLiteral("Trattamento"), id));
    EXPECT_EQ(pannello.rowRecord(0)->cell(colonnetrattamenti::DESCRIZIONE).value,
              QStringLiteral("Piano 0001 corretto"));
}

TEST_F(Guasti, TheModuleMayEndUnderItsWindows) {
    const QString id = salvato(QStringLiteral("2026"), QStringLiteral("0001")).ID;
    frmMDITrattamenti elenco;
    elenco.show();
    auto* griglia = elenco.findChild<platform::ReportGrid*>(QStringLiteral("rcTrattamenti"));
    QTimer::singleShot(30, [&] {
        evento("fine");
        QWidget* editor = QApplication::activeModalWidget();
        ASSERT_NE(editor, nullptr);
        QTest::mouseClick(editor->findChild<QWidget*>(QStringLiteral("imTooth(7)")), Qt::RightButton);
        dialoghi_.answer = platform::Answer::Yes;
        editor->findChild<QPushButton*>(QStringLiteral("cbConferma"))->click();
        EXPECT_EQ(dialoghi_.messages, QStringList{DOMANDA}) << "nothing can be saved any more";
        editor->close();
    });
    ApriTrattamento(id);
    ASSERT_EQ(oHost, nullptr);
    platform::ReportRecord* primo = griglia->rowRecord(0);
    emit griglia->rowDoubleClicked(primo, 0);
    emit griglia->rowRightClicked(primo, 0);
    QTest::mouseClick(elenco.findChild<QPushButton*>(QStringLiteral("cbFiltra")), Qt::LeftButton);
    EXPECT_EQ(griglia->rowCount(), 0);
    EXPECT_EQ(griglia->emptyText(), QStringLiteral("Elenco non letto: il modulo non è più attivo"));
    std::unique_ptr<QObject> altro(vista().EditForm(id));
    vista().refreshGrid(griglia, id);
}

TEST_F(Guasti, AsksWhatToDoWithAPlanThatAnotherWorkstationDeleted) {
    const clsItemTrattamento item = salvato(QStringLiteral("2026"), QStringLiteral("0001"));
    apri(item.ID);
    QTest::keyClicks(dato(2), QStringLiteral(" corretto"));
    ASSERT_TRUE(paziente().corvala().Elimina(item.ID));
    dialoghi_.answer = platform::Answer::Yes;
    conferma();
    EXPECT_EQ(dialoghi_.messages, QStringList{DOMANDA});
    EXPECT_EQ(dialoghi_.values, QList<int>{platform::MB_QUESTION});
    EXPECT_TRUE(finestra_->isVisible());
    EXPECT_EQ(dato(2)->text(), QStringLiteral("Piano 0001 corretto"));
    dialoghi_.answer = platform::Answer::No;
    oHost->Framework().setDialogCancel(false); // as an editor opened from this one leaves it
    conferma();
    EXPECT_FALSE(finestra_->isVisible());
    EXPECT_TRUE(oHost->Framework().DialogCancel());
    EXPECT_FALSE(riga(QStringLiteral("2026-0001")));
}

TEST_F(Guasti, SavesAtTheSecondTryOnceTheDatabaseIsBack) {
    const clsItemTrattamento item = salvato(QStringLiteral("2026"), QStringLiteral("0001"));
    for (const bool nuovo : {false, true}) {
        SCOPED_TRACE(nuovo);
        dialoghi_.messages.clear();
        apri(nuovo ? QString() : item.ID);
        QTest::keyClicks(dato(2), QStringLiteral(" corretto"));
        dialoghi_.answer = platform::Answer::Yes;
        {
            const Away away(archivio_);
            conferma();
        }
        ASSERT_FALSE(dialoghi_.messages.isEmpty());
        EXPECT_EQ(dialoghi_.messages[0], DOMANDA); // the desk may tell of the database on its own after it
        EXPECT_TRUE(finestra_->isVisible());
        conferma();
        EXPECT_FALSE(finestra_->isVisible());
        EXPECT_FALSE(oHost->Framework().DialogCancel());
        EXPECT_EQ(riga(nuovo ? QStringLiteral("2026-0002") : QStringLiteral("2026-0001"))->descrizione,
                  nuovo ? QStringLiteral(" corretto") : QStringLiteral("Piano 0001 corretto"));
    }
}

TEST_F(Guasti, ShowsThePlanBehindARowThatCouldNotBeSaved) {
    clsItemTrattamento item = salvato(QStringLiteral("2026"), QStringLiteral("0001"));
    item.righi.add(QStringLiteral("01"), {});
    item.righi[0].progressivo = QStringLiteral("01");
    ASSERT_TRUE(trattamenti().Salva(item));
    sIDTrattamento = item.ID;
    sRigoTrattamento = QStringLiteral("01");
    dialoghi_.answer = platform::Answer::Yes; // look the data over again
    frmEditTrattamento piano;
    QTimer::singleShot(30, [&] {
        QWidget* rigo = QApplication::activeModalWidget();
        ASSERT_NE(rigo, nullptr);
        rigo->findChild<QLineEdit*>(QStringLiteral("tbDati(2)"))->setText(QStringLiteral("Non va perso"));
        auto away = std::make_shared<Away>(archivio_);
        QTimer::singleShot(30, [away, &piano]() mutable {
            away.reset();
            EXPECT_EQ(QApplication::activeModalWidget(), &piano);
            piano.findChild<QPushButton*>(QStringLiteral("cbConferma"))->click();
        });
        rigo->findChild<QPushButton*>(QStringLiteral("cbAccetta"))->click();
    });
    EXPECT_EQ(piano.exec(), QDialog::Accepted);
    EXPECT_EQ(dialoghi_.messages.value(0), DOMANDA);
    EXPECT_EQ(trattamenti().Carica(item.ID)->righi[0].descrizione, QStringLiteral("Non va perso"));

    // A row that another workstation has deleted meanwhile: the plan opens as always.
    sIDTrattamento = item.ID;
    sRigoTrattamento = QStringLiteral("07");
    frmEditTrattamento altro;
    QTimer::singleShot(30, [&altro] {
        EXPECT_TRUE(altro.isVisible());
        altro.reject();
    });
    altro.exec();
}

TEST_F(Guasti, OpensAndSavesAPlanOfUnknownThings) {
    clsItemTrattamento item = salvato(QStringLiteral("2026"), QStringLiteral("0001"));
    const struct {
        const char *dente, *denti;
    } casi[] = {{"99", ""}, {"-1", ""}, {"boh", ""}, {"+", "7;77;boh;8"}, {"+", ""}, {"7", ""}};
    for (const auto& caso : casi) {
        clsItemRigoTrattamento rigo;
        rigo.progressivo = rigogriglia::numeroRigo(static_cast<int>(item.righi.size()) + 1);
        rigo.servizio = QStringLiteral("MAI_VISTO");
        rigo.dente = QLatin1String(caso.dente);
        rigo.denti = QLatin1String(caso.denti);
        rigo.inizio = QStringLiteral("31/02/2026");
        rigo.statuslavori = QStringLiteral("Prova|boh|boh\r\n||");
        item.righi.add(rigo.progressivo, rigo);
    }
    item.SituazioneOrale = QStringLiteral("7:55:sconosciuta;200:1:;boh;:::;3:2:nota");
    ASSERT_TRUE(trattamenti().Salva(item));
    apri(item.ID);
    ASSERT_EQ(righi()->rowCount(), 6);
    scegliRiga(3);
    conferma();
    EXPECT_TRUE(dialoghi_.messages.isEmpty()) << dialoghi_.messages.value(0).toStdString();
    EXPECT_FALSE(finestra_->isVisible());
    const auto riletto = trattamenti().Carica(item.ID);
    ASSERT_TRUE(riletto);
    ASSERT_EQ(riletto->righi.size(), 6U);
    for (std::size_t i = 0; i < riletto->righi.size(); ++i) {
        EXPECT_EQ(riletto->righi[i].servizio, QStringLiteral("MAI_VISTO")) << i;
        EXPECT_EQ(riletto->righi[i].statuslavori, item.righi[i].statuslavori) << i;
        EXPECT_EQ(riletto->righi[i].inizio, QStringLiteral("31/02/2026")) << i;
    }
    for (const std::size_t senza : {0U, 1U, 2U})
        EXPECT_EQ(riletto->righi[senza].dente, QString()) << senza;
    EXPECT_EQ(riletto->righi[3].denti, QStringLiteral("7;-1;-1;8")); // the row's price still counts four teeth
    EXPECT_EQ(riletto->righi[5].dente, QStringLiteral("7"));
    EXPECT_EQ(riletto->SituazioneOrale, QStringLiteral("3:2:nota;7:55:sconosciuta"));
}

TEST_F(Guasti, WorksInAPlanOfTwoThousandRows) {
    clsItemTrattamento item = salvato(QStringLiteral("2026"), QStringLiteral("0001"));
    for (int numero = 1; numero <= 2000; ++numero) {
        clsItemRigoTrattamento rigo;
        rigo.progressivo = rigogriglia::numeroRigo(numero);
        rigo.servizio = QStringLiteral("VISITA");
        rigo.descrizione = QString::number(numero);
        rigo.dente = QString::number(numero % 52);
        item.righi.add(rigo.progressivo, rigo);
    }
    ASSERT_TRUE(trattamenti().Salva(item));
    apri(item.ID);
    ASSERT_EQ(righi()->rowCount(), 2000);
    scrivi(1999, rigogriglia::INIZIO, QStringLiteral("01/03/2026"));
    scegliRiga(1999);
    tasto(Qt::Key_Up, Qt::ControlModifier | Qt::AltModifier);
    scegliRiga(0);
    premi(QStringLiteral("cbRighi(2)"));
    nuovoRigo(QStringLiteral("CORONA"));
    conferma();
    EXPECT_FALSE(finestra_->isVisible());
    const auto riletto = trattamenti().Carica(item.ID);
    ASSERT_TRUE(riletto);
    ASSERT_EQ(riletto->righi.size(), 2000U);
    EXPECT_EQ(riletto->righi[0].descrizione, QStringLiteral("2"));
    EXPECT_EQ(riletto->righi[1997].descrizione, QStringLiteral("2000"));
    EXPECT_EQ(riletto->righi[1997].progressivo, QStringLiteral("1998"));
    EXPECT_EQ(riletto->righi[1997].inizio, QStringLiteral("01/03/2026"));
    EXPECT_EQ(riletto->righi[1999].servizio, QStringLiteral("CORONA"));
}

TEST_F(Guasti, TellsInWhichPhaseTheChartFailedAndGoesOn) {
    oConfig->setEvidenziaBreve(true);
    // The catalogue of services falls away as when the share of its folder goes.
    clsServizi senzaCartella([]() -> QString { throw std::runtime_error("cartella sparita"); });
    clsServizi* precedente = std::exchange(oServizi, &senzaCartella);
    PannelloDenti pannello;
    pannello.aggiorna({{ToothList({QStringLiteral("4.6")}), QStringLiteral("IMPIANTO"), QStringLiteral("Impianto"),
                        QStringLiteral("01/03/2026"), QString()}});
    oServizi = precedente;
    EXPECT_EQ(dialoghi_.messages,
              QStringList{QStringLiteral("Errori inattesi (sistemazione icone servizi)!\r\n - fase: step 5.c\r\n"
                                         " - errore: cartella sparita")});
    EXPECT_EQ(dialoghi_.values, QList<int>{platform::MB_WARNING});
    EXPECT_EQ(dialoghi_.titles, QStringList{QStringLiteral("Tessara 5000. CORVALA")});
    // What was done before stands, and so do the marks, which are a pass of their own.
    EXPECT_EQ(pannello.dente(IndiceDaDente(QStringLiteral("4.6"))).strati[0].servizio, QStringLiteral("IMPIANTO"));
    EXPECT_EQ(pannello.dente(IndiceDaDente(QStringLiteral("4.6"))).stato, StatoDente::Aperto);
}

TEST_F(Guasti, ListsSayThatTheyAreUnreadAndComeBackWithTheDatabase) {
    const QString id = salvato(QStringLiteral("2026"), QStringLiteral("0001")).ID;
    frmMDITrattamenti elenco;
    elenco.show();
    auto* griglia = elenco.findChild<platform::ReportGrid*>(QStringLiteral("rcTrattamenti"));
    for (const char* tabella : {"tblWorkspace", "tblPazienti"}) {
        SCOPED_TRACE(tabella);
        ASSERT_EQ(griglia->rowCount(), 1);
        {
            const Away away(archivio_, tabella);
            QTest::mouseClick(elenco.findChild<QPushButton*>(QStringLiteral("cbFiltra")), Qt::LeftButton);
            EXPECT_FALSE(elenco.findChild<QWidget*>(QStringLiteral("pbAttesa"))->isVisible());
            EXPECT_EQ(griglia->rowCount(), 0);
            EXPECT_TRUE(griglia->emptyText().startsWith(QStringLiteral("Elenco non letto: ")));
        }
        auto* rilettura = elenco.findChild<QTimer*>(QStringLiteral("tmRilettura"));
        EXPECT_TRUE(rilettura->isActive());
        rilettura->start(1);
        QTest::qWait(20);
        EXPECT_EQ(griglia->rowCount(), 1);
        EXPECT_FALSE(rilettura->isActive());
        EXPECT_EQ(griglia->emptyText(), QStringLiteral("Non ci sono dati da visualizzare"));
    }
    platform::ReportGrid pannello;
    {
        const Away away(archivio_);
        trattamenti().Refresh();
        vista().refreshGrid(&pannello, id);
        EXPECT_TRUE(pannello.emptyText().startsWith(QStringLiteral("Elenco non letto: ")));
        EXPECT_THROW(trattamenti().Lista(), host::HostError);
        Ambulatorio ambulatorio;
        evento("form.load", {QVariant::fromValue<host::HostForm*>(&ambulatorio)});
        dialoghi_.messages.clear();
        for (const bool unica : {true, false}) {
            oConfig->setUnicaSchedaTrattamento(unica);
            EXPECT_TRUE(desk_->pressCommand(QStringLiteral("CRVL0303"))) << "opens nothing, and is not off either";
        }
        EXPECT_EQ(dialoghi_.messages.filter(QStringLiteral("Attenzione! Elenco dei trattamenti non letto!")).size(), 2);
    }
    vista().RefreshPannello();
    EXPECT_EQ(pannello.rowCount(), 1);
}

TEST_F(Guasti, TheSingleSheetReadsAnewBeforeItDecides) {
    oConfig->setUnicaSchedaTrattamento(true);
    Ambulatorio ambulatorio;
    evento("form.load", {QVariant::fromValue<host::HostForm*>(&ambulatorio)});
    EXPECT_TRUE(trattamenti().Lista().empty());
    salvato(QStringLiteral("2026"), QStringLiteral("0041")); // as another workstation does, behind the list
    const FinestraModale attesa("frmEditTrattamento", [](QWidget& editor) {
        EXPECT_EQ(editor.findChild<QLineEdit*>(QStringLiteral("tbDati(1)"))->text(), QStringLiteral("0041"));
    });
    EXPECT_TRUE(desk_->pressCommand(QStringLiteral("CRVL0303")));
}

#include "GuastiTrattamentoTest.moc"
