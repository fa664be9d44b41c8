// What a kind of documents says of itself, in its two lists: invoices and payments as samples.
#include "documents/DocumentView.h"
#include "documents/PeriodList.h"
#include "platform/ReportGrid.h"
#include "platform/XmlDocument.h"
#include "store/modWorkspace.h"
#include "support/ModuleFixture.h"

#include <QDateEdit>
#include <QLabel>
#include <QTest>

using platform::ReportGrid;

namespace {

struct SampleItem : WorkspaceItem {
    QString patient;
    int paid = 0; ///< Of 100.
};

void readSample(SampleItem& item, const QString& memo, host::Paziente& patient) {
    platform::XmlDocument document;
    if (!document.loadText(memo)) throw std::runtime_error("broken");
    item.paid = document.root().attribute("pagato", QString()).toInt();
    item.patient = patient.Cognome();
}

class SampleManager : public WorkspaceManager<SampleItem> {
public:
    explicit SampleManager(const char* t1)
        : WorkspaceManager(QLatin1String(t1)) {}
    void DeserializzaMEMO(SampleItem& item, const QString& memo) const override {
        readSample(item, memo, *currentPatient());
    }

protected:
    QString SerializzaMEMO(const SampleItem& item) const override {
        return QStringLiteral("<fattura pagato=\"%1\"/>").arg(item.paid);
    }
};

SampleManager* manager = nullptr;
QStringList done; // commands that ran

DocumentCells invoiceCells(const SampleItem& item) {
    const int icon = item.paid == 100 ? 4 : item.paid > 0 ? 2 : 5;
    return {{item.number().text(), item.Data, QString(), item.patient, item.descrizione, QString::number(item.paid)},
            icon};
}

DocumentCells paymentCells(const SampleItem& item) {
    return {{item.Data, item.patient, QString::number(item.paid)}};
}

void addCommands(DocumentKind& kind) {
    kind.open = [](const QString& id) { done << QStringLiteral("open ") + id; };
    kind.remove = [](host::Paziente& patient, const QString& id) {
        done << QStringLiteral("remove %1 of %2").arg(id, patient.Cognome());
        return patient.corvala().Elimina(id);
    };
}

DocumentKind invoices() {
    using namespace documentcolumns;
    DocumentKind kind;
    kind.recordType = 101013;
    kind.t1 = QStringLiteral("FTT");
    kind.plural = QStringLiteral("Fatture");
    kind.columns = {number(), date(), taxCode(), patient(), description(), {{QStringLiteral("Pagamenti"), 240, true}}};
    kind.sortColumn = 0;
    kind.period = DocumentKind::Period::MonthToToday;
    kind.commands[0] = QStringLiteral("Nuova");
    listDocuments(kind, manager, invoiceCells, readSample);
    addCommands(kind);
    kind.print = [](host::Paziente& patient, const QString& id) {
        done << QStringLiteral("print %1 of %2").arg(id, patient.Cognome());
    };
    return kind;
}

DocumentKind payments() {
    DocumentKind kind;
    kind.t1 = QStringLiteral("PGM");
    kind.plural = QStringLiteral("Pagamenti");
    kind.columns = {documentcolumns::date(), documentcolumns::patient(), {{QStringLiteral("Importo"), 80}}};
    kind.sortColumn = 0;
    kind.commands = {QStringLiteral("Nuovo"), QStringLiteral("Modifica"), QStringLiteral("Elimina")};
    listDocuments(kind, manager, paymentCells, readSample);
    addCommands(kind);
    return kind;
}

class SampleList : public PeriodList {
public:
    explicit SampleList(const DocumentKind& kind)
        : PeriodList(kind) {}
    using PeriodList::reload;
};

class Entries : public host::PopupBar {
public:
    void RemoveItem(int) override {}
    void AddItem(int command, const QString& caption) override {
        texts << QStringLiteral("%1 %2").arg(command).arg(caption);
    }
    QStringList texts;
};

class ListKinds : public ModuleFixture {
protected:
    void begin(const char* t1) {
        start();
        openRossi();
        manager_ = std::make_unique<SampleManager>(t1);
        manager = manager_.get();
        done.clear();
    }
    QString saved(const char* progressive, const char* day, int paid) {
        SampleItem item;
        item.anno = QStringLiteral("2026");
        item.progressivo = QLatin1String(progressive);
        item.Data = QLatin1String(day);
        item.paid = paid;
        EXPECT_TRUE(manager->Salva(item));
        return item.ID;
    }
    QStringList menu(DocumentView& view, ReportGrid& grid) {
        Entries bar;
        view.Popup(bar, &grid);
        return bar.texts;
    }
    static QStringList column(const ReportGrid& grid, int column) {
        QStringList texts;
        for (int row = 0; row < grid.rowCount(); ++row)
            texts << grid.rowRecord(row)->cell(column).value;
        return texts;
    }

