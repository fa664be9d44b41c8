#include "platform/Dialogs.h"

#include <QRegularExpression>
#include <utility>

namespace platform {

namespace {

constexpr int BUTTONS_MASK = 7;
constexpr int BUTTONS_OK = 0;
constexpr int BUTTONS_YES_NO = 4;

/// Answers every question so that nothing is changed, as long as nobody is there to be asked.
class SafeAnswers : public Dialogs {
public:
    Answer message(const QString&, int value, const QString&) override {
        switch (value & BUTTONS_MASK) {
        case BUTTONS_OK:
            return Answer::Ok;
        case BUTTONS_YES_NO:
            return Answer::No;
        default:
            return Answer::Cancel;
        }
    }
    TaskAnswer task(const TaskRequest& request) override { return {QString(), request.checked}; }
    int popup(const QList<MenuEntry>&) override { return -1; }
    QString openFile(const QString&, const FileKinds&, const QString&) override { return {}; }
    QString saveFile(const QString&, const FileKinds&, const QString&) override { return {}; }
};

Dialogs*& installed() {
    static Dialogs* service = nullptr;
    return service;
}

} // namespace

PrintAnswer Dialogs::choosePrinter(QPrinter&, const PrintRequest&) {
    return PrintAnswer::Cancel;
}

FileKind everyFile() {
    return {QStringLiteral("Tutti i file"), {QStringLiteral("*")}};
}

Dialogs& dialogs() {
    static SafeAnswers safe;
    return installed() ? *installed() : safe;
}

Dialogs* installDialogs(Dialogs* service) {
    return std::exchange(installed(), service);
}

QString withoutMarkup(const QString& text) {
    // A tag starts with a letter right after the bracket, so that "importo < 10" stays as it is.
    static const QRegularExpression lineBreak(QStringLiteral("<LineBreak\\s*/?>"),
                                              QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression tag(QStringLiteral("</?[A-Za-z][^<>]*>"));
    QString plain = text;
    plain.replace(lineBreak, QStringLiteral("\n")).remove(tag);
    plain.replace(QLatin1String("&lt;"), QLatin1String("<")).replace(QLatin1String("&gt;"), QLatin1String(">"));
    plain.replace(QLatin1String("&quot;"), QLatin1String("\"")).replace(QLatin1String("&apos;"), QLatin1String("'"));
    return plain.replace(QLatin1String("&amp;"), QLatin1String("&"));
}

} // namespace platform
