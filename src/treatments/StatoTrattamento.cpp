#include "treatments/StatoTrattamento.h"

#include "treatments/clsItemTrattamento.h"

namespace {

constexpr int ICONA_IN_CORSO = 2;
constexpr int ICONA_FINITO = 3;
constexpr int ICONA_DA_INIZIARE = 5;

QString conNumero(const QString& modello, int numero) {
    return modello.arg(numero);
}

StatoTrattamento nessunoFinito(int lavori, int aperti) {
    if (aperti == 0) return {QStringLiteral("Da iniziare"), ICONA_DA_INIZIARE};
    QString testo = conNumero(QStringLiteral("Aperti %1 lavori"), aperti);
    if (lavori > aperti) testo += conNumero(QStringLiteral(". Restano da iniziare %1 lavori"), lavori - aperti);
    return {testo, ICONA_IN_CORSO};
}

StatoTrattamento qualcunoFinito(int finiti, int aperti, int restano) {
    QString testo = conNumero(QStringLiteral("%1 lavori finiti"), finiti);
    if (aperti > 0) testo += conNumero(QStringLiteral(". Ci sono %1 lavori aperti"), aperti);
    if (restano >= 1) testo += conNumero(QStringLiteral(". Restano da iniziare %1 lavori"), restano);
    if (aperti > 0) return {testo, ICONA_IN_CORSO};
    return {testo, restano >= 1 ? ICONA_DA_INIZIARE : 0};
}

} // namespace

StatoTrattamento statoTrattamento(const clsItemTrattamento& item) {
    const int lavori = item.lavori;
    const int aperti = item.lavoriaperti;
    const int finiti = item.lavorifiniti;
    if (lavori < 1) return {};
    if (finiti == lavori) return {QStringLiteral("FINITO"), ICONA_FINITO};
    if (finiti == 0) return nessunoFinito(lavori, aperti);
    return qualcunoFinito(finiti, aperti, lavori - aperti - finiti);
}
