#include "catalogues/modSceltaServizio.h"
#include "config/clsItemIva.h"
#include "config/clsItemRaggMerc.h"
#include "platform/ReportGrid.h"
#include "support/ServiceFile.h"
#include "support/Text.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>
#include <functional>
#include <gtest/gtest.h>

namespace {

struct Visit {
    QDialog* window;
    platform::ReportGrid* grid() const { return window->findChild<platform::ReportGrid*>(u8("rcLista")); }
    QTreeWidget* tree() const { return window->findChild<QTreeWidget*>(u8("TreeView1")); }
    QString codes() const {
        QStringList codes;
        for (int row = 0; row < grid()->rowCount(); ++row)
            codes.append(grid()->rowRecord(row)->cell(0).value);
        return codes.join(u',');
    }
    void press(const char* button) const { QTest::mouseClick(window->findChild<QWidget*>(u8(button)), Qt::LeftButton); }
    void clickGroup(const char* text) const {
        const auto found = tree()->findItems(u8(text), Qt::MatchExactly | Qt::MatchRecursive);
        ASSERT_EQ(found.size(), 1) << text;
        QTest::mouseClick(tree()->viewport(), Qt::LeftButton, Qt::NoModifier,
                          tree()->visualItemRect(found.first()).center());
    }
};

/// Four services in two groups; LAVANDA is not for treatment plans.
class ServicePicker : public testing::Test {
protected:
    ServicePicker() {
        groups_.add(u8("01"), {u8("01"), u8("Visite")});
        groups_.add(u8("PR"), {u8("PR"), u8("Protesi")});
        groups_.add(QString(), {QString(), u8("Senza codice")});
        rates_.add(u8("ES"), {u8("ES"), u8("Esente"), 0});
        colRaggMerc = &groups_;
        colIva = &rates_;
        QByteArray crown = ServiceFile::entry("CORONA");
        crown.replace("raggruppamento=\"01\"", "raggruppamento=\" pr \"").replace("VmlzaXRh", "Q29yb25h");
        QByteArray wash = ServiceFile::entry("LAVANDA");
        wash.replace("usabileInPianoTrattamento=\"1\"", "usabileInPianoTrattamento=\"0\"");
        file_.putEntries(ServiceFile::entry("VISITA") + crown + wash + ServiceFile::entry("VISCON"));
    }
    ~ServicePicker() override {
        colRaggMerc = nullptr;
        colIva = nullptr;
    }
    bool choose(bool onlyTreatments, const std::function<void(const Visit&)>& script) {
        QTimer::singleShot(0, qApp, [&script] {
            auto* window = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(window, nullptr);
            script(Visit{window});
            if (window->isVisible()) window->close();
        });
        return ScegliServizio(onlyTreatments, code_, text_);
    }

    ServiceFile file_;
    platform::Collection<clsItemRaggMerc> groups_;
    platform::Collection<clsItemIva> rates_;
    QString code_;
    QString text_;
};

} // namespace

TEST_F(ServicePicker, FiltersByDescriptionAndByUseInPlans) {
    const struct {
        bool onlyTreatments;
        const char* code;
        const char* text;
        const char* rows;
    } cases[] = {
        {false, "", "", "VISITA,CORONA,LAVANDA,VISCON"},
        {true, "", "", "VISITA,CORONA,VISCON"},
        {true, " vis ", "", "VISITA,VISCON"},
        {true, "", "ORO", "CORONA"},
        {true, "vis", "corona", ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.code << "/" << c.text);
        code_ = u8(c.code);
        text_ = u8(c.text);
        EXPECT_FALSE(choose(c.onlyTreatments, [&c](const Visit& visit) {
            EXPECT_EQ(visit.codes(), u8(c.rows));
            EXPECT_EQ(visit.window->findChild<QLabel*>(u8("laSoloTrattamenti"))->text(),
                      c.onlyTreatments ? u8("S") : QString());
            visit.press("cbChiudi");
        }));
        EXPECT_EQ(code_, u8(c.code));
        EXPECT_EQ(text_, u8(c.text));
    }
}

TEST_F(ServicePicker, AGroupShowsItsOwnServicesAndForgetsTheTextsOfTheStart) {
    code_ = u8("VISITA");
    EXPECT_TRUE(choose(true, [](const Visit& visit) {
        EXPECT_EQ(visit.grid()->rowRecord(0)->cell(1).value, u8("Esente"));
        EXPECT_EQ(visit.grid()->rowRecord(0)->cell(3).value, u8("Visite"));
        EXPECT_TRUE(visit.tree()->findItems(u8("Senza codice"), Qt::MatchRecursive).isEmpty());
        visit.clickGroup("Protesi");
        EXPECT_EQ(visit.codes(), u8("CORONA"));
        visit.clickGroup("Visite");
        EXPECT_EQ(visit.codes(), u8("VISITA,VISCON"));
        visit.clickGroup("Ragruppamenti");
        EXPECT_EQ(visit.codes(), u8("VISITA,VISCON")) << "the root has children and filters nothing";
        visit.clickGroup("Mostra tutto");
        EXPECT_EQ(visit.codes(), u8("VISITA,CORONA,VISCON")) << "still only those for plans";
        visit.tree()->setFocus();
        QTest::keyClick(visit.tree(), Qt::Key_Down);
        QTest::keyClick(visit.tree(), Qt::Key_Return);
        ASSERT_TRUE(visit.window->isVisible()) << "Enter on a group takes no service";
        EXPECT_EQ(visit.codes(), u8("VISITA,VISCON"));
        QTest::keyClick(visit.tree(), Qt::Key_Up);
        QTest::keyClick(visit.tree(), Qt::Key_Enter);
        EXPECT_EQ(visit.codes(), u8("VISITA,CORONA,VISCON"));
        visit.grid()->setFocusedRecord(visit.grid()->rowRecord(1));
        QTest::keyClick(visit.grid()->view(), Qt::Key_Return);
        EXPECT_FALSE(visit.window->isVisible());
    }));
    EXPECT_EQ(code_, u8("CORONA"));
    EXPECT_EQ(text_, u8("Corona"));
}

TEST_F(ServicePicker, WithoutARowNothingIsChosen) {
    text_ = u8("niente del genere");
    EXPECT_FALSE(choose(true, [](const Visit& visit) {
        visit.press("cbPiglia");
        EXPECT_TRUE(visit.window->isVisible());
        QTest::keyClick(visit.window, Qt::Key_Escape);
        EXPECT_EQ(visit.window->findChild<QLabel*>(u8("laOUTB"))->text(), u8("CANCEL"));
    }));
    EXPECT_EQ(text_, u8("niente del genere"));
}

TEST_F(ServicePicker, AnEmptyCatalogueOpensNoWindow) {
    file_.putEntries("");
    code_ = u8("VIS");
    EXPECT_FALSE(ScegliServizio(true, code_, text_));
    EXPECT_EQ(code_, u8("VIS"));
}

TEST_F(ServicePicker, GroupListSelectsExactlyTheCode) {
    QComboBox combo;
    combo.addItem(u8("vecchia"));
    const struct {
        const char* code;
        int index;
    } cases[] = {{"01", 1}, {"PR", 2}, {"pr", -1}, {"99", -1}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.code);
        CaricaComboRaggrMerc(&combo, u8(c.code));
        EXPECT_EQ(combo.count(), 4);
        EXPECT_TRUE(combo.itemText(0).isEmpty());
        EXPECT_EQ(combo.itemText(2), u8("PR Protesi"));
        EXPECT_EQ(combo.currentIndex(), c.index);
    }
}
