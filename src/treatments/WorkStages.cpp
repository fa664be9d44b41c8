#include "treatments/WorkStages.h"

#include <QStringList>

namespace workstages {

namespace {

const QString FORMAT = QStringLiteral("yyyyMMdd");
const QLatin1String LINE_END("\r\n");
const QLatin1Char DIVIDER('|');
constexpr qsizetype ONE_DATE = 8;
constexpr qsizetype TWO_DATES = 16;

WorkStage readLine(const QString& line) {
    const QStringList parts = line.split(DIVIDER);
    WorkStage stage;
    stage.name = parts.value(0);
    if (parts.size() != 2) return stage;
    stage.start = QDate::fromString(parts[1].left(ONE_DATE), FORMAT);
    if (parts[1].size() == TWO_DATES) stage.end = QDate::fromString(parts[1].right(ONE_DATE), FORMAT);
    return stage;
}

} // namespace

QList<WorkStage> read(const QString& statuslavori) {
    QList<WorkStage> stages;
    if (statuslavori.isEmpty()) return stages;
    for (const QString& line : statuslavori.split(LINE_END)) {
        if (stages.size() == MOST_STAGES) break;
        stages << readLine(line);
    }
    return stages;
}

QString write(const QList<WorkStage>& stages) {
    QStringList lines;
    for (const WorkStage& stage : stages) {
        QString line = stage.name;
        if (stage.start.isValid()) {
            line += DIVIDER + stage.start.toString(FORMAT);
            if (stage.end.isValid()) line += stage.end.toString(FORMAT);
        }
        lines << line;
    }
    return lines.join(LINE_END);
}

QStringList names(const QString& catalogueText) {
    QStringList names;
    const QStringList lines = catalogueText.trimmed().split(LINE_END);
    for (const QString& line : lines.mid(0, MOST_STAGES)) {
        if (!line.isEmpty()) names << line.section(DIVIDER, 0, 0);
    }
    return names;
}

} // namespace workstages
