#include "DeskFixture.h"

#include <QCloseEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>

namespace {

/// A child window as a module makes it; may refuse to close.
class DeskChildForm : public QWidget {
public:
    explicit DeskChildForm(const QString& caption) {
        setWindowTitle(caption);
        setAttribute(Qt::WA_DeleteOnClose);
    }
    bool stays = false;

protected:
    void closeEvent(QCloseEvent* event) override { event->setAccepted(!stays); }
};

void settle() {
    for (int i = 0; i < 3; ++i) {
        QApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

} // namespace

class DeskFramework : public DeskFixture {
protected:
    void SetUp() override { desk_->window()->show(); }

    QWidget* inFront() {
        const QMdiSubWindow* active = control<QMdiArea>("area")->activeSubWindow();
        return active ? active->widget() : nullptr;
    }

    DeskChildForm* openChild(const QString& caption) {
        auto* form = new DeskChildForm(caption);
        EXPECT_EQ(framework().CreateChildForm(form), form);
        form->show();
        settle();
        return form;
    }
};

TEST_F(DeskFramework, AChildWindowOpensOnceAndComesForward) {
    const QString first = QStringLiteral("Tessara 5000. CORVALA: Elenco PREVENTIVI");
    const QString second = QStringLiteral("Tessara 5000. CORVALA: Elenco FATTURE");
    EXPECT_FALSE(framework().OpenChild(QStringLiteral("frmMDI"), first));
    const QPointer<DeskChildForm> one = openChild(first);
    const QPointer<DeskChildForm> other = openChild(second);
    EXPECT_EQ(inFront(), other);
    EXPECT_EQ(control<QMdiArea>("area")->activeSubWindow()->windowTitle(), QStringLiteral("Elenco FATTURE"));
    EXPECT_EQ(other->windowTitle(), second) << "the short tab cost the window its caption";
    EXPECT_TRUE(framework().OpenChild(QStringLiteral("frmMDI"), first));
    settle();
    EXPECT_EQ(inFront(), one) << "the window found was not brought forward";

    framework().CloseChild(first);
    framework().CloseChild(QStringLiteral("mai aperta"));
    settle();
    EXPECT_TRUE(one.isNull());
    EXPECT_FALSE(framework().OpenChild(QStringLiteral("frmMDI"), first));
    EXPECT_TRUE(framework().OpenChild(QStringLiteral("frmMDI"), second));
}

TEST_F(DeskFramework, AChildThatClosesItselfTakesItsTabAlong) {
    QPointer<DeskChildForm> form = openChild(QStringLiteral("Elenco"));
    form->close();
    settle();
    EXPECT_TRUE(form.isNull());
    EXPECT_TRUE(control<QMdiArea>("area")->subWindowList().isEmpty());
}

TEST_F(DeskFramework, TheMainWindowStaysWhileAChildRefusesToClose) {
    attach();
    ASSERT_TRUE(desk_->openPatient(rossi_));
    DeskChildForm* form = openChild(QStringLiteral("Elenco"));
    form->stays = true;
    EXPECT_FALSE(desk_->window()->close());
    EXPECT_NE(desk_->host().paziente(), nullptr);
    form->stays = false;
    run_.events.clear();
    EXPECT_TRUE(desk_->window()->close());
    EXPECT_EQ(run_.events, QStringList{QStringLiteral("chiuditutto")});
}

// A module tells the kinds of files in one text, which nothing else in the program is taken for.
TEST_F(DeskFramework, KindsOfFilesAreReadFromTheModulesText) {
    const struct {
        const char* text;
        const char* kinds;
    } cases[] = {
        {"File EXCEL|*.xls|Tutti i file|*.*", "File EXCEL: *.xls / Tutti i file: *"},
        {"Immagini (*.jpg)|*.jpg; *.png", "Immagini: *.jpg *.png"},
        {"Senza maschera", ""},
        {"", ""},
    };
    for (const auto& [text, expected] : cases) {
        framework().SalvaFile(QStringLiteral("Salva"), QLatin1String(text), QString());
        QStringList kinds;
        for (const platform::FileKind& kind : std::as_const(dialogs_.kinds))
            kinds << kind.caption + QStringLiteral(": ") + kind.patterns.join(QLatin1Char(' '));
        EXPECT_EQ(kinds.join(QStringLiteral(" / ")), QLatin1String(expected)) << text;
    }
}

TEST_F(DeskFramework, PopupCountsThePositionsThatWereGiven) {
    dialogs_.choice = QStringLiteral("Stampa");
    EXPECT_EQ(framework().Popup({QStringLiteral("Nuovo"), QString(), QStringLiteral("Stampa")}), 3);
    dialogs_.choice.clear();
    dialogs_.choice = QStringLiteral("altro");
    EXPECT_EQ(framework().Popup({QStringLiteral("Nuovo")}), 0);
}

TEST_F(DeskFramework, AReportKeepsTheVariablesItWasAskedWith) {
    framework().Variables().Add(QStringLiteral("12,50"), QStringLiteral("Fattura.Totale"));
    framework().ReportView(QStringLiteral("FATTURA"), true);
    framework().ClearVariables();
    framework().Variables().Add(1, QStringLiteral("Altro"));
    EXPECT_EQ(desk_->lastReportID(), QStringLiteral("FATTURA"));
    EXPECT_EQ(desk_->lastReportVariables().value(QStringLiteral("Fattura.Totale")), QStringLiteral("12,50"));
    EXPECT_FALSE(desk_->lastReportVariables().contains(QStringLiteral("Altro")));
    ASSERT_EQ(dialogs_.messages.size(), 1);
    EXPECT_TRUE(dialogs_.messages.first().contains(QLatin1String("FATTURA")));
}

TEST_F(DeskFramework, ShowsReportsInThePreviewWithTheLayoutsOfThePractice) {
    bool shown = false;
    whenModal("frmAnteprima", [&](QWidget& preview) {
        shown = true;
        EXPECT_EQ(preview.windowTitle(), QStringLiteral("Anteprima di stampa: Fattura 2025-0042"));
        QTest::keyClick(&preview, Qt::Key_Escape);
    });
    framework().Variables().Add(QStringLiteral("2025-0042"), QStringLiteral("Fattura.Numero"));
    framework().ReportView(QStringLiteral("{54D96C47-35BA-45AE-AE9B-245B0B7D02E3}"), true);
    EXPECT_TRUE(shown);
    EXPECT_EQ(desk_->lastReportVariables().size(), 1);
    EXPECT_EQ(desk_->host().Archivio().Dati().Lista(QStringLiteral("Certificati"), true).size(), 3);

    bool managed = false;
    whenModal("frmModelli", [&](QWidget& window) {
        managed = true;
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    EXPECT_TRUE(desk_->pressCommand(QStringLiteral("Modelli di stampa")));
    EXPECT_TRUE(managed);
}

TEST_F(DeskFramework, AnIdentityHasTheLengthThatTheModuleCountsOn) {
    EXPECT_EQ(desk_->host().API().GetGUID().size(), 38);
    EXPECT_NE(desk_->host().API().GetGUID(), desk_->host().API().GetGUID());
}

TEST_F(DeskFramework, ReadsTheBooleansOfADatabase) {
    const struct {
        QVariant value;
        bool expected;
    } cases[] = {{QVariant(), false},
                 {0, false},
                 {1, true},
                 {-1, true},
                 {true, true},
                 {QStringLiteral("0"), false},
                 {QStringLiteral("1"), true},
                 {QStringLiteral("-1"), true},
                 {QStringLiteral("True"), true},
                 {QStringLiteral("t"), true},
                 {QStringLiteral("false"), false},
                 {QString(), false}};
    for (const auto& each : cases)
        EXPECT_EQ(framework().ValoreBool(each.value), each.expected) << each.value.toString().toStdString();
    EXPECT_EQ(framework().noap(QStringLiteral("D'Angelo 'x'")), QStringLiteral("D''Angelo ''x''"));
}

TEST_F(DeskFramework, RecallsPatientsOfItsOwnSchemaOnly) {
    const auto patient = framework().NewPaziente();
    EXPECT_FALSE(patient->Init(QStringLiteral("nessuno")));
    ASSERT_TRUE(patient->Init(verdi_));
    EXPECT_FALSE(framework().RichiamaPaziente(verdi_, QStringLiteral("altrove")));
    EXPECT_EQ(desk_->host().paziente(), nullptr);
    EXPECT_TRUE(framework().RichiamaPaziente(verdi_, patient->idschema()));
    EXPECT_EQ(desk_->host().paziente()->ID(), verdi_);
    EXPECT_FALSE(framework().RichiamaPaziente(QStringLiteral("nessuno")));
    EXPECT_EQ(desk_->host().paziente()->ID(), verdi_) << "a patient who is not there closed the one who is";
}

TEST_F(DeskFramework, AnUnknownUserCodeOpensNoDesk) {
    options_.userCode = QStringLiteral("NESSUNO");
    EXPECT_THROW(desk::Desk::open(options_), desk::OptionError);
}
