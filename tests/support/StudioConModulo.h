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
/// templates unless `parametro` changes it before `avvia`. The clock stands. No patient is open.
class StudioConModulo : public testing::Test {
protected:
    StudioConModulo() {
        platform::setClock(QDateTime(QDate(2026, 3, 10), QTime(9, 30)));
        sAppPath = places::app();
        opzioni_.databaseUrl = archivio_.url();
        opzioni_.configDir = cartella_.filePath(QStringLiteral("config"));
        opzioni_.demo = true;
    }
    ~StudioConModulo() override {
        desk_.reset();
        sAppPath.clear();
        platform::setApplicationDataFolder(QString());
        platform::releaseClock();
    }

    QString cartellaModulo() const { return opzioni_.configDir + QStringLiteral("/Lumetra/Tessara 5000 V6/Corvala"); }

    /// Starts the practice; a second call is a second run on the same data.
    void avvia() {
        avvia([](host::Framework&) {});
    }
    /// With more on the ribbon of the host when the module comes.
    void avvia(const std::function<void(host::Framework&)>& prima) {
        desk_.reset();
        desk_ = desk::Desk::open(opzioni_);
        prima(desk_->host().Framework());
        auto plugin = std::make_unique<Plugin>();
        plugin_ = plugin.get();
        avviato_ = desk_->attachModule(std::move(plugin));
        if (!avviato_) plugin_ = nullptr;
    }
    /// Changes a parameter of the working configuration before a start, seeding it from the template.
    void parametro(const char* nome, const QString& valore) {
        const QString file = cartellaModulo() + QStringLiteral("/Config.xml");
        ASSERT_TRUE(QDir().mkpath(cartellaModulo()));
        if (!platform::files::exists(file)) {
            ASSERT_TRUE(platform::files::copy(sAppPath + QStringLiteral("/Config.xml"), file));
        }
        platform::XmlDocument documento;
        ASSERT_TRUE(documento.loadFile(file));
        documento.selectOne((std::string("//parameter[@name='") + nome + "']").c_str()).setText(valore);
        ASSERT_TRUE(documento.saveFile(file));
    }
    void apriRossi() { ASSERT_TRUE(desk_->openPatientByTaxCode(QStringLiteral("RSSMRA80A01H501U"))); }
    QVariantList evento(const char* nome, QVariantList args = {}) {
        plugin_->evento(QLatin1String(nome), &desk_->host(), args);
        return args;
    }

    QTemporaryDir cartella_;
    PracticeDatabase archivio_;
    ScriptedDialogs dialoghi_;
    desk::Options opzioni_;
    std::unique_ptr<desk::Desk> desk_;
    Plugin* plugin_ = nullptr; ///< Owned by the desk; null when the start was refused.
    bool avviato_ = false;
};
