#include "ClinicalDesk.h"

#include "desk_data/PracticeFixture.h"

#include <QTreeWidget>

class FreeDataWindow : public ClinicalDesk {
protected:
    FreeDataWindow() {
        put("Certificati", "Modello", "<x/>");
        put("Prima Nota Magazzino/Guanti", "Carico", "a\r\nb\u00a0c");
        put("Prima Nota Magazzino/Guanti/2025", "Scarico", "");
        put("Prima Nota Magazzini", "Altro", "");
        EXPECT_TRUE(desk_->pressCommand(QStringLiteral("Archivio dati")));
        tree_ = control<QTreeWidget>("tvCartelle");
    }

    QString put(const char* folder, const char* description, const char* content) {
        host::ItemDati item = host().Archivio().Dati().GetEmptyItem();
        item.Cartella = QString::fromUtf8(folder);
        item.descrizione = QString::fromUtf8(description);
        item.file = QString::fromUtf8(content);
        EXPECT_TRUE(host().Archivio().Dati().Salva(item, true));
        return item.ID;
    }
    void choose(const char* path) {
        const QStringList levels = QString::fromUtf8(path).split(QLatin1Char('/'));
        QTreeWidgetItem* item = tree_->invisibleRootItem();
        for (const QString& level : levels) {
            QTreeWidgetItem* next = nullptr;
            for (int i = 0; i < item->childCount(); ++i)
                if (item->child(i)->text(0) == level) next = item->child(i);
            ASSERT_NE(next, nullptr) << level.toStdString();
            item = next;
        }
        tree_->setCurrentItem(item);
    }
    QStringList folders() {
        QStringList all = stored(QStringLiteral("Cartella"), QStringLiteral("tblDati where Cartella not like 'Cert%'"));
        all.sort();
        return all;
    }
    void renameTo(const QString& folder) {
        whenModal("frmEditCartella", [folder](QWidget& window) {
            paste(window, "tbCartella", folder);
            press(window, "cbConferma");
            if (window.isVisible()) window.close();
        });
        click("cbRinominaCartella");
    }

    QTreeWidget* tree_ = nullptr;
};

TEST_F(FreeDataWindow, ItemsAreAddedMovedAndKeepTheirContent) {
    choose("Prima Nota Magazzino");
    EXPECT_EQ(grid("rcDati").rowCount(), 0);
    choose("Prima Nota Magazzino/Guanti");
    ASSERT_EQ(grid("rcDati").rowCount(), 1);
    whenModal("frmEditDato", [](QWidget& window) {
        paste(window, "tbDescrizione", QStringLiteral("Carico d'estate"));
        press(window, "cbConferma");
    });
    click("cbModificaDato");
    EXPECT_EQ(cell("rcDati", 0, 0), QStringLiteral("Carico d'estate"));
    EXPECT_TRUE(stored(QStringLiteral("file"), QStringLiteral("tblDati")).contains(QString::fromUtf8("a\r\nb\u00a0c")))
        << "line ends and blanks of a content that was not touched";

    for (const QString& text : awkwardTexts()) {
        whenModal("frmEditDato", [text](QWidget& window) {
            paste(window, "tbCartella", QStringLiteral("Elenchi/") + text);
            paste(window, "tbDescrizione", text);
            paste(window, "tbContenuto", text);
            press(window, "cbConferma");
        });
        click("cbNuovoDato");
        const QList<host::ItemDati> found = host().Archivio().Dati().Lista(QStringLiteral("Elenchi/") + text, false);
        ASSERT_EQ(found.size(), 1) << text.toStdString();
        EXPECT_EQ(found.first().descrizione, text);
        EXPECT_EQ(found.first().file, text);
    }
    choose("Prima Nota Magazzino/Guanti");
    whenModal("frmEditDato", [](QWidget& window) {
        paste(window, "tbCartella", QStringLiteral("Prima Nota Magazzino//Guanti"));
        press(window, "cbConferma");
        EXPECT_TRUE(window.isVisible());
        paste(window, "tbCartella", QStringLiteral("Altrove"));
        press(window, "cbConferma");
    });
    click("cbModificaDato");
    EXPECT_EQ(dialogs_.messages.size(), 1);
    EXPECT_EQ(host().Archivio().Dati().Lista(QStringLiteral("Altrove"), false).size(), 1);
}

TEST_F(FreeDataWindow, FoldersAreRenamedWithAllBelowAndMergedOnlyWhenAsked) {
    choose("Prima Nota Magazzino/Guanti");
    renameTo(QStringLiteral("Prima Nota Magazzino/Guanti 'L'"));
    EXPECT_EQ(folders(),
              (QStringList{QStringLiteral("Prima Nota Magazzini"), QStringLiteral("Prima Nota Magazzino/Guanti 'L'"),
                           QStringLiteral("Prima Nota Magazzino/Guanti 'L'/2025")}));
    EXPECT_EQ(tree_->currentItem()->text(0), QStringLiteral("Guanti 'L'"));

    dialogs_.messages.clear();
    dialogs_.answers = {platform::Answer::No, platform::Answer::Yes};
    renameTo(QStringLiteral("Prima Nota Magazzini"));
    EXPECT_TRUE(dialogs_.messages.value(0).contains(QStringLiteral("esiste già")));
    EXPECT_EQ(folders().count(QStringLiteral("Prima Nota Magazzini")), 1);
    renameTo(QStringLiteral("Prima Nota Magazzini"));
    EXPECT_EQ(folders().count(QStringLiteral("Prima Nota Magazzini")), 2);
    EXPECT_TRUE(folders().contains(QStringLiteral("Prima Nota Magazzini/2025")));
}

TEST_F(FreeDataWindow, AFolderGoesWithWhatIsInItAfterTheQuestion) {
    choose("Prima Nota Magazzino");
    dialogs_.answers = {platform::Answer::No};
    click("cbEliminaCartella");
    EXPECT_EQ(folders().size(), 3);
    EXPECT_TRUE(dialogs_.messages.value(0).contains(QStringLiteral("2 dati")));
    click("cbEliminaCartella");
    EXPECT_EQ(folders(), QStringList{QStringLiteral("Prima Nota Magazzini")});

    choose("Prima Nota Magazzini");
    place_.execute(QStringLiteral("alter table tblDati rename to tblAltrove"));
    dialogs_.messages.clear();
    click("cbEliminaCartella");
    EXPECT_TRUE(dialogs_.messages.value(0).contains(QStringLiteral("Errore"))) << dialogs_.messages.size();
    EXPECT_GT(tree_->topLevelItemCount(), 0) << "the tree stays as it was read last";
}
