#include "desk/scenario/ScenarioDialogs.h"

#include "desk/scenario/ControlText.h"

#include <QDir>
#include <QPrinter>
#include <algorithm>

using platform::Answer;

namespace desk {
namespace {

struct Word {
    QLatin1String word;
    Answer answer;
    QString caption;
};

const QList<Word>& words() {
    static const QList<Word> all{{QLatin1String("ok"), Answer::Ok, QStringLiteral("OK")},
                                 {QLatin1String("cancel"), Answer::Cancel, QStringLiteral("Annulla")},
                                 {QLatin1String("yes"), Answer::Yes, QStringLiteral("Sì")},
                                 {QLatin1String("no"), Answer::No, QStringLiteral("No")}};
    return all;
}

/// Captions compare without letter case, keyboard marks and the accent that is often left out of "Sì".
QString folded(const QString& caption) {
    QString text = withoutMnemonic(caption).trimmed().toCaseFolded();
    return text.replace(QChar(0x00EC), QLatin1Char('i'));
}

bool means(const QString& answer, const Word& word) {
    return folded(answer) == word.word || folded(answer) == folded(word.caption);
}

/// The buttons of a message box stand in the lowest four bits of its value.
QList<Answer> offeredAnswers(int value) {
    switch (value & 0xF) {
    case 1:
        return {Answer::Ok, Answer::Cancel};
    case 3:
        return {Answer::Yes, Answer::No, Answer::Cancel};
    case 4:
        return {Answer::Yes, Answer::No};
    default:
        return {Answer::Ok};
    }
}

QString captionOf(Answer answer) {
    const auto found =
        std::find_if(words().cbegin(), words().cend(), [&](const Word& w) { return w.answer == answer; });
    return found->caption;
}

QString quoted(const QString& text) {
    return QStringLiteral("«%1»").arg(text);
}

/// The button of a task dialog that an answer means; null when there is none.
const QString* buttonFor(const QString& answer, const QStringList& buttons) {
    const auto named = [&](const QString& caption) {
        return std::find_if(buttons.cbegin(), buttons.cend(),
                            [&](const QString& b) { return folded(b) == folded(caption); });
    };
    if (const auto exact = named(answer); exact != buttons.cend()) return &*exact;
    for (const Word& word : words()) {
        if (!means(answer, word)) continue;
        if (const auto translated = named(word.caption); translated != buttons.cend()) return &*translated;
    }
    return nullptr;
}

} // namespace

ScenarioDialogs::ScenarioDialogs(std::function<void(const QString&)> unanswered, QString printFolder)
    : unanswered_(std::move(unanswered))
    , printFolder_(std::move(printFolder)) {}

void ScenarioDialogs::queueAnswer(const QString& answer, std::optional<bool> check) {
    answers_.append({answer, check});
}

void ScenarioDialogs::queuePopup(const QString& caption) {
    popups_ += caption;
}

void ScenarioDialogs::queueFile(const QString& path) {
    files_ += path;
}

QString ScenarioDialogs::oldestMessage() const {
    return platform::withoutMarkup(messages_.value(0));
}

bool ScenarioDialogs::takeMessage(const QString& text) {
    if (messages_.isEmpty()) return false;
    const QString wanted = withPlainLineEnds(text);
    if (wanted != withPlainLineEnds(messages_.first()) && wanted != withPlainLineEnds(oldestMessage())) return false;
    messages_.removeFirst();
    return true;
}

platform::Answer ScenarioDialogs::message(const QString& text, int value, const QString&) {
    const QList<Answer> offered = offeredAnswers(value);
    if (silent_) return offered.first();
    messages_ += text;
    // The last button is the one that changes least: No, Cancel, or the only one.
    if (answers_.isEmpty()) {
        unanswered_(QStringLiteral("messaggio senza risposta: %1").arg(text));
        return offered.last();
    }
    const QString given = answers_.takeFirst().answer;
    QStringList captions;
    for (const Answer answer : offered) {
        captions += captionOf(answer);
        const auto fits = [&](const Word& word) { return word.answer == answer && means(given, word); };
        if (std::any_of(words().cbegin(), words().cend(), fits)) return answer;
    }
    unanswered_(QStringLiteral("il messaggio offre %1, non %2: %3")
                    .arg(captions.join(QLatin1String(", ")), quoted(given), text));
    return offered.last();
}

platform::TaskAnswer ScenarioDialogs::task(const platform::TaskRequest& request) {
    if (silent_) return {};
    messages_ += request.text;
    const QString shown = platform::withoutMarkup(request.text);
    if (answers_.isEmpty()) {
        unanswered_(QStringLiteral("messaggio senza risposta: %1").arg(shown));
        return {{}, request.checked};
    }
    const QueuedAnswer given = answers_.takeFirst();
    if (given.check && request.checkCaption.isEmpty())
        unanswered_(QStringLiteral("il messaggio non ha una casella da spuntare: %1").arg(shown));
    const bool checked = given.check.value_or(request.checked);
    const QStringList buttons = request.buttons.isEmpty() ? QStringList{QStringLiteral("OK")} : request.buttons;
    if (const QString* button = buttonFor(given.answer, buttons)) return {*button, checked};
    // Any task dialog can be closed with Escape.
    if (folded(given.answer) == QLatin1String("cancel")) return {{}, checked};
    unanswered_(QStringLiteral("il messaggio offre %1, non %2: %3")
                    .arg(buttons.join(QLatin1String(", ")), quoted(given.answer), shown));
    return {{}, request.checked};
}

int ScenarioDialogs::popup(const QList<platform::MenuEntry>& entries) {
    if (silent_) return -1;
    QStringList offered;
    for (const platform::MenuEntry& entry : entries) {
        if (!entry.caption.isEmpty()) offered += withoutMnemonic(entry.caption);
    }
    const QString listed = offered.join(QLatin1String(", "));
    if (popups_.isEmpty()) {
        unanswered_(QStringLiteral("menu senza scelta: %1").arg(listed));
        return -1;
    }
    const QString wanted = popups_.takeFirst();
    if (wanted.isEmpty()) return -1;
    for (int index = 0; index < entries.size(); ++index) {
        if (folded(entries[index].caption) != folded(wanted)) continue;
        if (entries[index].enabled) return index;
        unanswered_(QStringLiteral("la voce %1 del menu è disattivata").arg(quoted(wanted)));
        return -1;
    }
    unanswered_(QStringLiteral("il menu non ha la voce %1: %2").arg(quoted(wanted), listed));
    return -1;
}

QString ScenarioDialogs::openFile(const QString& title, const platform::FileKinds&, const QString&) {
    return nextFile(title);
}

QString ScenarioDialogs::saveFile(const QString& title, const platform::FileKinds&, const QString&) {
    return nextFile(title);
}

platform::PrintAnswer ScenarioDialogs::choosePrinter(QPrinter& printer, const platform::PrintRequest&) {
    if (silent_) return platform::PrintAnswer::Cancel;
    // Paper has no place in a script, and what would be on it can be looked at.
    QDir().mkpath(printFolder_);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(QDir(printFolder_).filePath(QStringLiteral("stampa-%1.pdf").arg(++printed_)));
    return platform::PrintAnswer::Print;
}

QString ScenarioDialogs::nextFile(const QString& title) {
    if (silent_) return {};
    if (!files_.isEmpty()) return files_.takeFirst();
    unanswered_(QStringLiteral("richiesta di file senza risposta: %1").arg(title));
    return {};
}

} // namespace desk
