#include "DeskFixture.h"

#include <QTabBar>
#include <QToolButton>

class DeskRibbon : public DeskFixture {};

TEST_F(DeskRibbon, CarriesTheControlsThatModulesLookUp) {
    for (const qint32 id : {4, 10, 11, 12, 20, 69, 70, 71, 74, 279, 417, 418, 419, 420}) {
        SCOPED_TRACE(id);
        host::RibbonControl* found = framework().FindRibbonControl(id);
        ASSERT_NE(found, nullptr);
        EXPECT_EQ(found->ID(), id);
        EXPECT_FALSE(found->Caption().isEmpty());
        EXPECT_TRUE(found->Visible());
    }
    EXPECT_EQ(framework().FindRibbonControl(99999), nullptr);
    QStringList entries;
    for (host::RibbonControl* entry : framework().FindRibbonControl(4)->CommandBarControls())
        entries += entry->Caption();
    for (const char* caption : {"Accessi ADI/ADP/ADR", "Vaccinazioni", "PDTA", "Spesa per paziente", "Diario clinico"})
        EXPECT_TRUE(entries.contains(QLatin1String(caption))) << caption;
    EXPECT_EQ(framework().FindRibbonControl(74)->CommandBarControls().isEmpty(), false);
}

TEST_F(DeskRibbon, PressFailsOnWhatAPersonCouldNotPress) {
    attach();
    run_.events.clear();
    host::RibbonControl* button = framework().FindRibbonControl(DeskTestModule::NEW_PLAN);
    QString error;
    button->setEnabled(false);
    EXPECT_FALSE(desk_->pressCommand(QStringLiteral("Nuovo piano"), &error));
    EXPECT_TRUE(error.contains(QLatin1String("disabilitato"))) << error.toStdString();
    EXPECT_FALSE(control<QToolButton>("CRVL0302")->isEnabled());
    button->setEnabled(true);
    button->setVisible(false);
    EXPECT_FALSE(desk_->pressCommand(QStringLiteral("CRVL0302"), &error));
    EXPECT_TRUE(error.contains(QLatin1String("nascosto"))) << error.toStdString();
    EXPECT_FALSE(desk_->pressCommand(QStringLiteral("Volare"), &error));
    EXPECT_TRUE(error.contains(QLatin1String("Volare"))) << error.toStdString();
    EXPECT_FALSE(desk_->pressCommand(QStringLiteral("Archivi clinici"), &error)) << "a menu is no command";
    EXPECT_TRUE(run_.events.isEmpty());

    button->setVisible(true);
    control<QToolButton>("CRVL0302")->click();
    EXPECT_EQ(run_.events, QStringList{QStringLiteral("execute 70001")});
}

TEST_F(DeskRibbon, AGroupGoesWithItsLastButtonAndStyleChangesTheButton) {
    auto* prescription = control<QToolButton>("TSR0069");
    QWidget* group = prescription->parentWidget()->parentWidget();
    for (const qint32 id : {69, 70, 71})
        framework().FindRibbonControl(id)->setVisible(false);
    EXPECT_TRUE(group->isHidden());
    framework().FindRibbonControl(70)->setVisible(true);
    EXPECT_FALSE(group->isHidden());
    EXPECT_TRUE(prescription->isHidden());

    auto* tests = control<QToolButton>("TSR0012");
    EXPECT_EQ(tests->toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
    framework().FindRibbonControl(12)->setStyle(host::StileBottone::IconaSopraDidascalia);
    EXPECT_EQ(tests->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
}

TEST_F(DeskRibbon, AModuleAddsAGroupBesideAHostControl) {
    host::RibbonTab* tab = framework().FindRibbonControl(10)->RibbonGroupGroups();
    ASSERT_NE(tab, nullptr);
    EXPECT_EQ(tab->Caption(), QStringLiteral("Ambulatorio"));
    const qint32 id = framework().GetNewID();
    EXPECT_NE(framework().GetNewID(), id);
    EXPECT_EQ(framework().FindRibbonControl(id), nullptr);
    tab->AddGroup(QStringLiteral("Odontoiatria"), id)
        ->InsertGroupButton({.id = id, .key = {}, .caption = QStringLiteral("Sintesi"), .tooltip = {}});
    EXPECT_NE(framework().FindRibbonControl(id), nullptr);
}

TEST_F(DeskRibbon, TellsTheModuleWhichTabIsInFront) {
    attach();
    run_.events.clear();
    auto* tabs = control<QTabBar>("ribbonTabs");
    tabs->setCurrentIndex(tabs->count() - 1);
    EXPECT_EQ(run_.events, (QStringList{QStringLiteral("mainribbonbar.returntab"),
                                        QStringLiteral("mainribbonbar.activetab Odontoiatria")}));
}

TEST_F(DeskRibbon, TakesPicturesFromFilesOnly) {
    const QString picture = folder_.filePath(QStringLiteral("CRVL0302.png"));
    EXPECT_FALSE(framework().AddFileBitmap(picture, DeskTestModule::NEW_PLAN));
    QImage image(32, 32, QImage::Format_ARGB32);
    image.fill(Qt::red);
    ASSERT_TRUE(image.save(picture));
    EXPECT_TRUE(framework().AddFileBitmap(picture, DeskTestModule::NEW_PLAN));
    attach();
    const QImage shown = control<QToolButton>("CRVL0302")->icon().pixmap(16).toImage();
    EXPECT_EQ(shown.pixelColor(8, 8), QColor(Qt::red)) << "a picture given before its button is lost";
}
