#include "config/Impostazioni.h"

#include "platform/Regional.h"

#include <cmath>
#include <limits>

namespace {

using I = Impostazioni;

const Parametro PARAMETRI[] = {
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

qint16 minuti(const QString& testo) {
    const double numero = std::nearbyint(platform::regional().toNumber(testo).value_or(0));
    return std::abs(numero) > std::numeric_limits<qint16>::max() ? qint16(0) : static_cast<qint16>(numero);
}

} // namespace

std::span<const Parametro> parametri() {
    return PARAMETRI;
}

void leggiParametro(const Parametro& parametro, const QString& testo, Impostazioni& impostazioni) {
    if (const auto* campo = std::get_if<bool I::*>(&parametro.campo)) {
        impostazioni.*(*campo) = testo == QLatin1String("true");
        return;
    }
    if (const auto* campo = std::get_if<qint16 I::*>(&parametro.campo)) {
        impostazioni.*(*campo) = minuti(testo);
        return;
    }
    const auto campo = std::get<QString I::*>(parametro.campo);
    // An empty title would leave the notes of a plan without one.
    const bool titoloVuoto = campo == &I::TitoloAppunti && testo.isEmpty();
    impostazioni.*campo = titoloVuoto ? I().TitoloAppunti : testo;
}

QString testoParametro(const Parametro& parametro, const Impostazioni& impostazioni) {
    if (const auto* campo = std::get_if<bool I::*>(&parametro.campo)) {
        return impostazioni.*(*campo) ? QStringLiteral("true") : QStringLiteral("false");
    }
    if (const auto* campo = std::get_if<qint16 I::*>(&parametro.campo)) return QString::number(impostazioni.*(*campo));
    return impostazioni.*std::get<QString I::*>(parametro.campo);
}
