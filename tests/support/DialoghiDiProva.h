#pragma once

#include "platform/Dialogs.h"

#include <QStringList>

/// Answers the questions of the program in order, and keeps what was said.
class DialoghiDiProva : public platform::Dialogs {
public:
    DialoghiDiProva()
        : precedente_(platform::installDialogs(this)) {}
    ~DialoghiDiProva() override { platform::installDialogs(precedente_); }

    platform::Answer message(const QString& text, int value, const QString& title) override {
        messaggi << text;
        valori << value;
        titoli << title;
        return risposta;
    }
    platform::TaskAnswer task(const platform::TaskRequest& request) override {
        messaggi << request.text;
        titoli << request.windowTitle;
        return rispostaTask;
    }
    int popup(const QList<platform::MenuEntry>& entries) override {
        menu.clear();
        for (const platform::MenuEntry& entry : entries)
            menu << entry.caption;
        return static_cast<int>(menu.indexOf(scelta));
    }
    QString openFile(const QString&, const platform::FileKinds&, const QString&) override { return {}; }
    QString saveFile(const QString&, const platform::FileKinds&, const QString&) override { return {}; }

    QStringList messaggi;
    QList<int> valori;
    QStringList titoli;
    QStringList menu;
    QString scelta; ///< Caption chosen in the next menus.
    platform::Answer risposta = platform::Answer::Ok;
    platform::TaskAnswer rispostaTask;

private:
    platform::Dialogs* precedente_;
};
