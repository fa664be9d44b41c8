#pragma once

#include "platform/Dialogs.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

namespace desk {

/// The person at the screen, as a script plays one: questions take the next queued answer, what was said is kept until
/// it is expected. A question without a fitting answer goes to `unanswered` and gets the answer that changes least.
class ScenarioDialogs : public platform::Dialogs {
public:
    /// What is printed goes into files "stampa-1.pdf" and so on of the folder.
    explicit ScenarioDialogs(std::function<void(const QString&)> unanswered, QString printFolder = {});

    void queueAnswer(const QString& answer, std::optional<bool> check);
    void queuePopup(const QString& caption); ///< Empty to dismiss the menu.
    void queueFile(const QString& path);     ///< Empty to cancel.
    bool hasMessage() const { return !messages_.isEmpty(); }
    QString oldestMessage() const; ///< As shown, without markup.
    /// Takes the oldest message off when it equals the text, as given or as shown; line ends of either kind are the
    /// same.
    bool takeMessage(const QString& text);
    /// From now on nothing is asked: every question is answered so that windows close.
    void fallSilent() { silent_ = true; }

    platform::Answer message(const QString& text, int value, const QString& title) override;
    platform::TaskAnswer task(const platform::TaskRequest& request) override;
    int popup(const QList<platform::MenuEntry>& entries) override;
    QString openFile(const QString& title, const platform::FileKinds& kinds, const QString& folder) override;
    QString saveFile(const QString& title, const platform::FileKinds& kinds, const QString& proposedName) override;
    platform::PrintAnswer choosePrinter(QPrinter& printer, const platform::PrintRequest& request) override;

private:
    struct QueuedAnswer {
        QString answer;
        std::optional<bool> check;
    };
    QString nextFile(const QString& title);

    std::function<void(const QString&)> unanswered_;
    QList<QueuedAnswer> answers_;
    QStringList popups_;
    QStringList files_;
    QStringList messages_;
    QString printFolder_;
    int printed_ = 0;
    bool silent_ = false;
};

} // namespace desk
