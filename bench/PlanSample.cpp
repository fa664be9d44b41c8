#include "PlanSample.h"

namespace {

clsItemRigoTrattamento rowSample(int position, int number) {
    clsItemRigoTrattamento row;
    const int kind = (position * 7 + number) % 5;
    row.progressivo = QStringLiteral("%1").arg(position, 2, 10, QLatin1Char('0'));
    row.descrizione = QStringLiteral("Otturazione in composito di due superfici, %1").arg(kind);
    row.servizio = QStringLiteral("OTTURAZ");
    row.dente = kind == 0 ? QStringLiteral("+") : QString::number(1 + (position + number) % 32);
    if (kind == 0) row.denti = QStringLiteral("7;8;9");
    if (kind > 1) row.inizio = QStringLiteral("12/03/2025");
    if (kind > 2) row.fine = QStringLiteral("19/03/2025");
    row.statuslavori = QStringLiteral("Preparazione|12/03/2025\r\nProva|16/03/2025");
    row.raggruppamento = QStringLiteral("CONS");
    if (kind > 3) row.fattura = QStringLiteral("2025-0012");
    row.note = QStringLiteral("Anestesia locale; il paziente è allergico al lattice");
    row.prezzo = static_cast<float>(80 + 12.5 * kind);
    row.operatore = QStringLiteral("ROSSI");
    row.assistente = QStringLiteral("BIANCHI");
    return row;
}

} // namespace

clsItemTrattamento planSample(int rows, int number) {
    clsItemTrattamento plan;
    // No number twice: a year has four digits of them.
    plan.anno = QString::number(2025 - number / 10000);
    plan.progressivo = QStringLiteral("%1").arg(number % 10000, 4, 10, QLatin1Char('0'));
    plan.Data = QStringLiteral("10/03/2025");
    plan.descrizione = QStringLiteral("Piano di cura numero %1").arg(number);
    plan.cliente = QStringLiteral("RSSMRA80A01H501U");
    plan.descrizionecliente = QStringLiteral("Rossi Mario");
    plan.medico = QStringLiteral("BNCLRA75B41F205X");
    plan.descrizionemedico = QStringLiteral("Bianchi Laura");
    plan.Annotazioni = QStringLiteral("Da rivedere dopo l'estate");
    plan.SituazioneOrale = QStringLiteral("7:1:carie;8:2:da devitalizzare");
    for (int position = 1; position <= rows; ++position) {
        const clsItemRigoTrattamento row = rowSample(position, number);
        plan.righi.add(row.progressivo, row);
    }
    return plan;
}
