#pragma once

#include <QString>
#include <span>
#include <variant>

/// The settings that `Config.xml` holds as parameters, with their values when the file has none.
struct Impostazioni {
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
struct Parametro {
    using Campo = std::variant<QString Impostazioni::*, bool Impostazioni::*, qint16 Impostazioni::*>;

    const char* gruppo;
    const char* nome;
    Campo campo;
    bool aggiunto = false; ///< Came later than the first files: written even where its node is missing.
};

std::span<const Parametro> parametri();

/// Stores the text of a node into the field. Booleans are true for exactly "true"; numbers that do not fit are 0.
void leggiParametro(const Parametro& parametro, const QString& testo, Impostazioni& impostazioni);
/// The text that a node holds for the value of the field.
QString testoParametro(const Parametro& parametro, const Impostazioni& impostazioni);
