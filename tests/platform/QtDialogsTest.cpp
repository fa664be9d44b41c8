#include "platform/QtDialogs.h"
#include "platform/TaskMarkup.h"
#include "platform/Theme.h"
#include "support/Text.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>

using platform::Answer;
using platform::QtDialogs;

namespace {

/// Does the steps, one after the other, each when a window for it has come up.
class Hands : public QObject {
public:
    using Step = std::function<bool(QWidget*)>; ///< False to be asked again.

    explicit Hands(std::vector<Step> steps)
        : steps_(std::move(steps)) {
        connect(&timer_, &QTimer::timeout, this, &Hands::work);
        timer_.start(5);
    }
    bool done() const { return next_ == steps_.size(); }

private:
    void work() {
        QWidget* window = QApplication::activePopupWidget();
        if (!window) window = QApplication::activeModalWidget();
        if (!window || done() || busy_) return;
        busy_ = true;
        if (steps_[next_](window)) ++next_;
        busy_ = false;
    }

    std::vector<Step> steps_;
    std::size_t next_ = 0;
    bool busy_ = false;
    QTimer timer_;
};

Hands::Step key(Qt::Key pressed) {
    return [pressed](QWidget* window) {
        QTest::keyClick(window, pressed);
        return true;
    };
}

QStringList captions(const QWidget* window) {
    QStringList found;
    for (const QPushButton* button : window->findChildren<QPushButton*>())
        found << button->text().remove(QLatin1Char('&'));
    found.sort();
    return found;
}

QString text(const QWidget* window, const char* name) {
    const auto* label = window->findChild<QLabel*>(QString::fromLatin1(name));
    return label ? label->text() : QString();
}

} // namespace

TEST(QtDialogs, EscapeIsTheSafeAnswerAndEnterTheDefault) {
    const struct {
        int value;
        QStringList captions;
        Answer onEscape, onEnter;
    } cases[] = {
        {platform::MB_CRITICAL, {u8("OK")}, Answer::Ok, Answer::Ok},
        {platform::MB_WARNING, {u8("OK")}, Answer::Ok, Answer::Ok},
        {platform::MB_WARNING + 1, {u8("Annulla"), u8("OK")}, Answer::Cancel, Answer::Ok},
        {platform::MB_WARNING + 1 + 256, {u8("Annulla"), u8("OK")}, Answer::Cancel, Answer::Cancel},
        {platform::MB_QUESTION, {u8("No"), u8("Sì")}, Answer::No, Answer::Yes},
        {platform::MB_QUESTION_DEFAULT_NO, {u8("No"), u8("Sì")}, Answer::No, Answer::No},
        {32 + 3, {u8("Annulla"), u8("No"), u8("Sì")}, Answer::Cancel, Answer::Yes},
    };
    QtDialogs dialogs;
    for (const auto& one : cases) {
        SCOPED_TRACE(one.value);
        QStringList seen;
        bool picture = false;
        Hands escape({[&](QWidget* window) {
            auto* box = qobject_cast<QMessageBox*>(window);
            seen = captions(window);
            picture = box && !box->iconPixmap().isNull();
            QTest::keyClick(window, Qt::Key_Escape);
            return true;
        }});
        EXPECT_EQ(dialogs.message(u8("Vuoi <eliminare>?"), one.value, u8("Titolo")), one.onEscape);
        EXPECT_EQ(seen, one.captions);
        EXPECT_TRUE(picture);
        Hands enter({key(Qt::Key_Return)});
        EXPECT_EQ(dialogs.message(u8("Vuoi eliminare?"), one.value, u8("Titolo")), one.onEnter);
    }
}

TEST(QtDialogs, TaskShowsItsPartsAndHandsBackButtonAndBox) {
    platform::TaskRequest request;
    request.title = u8("Gestione Trattamenti");
    request.text = u8("<TextBlock TextWrapping='Wrap'>Vuoi eliminare <Bold>2026-0001</Bold>?</TextBlock>");
    request.checkCaption = u8("Elimina gli eventuali allegati");
    request.buttons = {u8("Si"), u8("No")};
    request.url = u8("https://example.org/guida");
    request.windowTitle = u8("Tessara");
    QtDialogs dialogs;
    QString title, address, name;
    Hands no({[&](QWidget* window) {
        title = text(window, "title");
        address = text(window, "laURL");
        name = window->windowTitle();
        QTest::mouseClick(window->findChild<QCheckBox*>(), Qt::LeftButton, {}, {8, 8});
        for (QPushButton* button : window->findChildren<QPushButton*>()) {
            if (button->text() == u8("No")) button->click();
        }
        return true;
    }});
    const platform::TaskAnswer answer = dialogs.task(request);
    EXPECT_EQ(answer.button, u8("No"));
    EXPECT_TRUE(answer.checked);
    EXPECT_EQ(title, u8("<u>Gestione Trattamenti</u>"));
    EXPECT_EQ(address,
              u8("Per maggiori informazioni: <a href=\"https://example.org/guida\">https://example.org/guida</a>"));
    EXPECT_EQ(name, u8("Tessara"));
    Hands enter({key(Qt::Key_Return)});
    EXPECT_EQ(dialogs.task(request).button, u8("Si")) << "the first button is the default";
    Hands escape({key(Qt::Key_Escape)});
    EXPECT_EQ(dialogs.task(request).button, QString());
}

