#pragma once

#include "platform/Dialogs.h"

#include <QPrinter>
#include <QStringList>
#include <functional>
#include <utility>

/// A person in front of the questions: answers them as told beforehand, keeps what was said, prints into a file.
class ScriptedDialogs : public platform::Dialogs {
public:
    ScriptedDialogs()
        : before_(platform::installDialogs(this)) {}
    ~ScriptedDialogs() override { platform::installDialogs(before_); }
    ScriptedDialogs(const ScriptedDialogs&) = delete;
    ScriptedDialogs& operator=(const ScriptedDialogs&) = delete;

    platform::Answer message(const QString& text, int value, const QString& title) override {
        messages << text;
        values << value;
        titles << title;
        heard << QStringLiteral("%1|%2|%3").arg(title).arg(value).arg(text);
        return answers.isEmpty() || value != platform::MB_QUESTION_DEFAULT_NO ? answer : answers.takeFirst();
    }
    platform::TaskAnswer task(const platform::TaskRequest& request) override {
        messages << request.text;
        titles << request.windowTitle;
        return taskAnswer;
    }
    int popup(const QList<platform::MenuEntry>& entries) override {
        menu.clear();
        for (const platform::MenuEntry& entry : entries)
            menu << entry.caption;
        if (whileMenuIsOpen) std::exchange(whileMenuIsOpen, {})();
        return static_cast<int>(menu.indexOf(choice));
    }
    QString openFile(const QString&, const platform::FileKinds& offered, const QString&) override {
        kinds = offered;
        return file;
    }
    QString saveFile(const QString&, const platform::FileKinds& offered, const QString& name) override {
        kinds = offered;
        proposed = name;
        return file;
    }
    platform::PrintAnswer choosePrinter(QPrinter& printer, const platform::PrintRequest& request) override {
        offeredPages = request.pages;
        if (wantsPreview && request.offerPreview) return platform::PrintAnswer::Preview;
        if (paper.isEmpty()) return platform::PrintAnswer::Cancel;
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(paper);
        choose(printer);
        return platform::PrintAnswer::Print;
    }

    // What was said.
    QStringList messages;
    QList<int> values;
    QStringList titles;
    QStringList heard; ///< "title|value|text" of each message box.
    QStringList menu;
    platform::FileKinds kinds; ///< Offered by the last file dialog.
    QString proposed;
    int offeredPages = 0;

    // What is answered.
    platform::Answer answer = platform::Answer::Ok;
    QList<platform::Answer> answers; ///< To the next questions that default to No, before `answer`.
    platform::TaskAnswer taskAnswer;
    QString choice;                        ///< Caption in the next menus.
    std::function<void()> whileMenuIsOpen; ///< Once.
    QString file;                          ///< In the next file dialogs; empty cancels.
    QString paper;                         ///< File that is printed into; empty for a user who gives it up.
    bool wantsPreview = false;
    std::function<void(QPrinter&)> choose = [](QPrinter&) {};

private:
    platform::Dialogs* before_;
};
