#include "platform/QtDialogs.h"

#include "platform/MessageIcon.h"
#include "platform/TaskDialog.h"

#include <QApplication>
#include <QCursor>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QRegularExpression>
#include <vector>

namespace platform {

namespace {

constexpr int buttonsMask = 0x0F;
constexpr int okCancel = 1;
constexpr int yesNoCancel = 3;
constexpr int yesNo = 4;
constexpr int secondIsDefault = 0x100;
constexpr int thirdIsDefault = 0x200;

struct Choice {
    Answer answer;
    QString caption;
    QMessageBox::ButtonRole role;
};

std::vector<Choice> choicesOf(int value) {
    const Choice ok{Answer::Ok, QStringLiteral("OK"), QMessageBox::AcceptRole};
    const Choice cancel{Answer::Cancel, QStringLiteral("Annulla"), QMessageBox::RejectRole};
    const Choice yes{Answer::Yes, QStringLiteral("&Sì"), QMessageBox::YesRole};
    const Choice no{Answer::No, QStringLiteral("&No"), QMessageBox::NoRole};
    switch (value & buttonsMask) {
    case okCancel:
        return {ok, cancel};
    case yesNoCancel:
        return {yes, no, cancel};
    case yesNo:
        return {yes, no};
    default:
        return {ok};
    }
}

std::size_t defaultOf(int value) {
    if (value & thirdIsDefault) return 2;
    return value & secondIsDefault ? 1 : 0;
}

QStringList filtersOf(const FileKinds& kinds) {
    QStringList filters;
    for (const FileKind& kind : kinds)
        filters << QStringLiteral("%1 (%2)").arg(kind.caption, kind.patterns.join(QLatin1Char(' ')));
    return filters;
}

QString suffixOf(const QString& filter) {
    static const QRegularExpression extension(QStringLiteral("\\*\\.([A-Za-z0-9]+)"));
    return extension.match(filter).captured(1);
}

void prepare(QFileDialog& dialog, const FileKinds& kinds, const QString& accept) {
    dialog.setObjectName(QStringLiteral("fileDialog"));
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.resize(780, 480);
    const QStringList filters = filtersOf(kinds);
    if (!filters.isEmpty()) dialog.setNameFilters(filters);
    dialog.setLabelText(QFileDialog::LookIn, QStringLiteral("Cerca in:"));
    dialog.setLabelText(QFileDialog::FileName, QStringLiteral("Nome file:"));
    dialog.setLabelText(QFileDialog::FileType, QStringLiteral("Tipo file:"));
    dialog.setLabelText(QFileDialog::Accept, accept);
    dialog.setLabelText(QFileDialog::Reject, QStringLiteral("Annulla"));
}

} // namespace

Answer QtDialogs::message(const QString& text, int value, const QString& title) {
    QMessageBox box(QApplication::activeWindow());
    box.setObjectName(QStringLiteral("messageBox"));
    box.setWindowTitle(title);
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    box.setIconPixmap(messageIcon(value, 36, box.devicePixelRatioF()));
    const std::vector<Choice> choices = choicesOf(value);
    std::vector<QPushButton*> buttons;
    for (const Choice& choice : choices)
        buttons.push_back(box.addButton(choice.caption, choice.role));
    if (defaultOf(value) < buttons.size()) box.setDefaultButton(buttons[defaultOf(value)]);
    // The last choice is always the one that changes nothing.
    box.setEscapeButton(buttons.back());
    box.exec();
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        if (box.clickedButton() == buttons[i]) return choices[i].answer;
    }
    return choices.back().answer;
}

TaskAnswer QtDialogs::task(const TaskRequest& request) {
    TaskDialog dialog(request, QApplication::activeWindow());
    // The pointer may show a wait while the question has come up.
    QApplication::setOverrideCursor(Qt::ArrowCursor);
    dialog.exec();
    QApplication::restoreOverrideCursor();
    return dialog.answer();
}

int QtDialogs::popup(const QList<MenuEntry>& entries) {
    QMenu menu(QApplication::activeWindow());
    menu.setObjectName(QStringLiteral("popup"));
    for (qsizetype i = 0; i < entries.size(); ++i) {
        if (entries.at(i).caption.isEmpty()) continue;
        QString caption = entries.at(i).caption;
        QAction* action = menu.addAction(caption.replace(QLatin1Char('&'), QLatin1String("&&")));
        action->setData(static_cast<int>(i));
        // A line of dashes parts the entries; it stays a text, and nobody can choose it.
        action->setEnabled(entries.at(i).enabled && !caption.startsWith(QLatin1String("---")));
    }
    if (menu.isEmpty()) return -1;
    const QAction* chosen = menu.exec(QCursor::pos());
    return chosen ? chosen->data().toInt() : -1;
}

QString QtDialogs::openFile(const QString& title, const FileKinds& kinds, const QString& folder) {
    QFileDialog dialog(QApplication::activeWindow(), title, folder);
    prepare(dialog, kinds, QStringLiteral("Apri"));
    dialog.setFileMode(QFileDialog::ExistingFile);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

QString QtDialogs::saveFile(const QString& title, const FileKinds& kinds, const QString& proposedName) {
    QFileDialog dialog(QApplication::activeWindow(), title);
    prepare(dialog, kinds, QStringLiteral("Salva"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setLabelText(QFileDialog::Accept, QStringLiteral("Salva"));
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite); // Asked here, in the words of the other questions.
    const QFileInfo proposed(proposedName);
    if (proposed.isAbsolute()) dialog.setDirectory(proposed.absolutePath());
    dialog.selectFile(proposed.fileName());
    const auto takeSuffix = [&dialog](const QString& chosen) { dialog.setDefaultSuffix(suffixOf(chosen)); };
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, takeSuffix);
    takeSuffix(dialog.selectedNameFilter());
    while (dialog.exec() == QDialog::Accepted) {
        const QString path = dialog.selectedFiles().value(0);
        if (!QFileInfo::exists(path)) return path;
        const QString question =
            QStringLiteral("Il file \"%1\" esiste già. Sostituirlo?").arg(QFileInfo(path).fileName());
        if (message(question, MB_QUESTION_DEFAULT_NO, title) == Answer::Yes) return path;
    }
    return {};
}

PrintAnswer QtDialogs::choosePrinter(QPrinter& printer, const PrintRequest& request) {
    QPrintDialog dialog(&printer, QApplication::activeWindow());
    dialog.setObjectName(QStringLiteral("printDialog"));
    dialog.setWindowTitle(request.title);
    dialog.setOption(QAbstractPrintDialog::PrintSelection, false);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, request.pages > 1);
    dialog.setMinMax(1, request.pages);
    bool preview = false;
    if (auto* buttons = dialog.findChild<QDialogButtonBox*>(); buttons && request.offerPreview) {
        QPushButton* button = buttons->addButton(QStringLiteral("&Anteprima\u2026"), QDialogButtonBox::ActionRole);
        button->setObjectName(QStringLiteral("cbAnteprima"));
        button->setAutoDefault(false);
        QObject::connect(button, &QPushButton::clicked, &dialog, [&] {
            preview = true;
            dialog.reject();
        });
    }
    const bool accepted = dialog.exec() == QDialog::Accepted;
    if (preview) return PrintAnswer::Preview;
    return accepted ? PrintAnswer::Print : PrintAnswer::Cancel;
}

} // namespace platform
