#include "DeskFixture.h"

#include <QTabBar>
#include <QToolButton>

class DeskRibbon : public DeskFixture {};

TEST_F(DeskRibbon, CarriesTheControlsThatModulesWorkWith) {
    for (const qint32 id : {4, 10, 12, 74}) {
        SCOPED_TRACE(id);
        host::RibbonControl* found = framework().FindRibbonControl(id);
        ASSERT_NE(found, nullptr);
        EXPECT_EQ(found->ID(), id);
        EXPECT_TRUE(found->Visible());
    }
    EXPECT_EQ(framework().FindRibbonControl(99999), nullptr);
    EXPECT_EQ(framework().FindRibbonControl(4)->CommandBarControls().size(), 5) << "the rooms of a patient";
    EXPECT_EQ(framework().FindRibbonControl(74)->CommandBarControls().size(), 1);
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
    auto* problems = control<QToolButton>("TSR0010");
    QWidget* group = problems->parentWidget()->parentWidget();
    for (const qint32 id : {10, 12})
        framework().FindRibbonControl(id)->setVisible(false);
    EXPECT_TRUE(group->isHidden());
    framework().FindRibbonControl(12)->setVisible(true);
    EXPECT_FALSE(group->isHidden());
    EXPECT_TRUE(problems->isHidden());

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
