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

inline const char* const MODELLO = R"(<corvala name="Prova" webinfo="https://esempio.it">
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
        sAppPath = cartella_.filePath(QStringLiteral("app"));
        QDir().mkpath(sAppPath + QStringLiteral("/DB"));
        scrivi(sAppPath + QStringLiteral("/Config.xml"), MODELLO);
        scrivi(sAppPath + QStringLiteral("/DB/TabellaArticoli.xml"), "<articoli></articoli>");
        scrivi(sAppPath + QStringLiteral("/DB/TabellaServizi.xml"), "<servizi></servizi>");
        desk::Options opzioni;
        opzioni.databaseUrl = QStringLiteral("sqlite:") + cartella_.filePath(QStringLiteral("studio.db"));
        opzioni.configDir = cartella_.filePath(QStringLiteral("config"));
        desk_ = desk::Desk::open(opzioni);
        oHost = &desk_->host();
        colIva = &iva_;
        colRaggMerc = &gruppi_;
        colSituazioniDenti = &situazioni_;
    }
    ~ClsConfigTest() override {
        oHost = nullptr;
        colIva = nullptr;
        colRaggMerc = nullptr;
        colSituazioniDenti = nullptr;
        sAppPath.clear();
        platform::setApplicationDataFolder(QString());
    }

    static void scrivi(const QString& file, const QByteArray& testo) {
        ASSERT_TRUE(files::writeAtomically(file, testo));
    }
    QString utente(const char* nome) const {
        return cartella_.filePath(QStringLiteral("config/Lumetra/Tessara 5000 V6/Corvala/")) + QLatin1String(nome);
    }
    QByteArray salvato() const { return files::read(utente("Config.xml")).value_or(QByteArray()); }

    QTemporaryDir cartella_;
    std::unique_ptr<desk::Desk> desk_;
    platform::Collection<clsItemIva> iva_;
    platform::Collection<clsItemRaggMerc> gruppi_;
    platform::Collection<clsItemSituazioneDente> situazioni_;
    clsConfig config_;
};
