#include "PlanSample.h"

namespace {

clsItemRigoTrattamento rowSample(int row, int number) {
    clsItemRigoTrattamento rigo;
    const int kind = (row * 7 + number) % 5;
    rigo.progressivo = QStringLiteral("%1").arg(row, 2, 10, QLatin1Char('0'));
    rigo.descrizione = QStringLiteral("Otturazione in composito di due superfici, %1").arg(kind);
    rigo.servizio = QStringLiteral("OTTURAZ");
    rigo.dente = kind == 0 ? QStringLiteral("+") : QString::number(1 + (row + number) % 32);
    if (kind == 0) rigo.denti = QStringLiteral("7;8;9");
    if (kind > 1) rigo.inizio = QStringLiteral("12/03/2025");
    if (kind > 2) rigo.fine = QStringLiteral("19/03/2025");
    rigo.statuslavori = QStringLiteral("Preparazione|12/03/2025\r\nProva|16/03/2025");
    rigo.raggruppamento = QStringLiteral("CONS");
    if (kind > 3) rigo.fattura = QStringLiteral("2025-0012");
    rigo.note = QStringLiteral("Anestesia locale; il paziente è allergico al lattice");
    rigo.prezzo = static_cast<float>(80 + 12.5 * kind);
    rigo.operatore = QStringLiteral("ROSSI");
    rigo.assistente = QStringLiteral("BIANCHI");
    return rigo;
}

} // namespace

clsItemTrattamento planSample(int rows, int number) {
    clsItemTrattamento plan;
    plan.anno = QStringLiteral("2025");
    plan.progressivo = QStringLiteral("%1").arg(number % 10000, 4, 10, QLatin1Char('0'));
    plan.Data = QStringLiteral("10/03/2025");
    plan.descrizione = QStringLiteral("Piano di cura numero %1").arg(number);
    plan.cliente = QStringLiteral("RSSMRA80A01H501U");
    plan.descrizionecliente = QStringLiteral("Rossi Mario");
    plan.medico = QStringLiteral("BNCLRA75B41F205X");
    plan.descrizionemedico = QStringLiteral("Bianchi Laura");
    plan.Annotazioni = QStringLiteral("Da rivedere dopo l'estate");
    plan.SituazioneOrale = QStringLiteral("7:1:carie;8:2:da devitalizzare");
    for (int row = 1; row <= rows; ++row) {
        const clsItemRigoTrattamento rigo = rowSample(row, number);
        plan.righi.add(rigo.progressivo, rigo);
    }
    return plan;
}
