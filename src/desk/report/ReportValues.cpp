#include "desk/report/ReportValues.h"

#include "platform/Clock.h"
#include "platform/Regional.h"

namespace desk {

ReportValues::ReportValues(QMap<QString, QVariant> variables)
    : variables_(std::move(variables)) {
    const QString today = QStringLiteral("Oggi");
    if (!variables_.contains(today)) set(today, platform::regional().shortDate(platform::now().date()));
}

QString ReportValues::text(const QString& name) {
    const auto found = variables_.constFind(name);
    if (found != variables_.constEnd()) return found->toString();
    if (!missing_.contains(name)) missing_.append(name);
    return {};
}

bool ReportValues::isFilled(const QString& name) const {
    return !variables_.value(name).toString().trimmed().isEmpty();
}

QString ReportValues::expanded(const QString& text) {
    QString result;
    qsizetype at = 0;
    while (at < text.size()) {
        const qsizetype open = text.indexOf(QLatin1Char('{'), at);
        if (open < 0) break;
        result += QStringView(text).mid(at, open - at);
        if (QStringView(text).mid(open, 2) == QLatin1String("{{")) {
            result += QLatin1Char('{');
            at = open + 2;
            continue;
        }
        const qsizetype close = text.indexOf(QLatin1Char('}'), open);
        // A brace without its partner is a text like any other.
        if (close < 0) {
            at = open;
            break;
        }
        result += this->text(text.mid(open + 1, close - open - 1).trimmed());
        at = close + 1;
    }
    return result + text.mid(at);
}

void ReportValues::note(const QString& what) {
    if (!notes_.contains(what)) notes_.append(what);
}

} // namespace desk
