#include "platform/ListPage.h"

#include "platform/ReportGrid.h"
#include "support/ScriptedDialogs.h"

#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTreeView>
#include <gtest/gtest.h>

namespace {

/// A list of words, which a command takes away, adds to or fails at.
class ListPageTest : public testing::Test {
protected:
    platform::ListCommand command(const char* name, int key, bool onRow, const std::function<QString(QString)>& act) {
        return {.name = QLatin1String(name),
                .caption = QLatin1Char('&') + QLatin1String(name),
                .run = [act](const QString& id, platform::ListPage& asking) -> std::optional<QString> {
                    if (!asking.agreed(QStringLiteral("Davvero?"))) return std::nullopt;
                    return act(id);
                },
                .keys = {key},
                .onRow = onRow,
                .main = key == Qt::Key_F4};
    }
    platform::ListSource source() {
        const auto remove = [this](const QString& id) {
            words.removeOne(id);
            return QString();
        };
        const auto fail = [](const QString&) -> QString { throw std::runtime_error("non si può"); };
        const auto add = [this](const QString&) {
            words.prepend(QStringLiteral("nuova"));
            return words.first();
        };
        return {.name = QStringLiteral("pagina"),
                .grid = QStringLiteral("rcProva"),
                .status = QStringLiteral("laProva"),
                .caption = QStringLiteral("Prova"),
                .empty = QString(),
                .columns = {{.caption = QStringLiteral("Parola")}},
                .rows =
                    [this](const platform::ListQuery& query) {
                        if (unreadable) throw std::runtime_error("archivio chiuso");
                        platform::ListRows rows;
                        for (const QString& word : std::as_const(words))
                            if (word.contains(query.text)) rows.rows.append({word, {word}});
                        return rows;
                    },
                .commands = {command("togli", Qt::Key_F5, true, remove), command("fallisci", Qt::Key_F4, true, fail),
                             command("aggiungi", Qt::Key_F3, false, add)},
                .searchColumns = {QStringLiteral("Parola")}};
    }
    QStringList shown() {
        QStringList texts;
        for (int row = 0; row < page.grid().rowCount(); ++row)
            texts << page.grid().rowRecord(row)->cell(0).value;
        return texts;
    }
    void focusOn(int row) { page.grid().setFocusedRecord(page.grid().rowRecord(row)); }

    QStringList words{QStringLiteral("uno"), QStringLiteral("due"), QStringLiteral("tre"), QStringLiteral("quattro")};
    bool unreadable = false;
    ScriptedDialogs dialogs;
    platform::ListPage page{source(), platform::ListPage::Buttons::Below};
};

} // namespace

TEST_F(ListPageTest, KeysButtonsAndMenuDoTheSameAndTheRowIsKept) {
    page.show();
    page.refresh(QStringLiteral("due"));
    EXPECT_EQ(page.focusedId(), QStringLiteral("due"));
    dialogs.answers = {platform::Answer::No, platform::Answer::Yes};
    QTest::keyClick(page.grid().view(), Qt::Key_F5);
    EXPECT_EQ(words.size(), 4) << "asked, and not done";
    QTest::keyClick(page.findChild<QPushButton*>(QStringLiteral("togli")), Qt::Key_F5);
    EXPECT_EQ(shown(), (QStringList{QStringLiteral("uno"), QStringLiteral("tre"), QStringLiteral("quattro")}));
    EXPECT_EQ(page.focusedId(), QStringLiteral("tre")) << "the one that came to its place";

    dialogs.answer = platform::Answer::Yes;
    dialogs.choice = QStringLiteral("togli");
    emit page.grid().rowRightClicked(page.grid().rowRecord(2), 0);
    EXPECT_EQ(page.focusedId(), QStringLiteral("tre")) << "the last one that is left";
    QTest::keyClick(page.grid().view(), Qt::Key_F3);
    EXPECT_EQ(page.focusedId(), QStringLiteral("nuova"));
    dialogs.messages.clear();
    QTest::keyClick(page.grid().view(), Qt::Key_Return);
    EXPECT_EQ(dialogs.messages.last(), QStringLiteral("non si può"));

    words.clear();
    page.refresh();
    EXPECT_FALSE(page.findChild<QPushButton*>(QStringLiteral("togli"))->isEnabled());
    EXPECT_TRUE(page.findChild<QPushButton*>(QStringLiteral("aggiungi"))->isEnabled());
    dialogs.messages.clear();
    QTest::keyClick(page.grid().view(), Qt::Key_F5);
    EXPECT_TRUE(dialogs.messages.isEmpty()) << "there is no row";
}

TEST_F(ListPageTest, WhatCannotBeReadSaysSoAndKeepsItsRowsAndWhatWasBegunGoesWithTheSource) {
    page.search({QStringLiteral("t"), 0});
    const QStringList found{QStringLiteral("tre"), QStringLiteral("quattro")};
    EXPECT_EQ(shown(), found);
    unreadable = true;
    page.refresh();
    auto* status = page.findChild<QLabel*>(QStringLiteral("laProva"));
    EXPECT_EQ(status->text(), QStringLiteral("archivio chiuso"));
    EXPECT_EQ(shown(), found);
    unreadable = false;
    page.refresh();
    EXPECT_TRUE(status->isHidden());

    struct Leaving : ScriptedDialogs {
        explicit Leaving(platform::ListPage& page)
            : page_(page) {}
        platform::Answer message(const QString&, int, const QString&) override {
            page_.leave();
            return platform::Answer::Yes;
        }
        platform::ListPage& page_;
    } leaving(page);
    focusOn(0);
    page.findChild<QPushButton*>(QStringLiteral("togli"))->click();
    EXPECT_EQ(words.size(), 4) << "the question came too late";
    EXPECT_TRUE(shown().isEmpty());
    page.enter(source());
    EXPECT_EQ(shown(), found);
}
