#include "ReportSample.h"

#include "desk/data/Database.h"
#include "desk/data/FreeData.h"
#include "desk/report/frmModelli.h"
#include "platform/Files.h"
#include "platform/ReportGrid.h"
#include "support/ScriptedDialogs.h"

#include <QPushButton>
#include <QTest>

namespace {

/// The window of the layouts over the archive of a real practice.
class PrintLayouts : public testing::Test {
protected:
    PrintLayouts()
        : database_(desk::Database::open(desk::DatabaseUrl::parse(u8("sqlite:") + folder_.filePath(u8("studio.db")))))
        , archive_(*database_, u8("prova")) {
        desk::ReportLayouts(archive_).provide();
        window_ = std::make_unique<desk::frmModelli>(archive_);
        window_->show();
    }

    platform::ReportGrid& grid() { return *window_->findChild<platform::ReportGrid*>(u8("rcModelli")); }
    QPushButton* button(const char* name) { return window_->findChild<QPushButton*>(u8(name)); }
    void press(const char* name) { QTest::mouseClick(button(name), Qt::LeftButton); }
    void choose(const char* title) {
        for (int i = 0; i < grid().rowCount(); ++i)
            if (grid().rowRecord(i)->cell(0).value == u8(title)) grid().setFocusedRecord(grid().rowRecord(i));
        ASSERT_EQ(grid().focusedRecord()->cell(0).value, u8(title));
    }
    QString state() { return grid().focusedRecord()->cell(1).value; }
    QString stored() { return archive_.Carica(grid().focusedRecord()->tag)->file; }
    QString file(const char* name, const QString& content) {
        const QString path = folder_.filePath(u8(name));
        EXPECT_TRUE(platform::files::writeAtomically(path, content.toUtf8()));
        return path;
    }

    QTemporaryDir folder_;
    std::unique_ptr<desk::Database> database_;
    desk::FreeData archive_;
    ScriptedDialogs dialogs_;
    std::unique_ptr<desk::frmModelli> window_;
};

} // namespace

TEST_F(PrintLayouts, GoOutAsFilesAndComeBackChanged) {
    const QString shipped = desk::ReportLayouts::shipped()[1].xml;
    choose("Preventivo");
    EXPECT_EQ(state(), u8("Fornito con il programma"));
    EXPECT_FALSE(button("cbRipristina")->isEnabled());
    EXPECT_FALSE(button("cbElimina")->isEnabled());
    dialogs_.file = folder_.filePath(u8("mio.xml"));
    press("cbEsporta");
    EXPECT_EQ(dialogs_.proposed, u8("Preventivo.xml"));
    QString changed = QString::fromUtf8(platform::files::read(dialogs_.file).value_or(QByteArray()));
    EXPECT_EQ(changed, shipped);

    file("mio.xml", changed.replace(u8("Firma per accettazione"), u8("Firma, l'è così: 100% €")));
    press("cbImporta");
    EXPECT_EQ(stored(), shipped) << "replaced although the user said no";
    dialogs_.answer = platform::Answer::Yes;
    press("cbImporta");
    EXPECT_EQ(stored(), changed);
    EXPECT_EQ(grid().focusedRecord()->cell(0).value, u8("Preventivo"));
    EXPECT_EQ(state(), u8("Dello studio"));
    press("cbRipristina");
    EXPECT_EQ(stored(), shipped);
}

TEST_F(PrintLayouts, AreAddedAndRemoved) {
    dialogs_.file = file("Carta d'oro.xml", sample::layoutOf(u8("<testo>Ciao</testo>")));
    press("cbNuovo");
    EXPECT_EQ(grid().rowCount(), 4);
    EXPECT_EQ(grid().focusedRecord()->cell(0).value, u8("Carta d'oro"));
    const QString id = grid().focusedRecord()->tag;
    press("cbElimina");
    EXPECT_TRUE(archive_.Carica(id)) << "removed although the user said no";
    dialogs_.answer = platform::Answer::Yes;
    press("cbElimina");
    EXPECT_FALSE(archive_.Carica(id));
    EXPECT_EQ(grid().rowCount(), 3);
}

TEST_F(PrintLayouts, RefuseWhatIsNoLayout) {
    dialogs_.answer = platform::Answer::Yes;
    choose("Fattura");
    const QString before = stored();
    for (const QString& content :
         {u8("<report><corpo><tabella/></corpo></report>"), u8("Gentile paziente"), QString()}) {
        SCOPED_TRACE(content.toStdString());
        dialogs_.messages.clear();
        dialogs_.file = file("rotto.xml", content);
        press("cbImporta");
        press("cbNuovo");
        ASSERT_EQ(dialogs_.messages.size(), 2);
        EXPECT_TRUE(dialogs_.messages[0].startsWith(u8("Il file non è un modello di stampa valido.")));
        EXPECT_EQ(stored(), before);
        EXPECT_EQ(grid().rowCount(), 3);
    }
    dialogs_.file = folder_.filePath(u8("manca.xml"));
    press("cbImporta");
    EXPECT_TRUE(dialogs_.messages.last().contains(u8("non si può leggere")));
    // One that an older version or another hand left there is shown for what it is.
    host::ItemDati broken{u8("rotto"), u8("Certificati/Odontoiatria"), u8("Antico"), u8("<report>")};
    ASSERT_TRUE(archive_.Salva(broken, true));
    desk::frmModelli again(archive_);
    window_.reset();
    auto* list = again.findChild<platform::ReportGrid*>(u8("rcModelli"));
    ASSERT_EQ(list->rowCount(), 4);
    EXPECT_EQ(list->rowRecord(0)->cell(1).value, u8("Non leggibile"));
}

TEST_F(PrintLayouts, SayWhenTheArchiveFails) {
    choose("Fattura");
    dialogs_.answer = platform::Answer::Yes;
    dialogs_.file = file("mio.xml", sample::layoutOf(u8("<testo>Ciao</testo>")));
    database_->command(u8("create temp trigger guasto before insert on tessara.tblDati "
                          "begin select raise(abort, 'disco pieno'); end"));
    press("cbImporta");
    EXPECT_TRUE(dialogs_.messages.last().contains(u8("non è stato salvato")));
    EXPECT_EQ(stored(), desk::ReportLayouts::shipped()[0].xml);
}
