#include "treatments/TreatmentState.h"

#include "treatments/clsItemTrattamento.h"

namespace {

constexpr int ICON_UNDER_WAY = 2;
constexpr int ICON_FINISHED = 3;
constexpr int ICON_TO_START = 5;

QString withNumber(const QString& pattern, int number) {
    return pattern.arg(number);
}

TreatmentState noneFinished(int work, int open) {
    if (open == 0) return {QStringLiteral("Da iniziare"), ICON_TO_START};
    QString text = withNumber(QStringLiteral("Aperti %1 lavori"), open);
    if (work > open) text += withNumber(QStringLiteral(". Restano da iniziare %1 lavori"), work - open);
    return {text, ICON_UNDER_WAY};
}

TreatmentState someFinished(int finished, int open, int left) {
    QString text = withNumber(QStringLiteral("%1 lavori finiti"), finished);
    if (open > 0) text += withNumber(QStringLiteral(". Ci sono %1 lavori aperti"), open);
    if (left >= 1) text += withNumber(QStringLiteral(". Restano da iniziare %1 lavori"), left);
    if (open > 0) return {text, ICON_UNDER_WAY};
    return {text, left >= 1 ? ICON_TO_START : 0};
}

} // namespace

TreatmentState treatmentState(const clsItemTrattamento& item) {
    const int work = item.lavori;
    const int open = item.lavoriaperti;
    const int finished = item.lavorifiniti;
    if (work < 1) return {};
    if (finished == work) return {QStringLiteral("FINITO"), ICON_FINISHED};
    if (finished == 0) return noneFinished(work, open);
    return someFinished(finished, open, work - open - finished);
}
