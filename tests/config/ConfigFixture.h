#pragma once

#include "config/clsConfig.h"
#include "config/clsItemIva.h"
#include "config/clsItemRaggMerc.h"
#include "config/clsItemSituazioneDente.h"
#include "desk/shell/Desk.h"
#include "desk/shell/Options.h"
#include "host/context.h"
#include "host/contract/Host.h"
#include "platform/Files.h"
#include "platform/SpecialFolders.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace files = platform::files;

inline const char* const MODEL = R"(<corvala name="Prova" webinfo="https://esempio.it">
<user><title></title><details></details></user>
<tools><tool id="altro" path="x"/><tool id="imageEditor" path="/usr/bin/gimp"/></tools>
<parameters><generici><parameter name="dbPath">[app.path]\DB\</parameter>
<parameter name="automaticoRigoVuoto">false</parameter><parameter name="refreshFinestre">5</parameter></generici>
<preventivi><parameter name="reportID"></parameter><parameter name="reportIvaSmall">True</parameter></preventivi>
<trattamenti><parameter name="unicaScheda">true</parameter><parameter name="titoloAppunti"></parameter>
<parameter name="ignoto">x</parameter></trattamenti>
<fatturazione><parameter name="bolloPlafon">77,47</parameter><parameter name="ivaDefault"></parameter></fatturazione>
</parameters>
<accise><iva codice="22" percentuale="22">Ordinaria</iva><iva codice="5" percentuale="5,5">Ridotta</iva></accise>
<ragruppamentiMerciologici><ragruppamento codice="01">Visite</ragruppamento></ragruppamentiMerciologici>
<situazioniDenti><situazione id="9" descrizione="Impianto"/></situazioniDenti>
<services><service id="CRVL0303" endpoint="e" enabled="1" patient="1">
<bibliography><link title="T" caption="C" url="U"/><link title="T2" caption="C2" url="U2"/></bibliography></service>
<service id="CRVL0301" enabled="true" patient="0"/><service id="CRVL0303" enabled="0"/></services></corvala>)";

/// A configuration on a real user of a real practice; install folder and user's folder are temporary.
class ClsConfigTest : public testing::Test {
protected:
    ClsConfigTest() {
        sAppPath = folder_.filePath(QStringLiteral("app"));
        QDir().mkpath(sAppPath + QStringLiteral("/DB"));
        write(sAppPath + QStringLiteral("/Config.xml"), MODEL);
        write(sAppPath + QStringLiteral("/DB/TabellaArticoli.xml"), "<articoli></articoli>");
        write(sAppPath + QStringLiteral("/DB/TabellaServizi.xml"), "<servizi></servizi>");
        desk::Options options;
        options.databaseUrl = QStringLiteral("sqlite:") + folder_.filePath(QStringLiteral("studio.db"));
        options.configDir = folder_.filePath(QStringLiteral("config"));
        desk_ = desk::Desk::open(options);
        oHost = &desk_->host();
        colIva = &vat_;
        colRaggMerc = &groups_;
        colSituazioniDenti = &situations_;
    }
    ~ClsConfigTest() override {
        oHost = nullptr;
        colIva = nullptr;
        colRaggMerc = nullptr;
        colSituazioniDenti = nullptr;
        sAppPath.clear();
        platform::setApplicationDataFolder(QString());
    }

    static void write(const QString& file, const QByteArray& text) { ASSERT_TRUE(files::writeAtomically(file, text)); }
    QString userFile(const char* name) const {
        return folder_.filePath(QStringLiteral("config/Lumetra/Tessara 5000 V6/Corvala/")) + QLatin1String(name);
    }
    QByteArray saved() const { return files::read(userFile("Config.xml")).value_or(QByteArray()); }

    QTemporaryDir folder_;
    std::unique_ptr<desk::Desk> desk_;
    platform::Collection<clsItemIva> vat_;
    platform::Collection<clsItemRaggMerc> groups_;
    platform::Collection<clsItemSituazioneDente> situations_;
    clsConfig config_;
};
