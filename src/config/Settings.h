#pragma once

#include <QString>
#include <span>
#include <variant>

/// The settings that `Config.xml` holds as parameters, with their values when the file has none.
struct Settings {
    QString DBPAth;
    bool AutomaticoRigoVuoto = false;
    qint16 MinuteRefresh = 0; ///< Minutes; 0 turns the timer off.
    bool UtilizzoMMG = false;
    QString PreventReportID;
    bool PreventReportIvaSmall = false;
    bool UnicaSchedaTrattamento = false;
    bool PeggiorStatusDente = false;
    bool EvidenziaBreve = false;
    bool SaltaAllOcchio = false;
    QString TitoloAppunti = QStringLiteral("Storico degli Appunti");
    QString Bollo;
    QString BolloPlafon;
    QString IVADefault;
    QString PrintFont;
    QString FatturaReportID;
    bool FatturaReportIvaSmall = false;
    bool FatturaRichiestaPagamento = true;
    bool DefaultRicetteBianche = true;
};

/// Where a setting stands in the file and in Impostazioni.
struct Parameter {
    using Field = std::variant<QString Settings::*, bool Settings::*, qint16 Settings::*>;

    const char* group;
    const char* name;
    Field field;
    bool addedLater = false; ///< Came later than the first files: written even where its node is missing.
};

std::span<const Parameter> parameters();

/// Stores the text of a node into the field. Booleans are true for exactly "true"; numbers that do not fit are 0.
void readParameter(const Parameter& parameter, const QString& text, Settings& settings);
/// The text that a node holds for the value of the field.
QString parameterText(const Parameter& parameter, const Settings& settings);