    std::unique_ptr<SampleManager> manager_;
};

} // namespace

TEST_F(ListKinds, InvoicesShowWhatIsPaidInBothLists) {
    begin("FTT");
    saved("0001", "02/03/2026", 100);
    const QString id = saved("0002", "03/03/2026", 40);
    saved("0003", "04/03/2026", 0);
    database_.execute(QStringLiteral("update tblWorkspace set m1 = '<' where idrif1 = '2026-0003'"));
    SampleList list(invoices());
    EXPECT_EQ(list.objectName(), QStringLiteral("frmMDIFatture"));
    EXPECT_EQ(list.findChild<QDateEdit*>(QStringLiteral("dtpData(1)"))->date(), QDate(2026, 3, 10)) << "to this day";
    EXPECT_EQ(list.findChild<QLabel*>(QStringLiteral("laTitoloFatture"))->text(),
              QStringLiteral("ELENCO FATTURE 01/03/2026 - 10/03/2026"));
    auto& grid = *list.findChild<ReportGrid*>(QStringLiteral("rcFatture"));
    EXPECT_EQ(column(grid, 0), (QStringList{QStringLiteral("2026-0003"), QStringLiteral("2026-0002"),
                                            QStringLiteral("2026-0001")}))
        << "the broken one stands with what its row tells";
    EXPECT_EQ(grid.rowRecord(1)->cell(5).style().iconIndex, 2);
    EXPECT_EQ(grid.rowRecord(2)->cell(5).style().iconIndex, 4);
    EXPECT_TRUE(grid.rowRecord(2)->cell(3).style().bold);

    grid.setFocusedRecord(grid.rowRecord(1));
    dialogs_.choice = QStringLiteral("Stampa");
    emit grid.rowRightClicked(grid.rowRecord(1), 0);
    EXPECT_EQ(dialogs_.menu, (QStringList{QStringLiteral("Nuova"), QStringLiteral("Modifica"),
                                          QStringLiteral("Elimina"), QStringLiteral("Stampa")}));
    EXPECT_EQ(done, QStringList{QStringLiteral("print %1 of Rossi").arg(id)});

    database_.execute(QStringLiteral("delete from tblWorkspace where idrif1 = '2026-0003'"));
    currentPatient()->corvala().Refresh();
    DocumentView view(invoices());
    ReportGrid panel;
    view.setLikePannello(true);
    view.refreshGrid(&panel, id);
    EXPECT_EQ(panel.column(2).caption, QStringLiteral("cdfCliente"));
    EXPECT_FALSE(panel.column(2).visible || panel.column(3).visible);
    EXPECT_EQ(panel.focusedRecord()->cell(5).style().iconIndex, 2);
    EXPECT_EQ(menu(view, panel), (QStringList{QStringLiteral("10077 Nuova"), QStringLiteral("10078 Modifica"),
                                              QStringLiteral("10079 Elimina"), QStringLiteral("10080 Stampa")}));
    done.clear();
    for (const int command : {COMMAND_NEW, COMMAND_EDIT, COMMAND_PRINT, COMMAND_REMOVE})
        view.PopupExecute(command, &panel);
    EXPECT_EQ(done, (QStringList{QStringLiteral("open "), QStringLiteral("open ") + id,
                                 QStringLiteral("print %1 of Rossi").arg(id),
                                 QStringLiteral("remove %1 of Rossi").arg(id)}));
    EXPECT_EQ(panel.recordCount(), 1);
}

TEST_F(ListKinds, PaymentsStandByTheirDayAndHaveNoPrint) {
    begin("PGM");
    saved("0001", "09/03/2026", 1);
    saved("0002", "10/03/2026", 2);
    saved("0003", "01/03/2026", 3);
    SampleList list(payments());
    auto& grid = *list.findChild<ReportGrid*>(QStringLiteral("rcPagamenti"));
    EXPECT_EQ(column(grid, 0), (QStringList{QStringLiteral("10/03/2026"), QStringLiteral("09/03/2026"),
                                            QStringLiteral("01/03/2026")}));
    emit grid.rowRightClicked(nullptr, 0);
    EXPECT_EQ(dialogs_.menu, QStringList{QStringLiteral("Nuovo")});
    grid.setFocusedRecord(grid.rowRecord(0));
    dialogs_.choice = QStringLiteral("Elimina");
    emit grid.rowRightClicked(grid.rowRecord(0), 0);
    EXPECT_EQ(dialogs_.menu.size(), 3);
    EXPECT_EQ(grid.rowCount(), 2);

    DocumentView view(payments());
    ReportGrid panel;
    view.refreshGrid(&panel, QString());
    EXPECT_EQ(column(panel, 2), (QStringList{QStringLiteral("1"), QStringLiteral("3")}));
    EXPECT_EQ(menu(view, panel), QStringList{QStringLiteral("10077 Nuovo")});
}
