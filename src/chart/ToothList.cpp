#include "chart/ToothList.h"

#include "chart/modDenti.h"

#include <QRegularExpression>
#include <algorithm>

namespace {

constexpr QChar SEPARATOR = u';';
constexpr QChar SEVERAL = u'+';

bool isTooth(const QString& entry) {
    return IndiceDaDente(entry) >= 0;
}

/// The teeth of a text as people type them; empty when some part of it is none.
QStringList teethIn(const QString& text) {
    static const QRegularExpression whole(QStringLiteral("^[\\s;,/+]*(?:[1-8][.,-]?[1-8](?:[\\s;,/+]+|$))+$"));
    static const QRegularExpression one(QStringLiteral("([1-8])[.,-]?([1-8])"));
    QStringList teeth;
    if (!whole.match(text).hasMatch()) return teeth;
    for (auto found = one.globalMatch(text); found.hasNext();) {
        const QRegularExpressionMatch digits = found.next();
        const QString tooth = digits.captured(1) + u'.' + digits.captured(2);
        if (!isTooth(tooth)) return {};
        if (!teeth.contains(tooth)) teeth << tooth;
    }
    return teeth;
}

} // namespace

ToothList::ToothList(const QStringList& teeth)
    : entries_(teeth)
    , list_(teeth.size() > 1) {}

ToothList ToothList::fromSelection(const QString& selection) {
    const bool marked = selection.startsWith(SEVERAL);
    const QString list = marked ? selection.mid(1) : selection;
    ToothList teeth(list.isEmpty() ? QStringList() : list.split(SEPARATOR));
    teeth.list_ = teeth.list_ || marked;
    return teeth;
}

ToothList ToothList::fromRecord(const QString& tooth, const QString& toothList) {
    return fromSelection(tooth == SEVERAL ? SEVERAL + DentiDaIndici(toothList) : DentiDaIndici(tooth));
}

std::optional<ToothList> ToothList::fromTyped(const QString& text) {
    const QString typed = text.trimmed();
    if (typed.isEmpty()) return ToothList();
    const ToothList list = fromSelection(typed);
    const auto& entries = list.entries_;
    const bool someTooth = typed.startsWith(SEVERAL) && std::any_of(entries.begin(), entries.end(), isTooth);
    // A list of the program's own stays to the letter: the price of its row counts every entry.
    const bool exact = std::all_of(entries.begin(), entries.end(),
                                   [](const QString& entry) { return entry.isEmpty() || isTooth(entry); });
    if (someTooth && exact && entries.size() > 1) return list;
    if (const QStringList teeth = teethIn(typed); !teeth.isEmpty()) return ToothList(teeth);
    return someTooth ? std::optional(list) : std::nullopt;
}

QStringList ToothList::unknown() const {
    QStringList none;
    std::copy_if(entries_.begin(), entries_.end(), std::back_inserter(none),
                 [](const QString& entry) { return !isTooth(entry); });
    return none;
}

int ToothList::factor() const {
    return std::max(1, static_cast<int>(entries_.size()));
}

QString ToothList::listText() const {
    return entries_.join(SEPARATOR);
}

QString ToothList::selection() const {
    return list_ ? SEVERAL + listText() : listText();
}

QString ToothList::tooth() const {
    if (list_) return SEVERAL;
    const int index = IndiceDaDente(listText());
    return index < 0 ? QString() : QString::number(index);
}

QString ToothList::toothList() const {
    return list_ ? IndiciDaDenti(listText()) : QString();
}

QString ToothList::label() const {
    if (list_) return QStringLiteral("Denti ") + listText();
    return isEmpty() ? QString() : QStringLiteral("Dente ") + listText();
}