TEST(QtDialogs, TaskCountsDownToItsDefaultAnswer) {
    platform::TaskRequest request;
    request.title = u8("Avviso");
    request.seconds = 2;
    QtDialogs dialogs;
    QStringList counted;
    Hands watch({[&](QWidget* window) {
        const QString shown = platform::withoutMarkup(text(window, "count"));
        if (!counted.contains(shown)) counted << shown;
        return false;
    }});
    EXPECT_EQ(dialogs.task(request).button, u8("Chiudi"));
    EXPECT_EQ(counted, (QStringList{u8("Chiusura fra 2 secondi"), u8("Chiusura fra 1 secondi")}));
    request.seconds = 0;
    bool footer = true;
    Hands look({[&](QWidget* window) {
        footer = window->findChild<QLabel*>(u8("count")) != nullptr;
        QTest::keyClick(window, Qt::Key_Escape);
        return true;
    }});
    dialogs.task(request);
    EXPECT_FALSE(footer);
}

TEST(QtDialogs, MarkupBecomesRichTextAndAnythingElseStaysText) {
    const struct {
        const char *markup, *rich;
    } cases[] = {
        {"Rossi & C. <importo> < 10", "Rossi &amp; C. &lt;importo&gt; &lt; 10"},
        {"<Bold>a</Bold><LineBreak/>b\nc", "<b>a</b><br/>b<br/>c"},
        {"<Run Foreground='Red'>3</Run>", "<span style=\"color:#ff0000;\">3</span>"},
        {"<Run Text='x &lt; y' FontWeight=\"Bold\"/>", "<span style=\"font-weight:bold;\">x &lt; y</span>"},
        {"<Underline>a", "<u>a</u>"},
        {"a</Bold>b", "ab"},
        {"<script>x</script>", "&lt;script&gt;x&lt;/script&gt;"},
        {"<A HREF=\"http://e.it/?a=1\">qui</A>", "<a href=\"http://e.it/?a=1\">qui</a>"},
    };
    for (const auto& one : cases)
        EXPECT_EQ(platform::richText(u8(one.markup)), u8(one.rich)) << one.markup;
}

TEST(QtDialogs, PopupGivesThePlaceInTheListAndNotInTheMenu) {
    const QList<platform::MenuEntry> entries{{u8("Nuovo"), true},
                                             {QString(), true},
                                             {u8("-------------------"), true},
                                             {u8("Modifica"), false},
                                             {u8("Riso & latte"), true}};
    QtDialogs dialogs;
    QStringList texts;
    QList<bool> enabled;
    Hands choose({[&](QWidget* window) {
        auto* menu = qobject_cast<QMenu*>(window);
        for (const QAction* action : menu->actions()) {
            texts << action->text();
            enabled << action->isEnabled();
        }
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(menu->actions().last()).center());
        return true;
    }});
    EXPECT_EQ(dialogs.popup(entries), 4);
    EXPECT_EQ(texts, (QStringList{u8("Nuovo"), u8("-------------------"), u8("Modifica"), u8("Riso && latte")}));
    EXPECT_EQ(enabled, (QList<bool>{true, false, false, true}));
    Hands dismiss({key(Qt::Key_Escape)});
    EXPECT_EQ(dialogs.popup(entries), -1);
    EXPECT_EQ(dialogs.popup({{QString(), true}}), -1) << "a menu without entries must not wait for a choice";
}

TEST(QtDialogs, FilesAreFilteredAndNoneIsReplacedUnasked) {
    QTemporaryDir folder;
    const QString existing = folder.filePath(u8("riepilogo.txt"));
    QFile file(existing);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    QtDialogs dialogs;
    const platform::FileKinds filter{{u8("Testo"), {u8("*.txt"), u8("*.csv")}}, platform::everyFile()};
    QStringList filters;
    const auto typeName = [&](const char* name) {
        return [&filters, name](QWidget* window) {
            auto* dialog = qobject_cast<QFileDialog*>(window);
            if (!dialog) return false;
            auto* box = dialog->findChild<QLineEdit*>(u8("fileNameEdit"));
            // Without the focus the name typed before would stay selected in the list of files.
            if (!box->hasFocus()) return box->setFocus(), false;
            filters = dialog->nameFilters();
            box->setText(u8(name));
            QTest::keyClick(box, Qt::Key_Return);
            return true;
        };
    };
    {
        Hands open({typeName("riepilogo.txt")});
        EXPECT_EQ(dialogs.openFile(u8("Apri"), filter, folder.path()), existing);
        EXPECT_EQ(filters, (QStringList{u8("Testo (*.txt *.csv)"), u8("Tutti i file (*)")}));
    }
    {
        const auto refuse = [](QWidget* window) {
            if (!qobject_cast<QMessageBox*>(window)) return false;
            QTest::keyClick(window, Qt::Key_Escape);
            return true;
        };
        Hands save({typeName("riepilogo"), refuse, typeName("nuovo")});
        EXPECT_EQ(dialogs.saveFile(u8("Salva"), filter, folder.filePath(u8("proposta.txt"))),
                  folder.filePath(u8("nuovo.txt")));
        EXPECT_TRUE(save.done());
    }
    Hands cancel({key(Qt::Key_Escape)});
    EXPECT_EQ(dialogs.openFile(u8("Apri"), filter, folder.path()), QString());
}
