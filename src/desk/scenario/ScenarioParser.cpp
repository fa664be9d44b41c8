#include "desk/scenario/ScenarioParser.h"

#include "desk/scenario/NearNames.h"
#include "desk/scenario/ScenarioCommand.h"

#include <QDate>
#include <QDateTime>
#include <optional>
#include <utility>

namespace desk {
namespace {

/// The words of one line, or what is wrong with it.
struct Words {
    QStringList words;
    QString fault;
};

QChar escaped(QChar letter) {
    return letter == QLatin1Char('n') ? QLatin1Char('\n') : letter;
}

bool isEscape(QChar letter) {
    return letter == QLatin1Char('"') || letter == QLatin1Char('\\') || letter == QLatin1Char('n');
}

/// Reads a text in quotes that starts at `position`, which moves behind the closing quote. Nothing when it never
/// closes.
std::optional<QString> quotedText(const QString& line, qsizetype& position) {
    QString text;
    for (++position; position < line.size(); ++position) {
        const QChar letter = line[position];
        if (letter == QLatin1Char('"')) {
            ++position;
            return text;
        }
        if (letter == QLatin1Char('\\') && position + 1 < line.size() && isEscape(line[position + 1])) {
            text += escaped(line[++position]);
        } else {
            text += letter;
        }
    }
    return std::nullopt;
}

QString bareWord(const QString& line, qsizetype& position) {
    const qsizetype start = position;
    while (position < line.size() && !line[position].isSpace())
        ++position;
    return line.mid(start, position - start);
}

Words splitLine(const QString& line) {
    Words result;
    qsizetype position = 0;
    while (position < line.size()) {
        if (line[position].isSpace()) {
            ++position;
        } else if (line[position] == QLatin1Char('#')) {
            break;
        } else if (line[position] == QLatin1Char('"')) {
            const std::optional<QString> text = quotedText(line, position);
            if (!text) return {{}, QStringLiteral("mancano le virgolette di chiusura")};
            result.words += *text;
        } else {
            result.words += bareWord(line, position);
        }
    }
    return result;
}

QString shapeFault(const QString& shape, const QString& argument) {
    if (shape == QLatin1String("ROW") || shape == QLatin1String("COL") || shape == QLatin1String("N")) {
        bool isNumber = false;
        const bool fits = argument.toInt(&isNumber) >= 0 && isNumber;
        return fits ? QString() : QStringLiteral("«%1» non è un numero da 0 in su").arg(argument);
    }
    if (shape == QLatin1String("dd/mm/yyyy")) {
        const bool fits = argument.isEmpty() || QDate::fromString(argument, QStringLiteral("dd/MM/yyyy")).isValid();
        return fits ? QString() : QStringLiteral("«%1» non è una data gg/mm/aaaa").arg(argument);
    }
    if (shape == QLatin1String("yyyy-mm-ddThh:mm:ss")) {
        const bool fits = QDateTime::fromString(argument, Qt::ISODate).isValid();
        return fits ? QString() : QStringLiteral("«%1» non è un momento aaaa-mm-ggThh:mm:ss").arg(argument);
    }
    if (shape != shape.toLower()) return {};
    const bool fits = shape.split(QLatin1Char('|')).contains(argument);
    return fits ? QString() : QStringLiteral("«%1» non è ammesso: %2").arg(argument, shape);
}

/// The shapes of the arguments in each way to write them: with and without each group in brackets.
QList<QStringList> waysToWrite(const QString& usage) {
    QList<QStringList> ways{{}};
    bool isOptional = false;
    for (QString part : usage.split(QLatin1Char('['))) {
        const QStringList group = part.remove(QLatin1Char(']')).split(QLatin1Char(' '), Qt::SkipEmptyParts);
        const QList<QStringList> before = ways;
        for (QStringList& way : ways)
            way += group;
        if (std::exchange(isOptional, true)) ways += before;
    }
    return ways;
}

QString argumentFault(const ScenarioCommand& command, const QStringList& arguments) {
    // No two ways of a command have as many arguments.
    for (const QStringList& shapes : waysToWrite(command.usage)) {
        if (shapes.size() != arguments.size()) continue;
        for (qsizetype index = 0; index < arguments.size(); ++index) {
            const QString fault = shapeFault(shapes[index], arguments[index]);
            if (!fault.isEmpty()) return fault;
        }
        return {};
    }
    return QStringLiteral("argomenti errati, si scrive: %1 %2").arg(command.name, command.usage).trimmed();
}

QString commandFault(const ScenarioLine& line) {
    if (const ScenarioCommand* command = findScenarioCommand(line.command))
        return argumentFault(*command, line.arguments);
    QStringList names;
    for (const ScenarioCommand& command : scenarioCommands())
        names += command.name;
    return QStringLiteral("comando sconosciuto «%1»; nomi vicini: %2")
        .arg(line.command, nearNames(line.command, names).join(QLatin1String(", ")));
}

} // namespace

ParsedScenario parseScenario(const QString& text) {
    ParsedScenario result;
    int number = 0;
    for (QString written : text.split(QLatin1Char('\n'))) {
        ++number;
        if (number == 1 && written.startsWith(QChar::ByteOrderMark)) written.remove(0, 1);
        Words read = splitLine(written);
        if (read.fault.isEmpty() && read.words.isEmpty()) continue;
        ScenarioLine line{number, read.words.value(0), read.words.mid(1)};
        const QString fault = read.fault.isEmpty() ? commandFault(line) : read.fault;
        if (!fault.isEmpty()) return {{}, number, fault};
        result.lines += line;
    }
    return result;
}

} // namespace desk
