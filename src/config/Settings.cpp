#include "config/Settings.h"

#include "platform/Regional.h"

#include <cmath>
#include <limits>

namespace {

using I = Settings;

const Parameter PARAMETERS[] = {
    {"generici", "dbPath", &I::DBPAth},
    {"generici", "automaticoRigoVuoto", &I::AutomaticoRigoVuoto},
    {"generici", "refreshFinestre", &I::MinuteRefresh},
    {"generici", "utilizzoMMG", &I::UtilizzoMMG, true},
    {"preventivi", "reportID", &I::PreventReportID},
    {"preventivi", "reportIvaSmall", &I::PreventReportIvaSmall},
    {"trattamenti", "unicaScheda", &I::UnicaSchedaTrattamento},
    {"trattamenti", "peggiorStatusDente", &I::PeggiorStatusDente},
    {"trattamenti", "evidenziaBreve", &I::EvidenziaBreve},
    {"trattamenti", "saltaAllOcchio", &I::SaltaAllOcchio},
    {"trattamenti", "titoloAppunti", &I::TitoloAppunti},
    {"fatturazione", "bollo", &I::Bollo},
    {"fatturazione", "bolloPlafon", &I::BolloPlafon},
    {"fatturazione", "ivaDefault", &I::IVADefault},
    {"fatturazione", "printFont", &I::PrintFont},
    {"fatturazione", "reportID", &I::FatturaReportID},
    {"fatturazione", "reportIvaSmall", &I::FatturaReportIvaSmall},
    {"fatturazione", "richiestaPagamento", &I::FatturaRichiestaPagamento},
    {"prescrizioni", "defaultFarmaciClasseC", &I::DefaultRicetteBianche, true},
};

qint16 minutes(const QString& text) {
    const double number = std::nearbyint(platform::regional().toNumber(text).value_or(0));
    return std::abs(number) > std::numeric_limits<qint16>::max() ? qint16(0) : static_cast<qint16>(number);
}

} // namespace

std::span<const Parameter> parameters() {
    return PARAMETERS;
}

void readParameter(const Parameter& parameter, const QString& text, Settings& settings) {
    if (const auto* field = std::get_if<bool I::*>(&parameter.field)) {
        settings.*(*field) = text == QLatin1String("true");
        return;
    }
    if (const auto* field = std::get_if<qint16 I::*>(&parameter.field)) {
        settings.*(*field) = minutes(text);
        return;
    }
    const auto field = std::get<QString I::*>(parameter.field);
    // An empty title would leave the notes of a plan without one.
    const bool isEmptyTitle = field == &I::TitoloAppunti && text.isEmpty();
    settings.*field = isEmptyTitle ? I().TitoloAppunti : text;
}

QString parameterText(const Parameter& parameter, const Settings& settings) {
    if (const auto* field = std::get_if<bool I::*>(&parameter.field)) {
        return settings.*(*field) ? QStringLiteral("true") : QStringLiteral("false");
    }
    if (const auto* field = std::get_if<qint16 I::*>(&parameter.field)) return QString::number(settings.*(*field));
    return settings.*std::get<QString I::*>(parameter.field);
}
