#pragma once

#include "platform/Dialogs.h"

#include <QPrinter>
#include <QStringList>
#include <functional>

/// A person in front of the questions; prints into a file.
class ReportDialogs : public platform::Dialogs {
public:
    ReportDialogs()
        : before_(platform::installDialogs(this)) {}
    ~ReportDialogs() override { platform::installDialogs(before_); }
    platform::Answer message(const QString& text, int, const QString&) override {
        messages.append(text);
        return answer;
    }
    platform::TaskAnswer task(const platform::TaskRequest&) override { return {}; }
    int popup(const QList<platform::MenuEntry>&) override { return -1; }
    QString openFile(const QString&, const platform::FileKinds&, const QString&) override { return file; }
    QString saveFile(const QString&, const platform::FileKinds&, const QString& name) override {
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

    QStringList messages;
    platform::Answer answer = platform::Answer::No;
    QString file;  ///< Answer to the questions for a file.
    QString paper; ///< File that is printed into; empty for a user who gives it up.
    QString proposed;
    int offeredPages = 0;
    bool wantsPreview = false;
    std::function<void(QPrinter&)> choose = [](QPrinter&) {};

private:
    platform::Dialogs* before_;
};
