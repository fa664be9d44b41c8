#include "chart/ToothSituation.h"

#include "chart/modDenti.h"

#include <QStringList>

namespace {

constexpr QChar ENTRIES = u';';
constexpr QChar PARTS = u':';

} // namespace

std::optional<ToothSituation> ToothSituation::fromEntry(const QString& entry) {
    bool isNumber = false;
    const int index = entry.section(PARTS, 0, 0).toInt(&isNumber);
    if (!isNumber || index < 0 || index >= TOOTH_COUNT) return std::nullopt;
    return ToothSituation{index, entry.section(PARTS, 1, 1), entry.section(PARTS, 2)};
}

QString ToothSituation::entry() const {
    return QString::number(tooth) + PARTS + situation + PARTS + text;
}

void ToothSituation::setText(const QString& typed) {
    text = QString(typed).replace(ENTRIES, u',').simplified();
}

bool ToothSituation::isPlain() const {
    return situation.toInt() < 1 && text.isEmpty();
}

QList<ToothSituation> readMouth(const QString& mouthSituation) {
    QList<ToothSituation> entries;
    const QStringList texts = mouthSituation.split(ENTRIES, Qt::SkipEmptyParts);
    for (const QString& text : texts) {
        if (const auto entry = ToothSituation::fromEntry(text)) entries << *entry;
    }
    return entries;
}

QString writeMouth(const QList<ToothSituation>& entries) {
    QStringList texts;
    for (const ToothSituation& entry : entries)
        texts << entry.entry();
    return texts.join(ENTRIES);
}

ToothSituation situationOf(const QString& mouthSituation, int tooth) {
    for (const ToothSituation& entry : readMouth(mouthSituation)) {
        if (entry.tooth == tooth) return entry;
    }
    return {tooth, QString(), QString()};
}
