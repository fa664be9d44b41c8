#pragma once

#include "desk/shell/Desk.h"
#include "desk/shell/Options.h"
#include "host/context.h"
#include "host/contract/Framework.h"
#include "host/contract/Host.h"
#include "module/Plugin.h"
#include "platform/Clock.h"
#include "platform/Files.h"
#include "platform/SpecialFolders.h"
#include "platform/XmlDocument.h"
#include "support/Places.h"
#include "support/PracticeDatabase.h"
#include "support/ScriptedDialogs.h"

#include <QTemporaryDir>
#include <functional>
#include <gtest/gtest.h>

/// A desk on the demo practice with the whole module in it, as a dentist starts it; the configuration is that of the
/// templates unless `setParameter` changes it before `start`. The clock stands. No patient is open.
class ModuleFixture : public testing::Test {
protected:
    ModuleFixture() {
        platform::setClock(QDateTime(QDate(2026, 3, 10), QTime(9, 30)));
        sAppPath = places::app();
        options_.databaseUrl = database_.url();
        options_.configDir = folder_.filePath(QStringLiteral("config"));
        options_.demo = true;
    }
    ~ModuleFixture() override {
        desk_.reset();
        sAppPath.clear();
        platform::setApplicationDataFolder(QString());
        platform::releaseClock();
    }

    QString moduleFolder() const { return options_.configDir + QStringLiteral("/Lumetra/Tessara 5000 V6/Corvala"); }

    /// Starts the practice; a second call is a second run on the same data.
    void start() {
        start([](host::Framework&) {});
    }
    /// With more on the ribbon of the host when the module comes.
    void start(const std::function<void(host::Framework&)>& before) {
        desk_.reset();
        desk_ = desk::Desk::open(options_);
        before(desk_->host().Framework());
        auto plugin = std::make_unique<Plugin>();
        plugin_ = plugin.get();
        started_ = desk_->attachModule(std::move(plugin));
        if (!started_) plugin_ = nullptr;
    }
    /// Changes a parameter of the working configuration before a start, seeding it from the template.
    void setParameter(const char* name, const QString& value) {
        const QString file = moduleFolder() + QStringLiteral("/Config.xml");
        ASSERT_TRUE(QDir().mkpath(moduleFolder()));
        if (!platform::files::exists(file)) {
            ASSERT_TRUE(platform::files::copy(sAppPath + QStringLiteral("/Config.xml"), file));
        }
        platform::XmlDocument document;
        ASSERT_TRUE(document.loadFile(file));
        document.selectOne((std::string("//parameter[@name='") + name + "']").c_str()).setText(value);
        ASSERT_TRUE(document.saveFile(file));
    }
    void openRossi() { ASSERT_TRUE(desk_->openPatientByTaxCode(QStringLiteral("RSSMRA80A01H501U"))); }
    QVariantList raiseEvent(const char* name, QVariantList args = {}) {
        plugin_->evento(QLatin1String(name), &desk_->host(), args);
        return args;
    }

    QTemporaryDir folder_;
    PracticeDatabase database_;
    ScriptedDialogs dialogs_;
    desk::Options options_;
    std::unique_ptr<desk::Desk> desk_;
    Plugin* plugin_ = nullptr; ///< Owned by the desk; null when the start was refused.
    bool started_ = false;
};
