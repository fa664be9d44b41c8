#include "desk/shell/DeskFramework.h"

#include "desk/shell/ChildWindows.h"
#include "desk/shell/CommandList.h"
#include "desk/shell/MainWindow.h"
#include "desk/shell/RibbonBar.h"
#include "desk/shell/RibbonPage.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"

#include <QFileInfo>
#include <QRegularExpression>

namespace desk {

namespace {

/// The drawing beside a picture of the same name, which stays sharp on every screen; otherwise the picture itself.
QString sharpest(const QString& path) {
    const QFileInfo picture(path);
    const QString drawing = picture.path() + QLatin1Char('/') + picture.completeBaseName() + QStringLiteral(".svg");
    if (platform::files::exists(drawing)) return platform::files::resolve(drawing);
    return platform::files::exists(path) ? path : QString();
}

/// A module's "Immagini JPG|*.jpg|Tutti i file (*.*)|*.*".
platform::FileKinds kindsIn(const QString& filter) {
    static const QRegularExpression patternInCaption(QStringLiteral("\\s*\\([^)]*\\*[^)]*\\)\\s*$"));
    const QStringList parts = filter.split(QLatin1Char('|'), Qt::SkipEmptyParts);
    platform::FileKinds kinds;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        platform::FileKind kind{parts.at(i), parts.at(i + 1).split(QLatin1Char(';'), Qt::SkipEmptyParts)};
        kind.caption.remove(patternInCaption);
        // Here a file need not have an extension.
        for (QString& pattern : kind.patterns)
            pattern = pattern.trimmed() == QLatin1String("*.*") ? QStringLiteral("*") : pattern.trimmed();
        kinds << kind;
    }
    return kinds;
}

} // namespace

DeskFramework::DeskFramework(MainWindow& window, CommandList& commands, Hooks hooks)
    : window_(window)
    , commands_(commands)
    , hooks_(std::move(hooks)) {}

bool DeskFramework::OpenChild(const QString&, const QString& caption) {
    return window_.children().bringForward(caption);
}

QObject* DeskFramework::CreateChildForm(QObject* form) {
    if (auto* widget = qobject_cast<QWidget*>(form)) window_.children().adopt(widget);
    return form;
}

void DeskFramework::CloseChild(const QString& caption) {
    window_.children().closeCaption(caption);
}

void DeskFramework::InitForm(QObject* form) {
    auto* widget = qobject_cast<QWidget*>(form);
    if (!widget || widget->testAttribute(Qt::WA_SetWindowIcon)) return;
    widget->setWindowIcon(window_.windowIcon());
}

qint32 DeskFramework::GetNewID() {
    return commands_.newID();
}

host::RibbonControl* DeskFramework::FindRibbonControl(qint32 id) {
    return commands_.find(id);
}

host::RibbonTab* DeskFramework::InsertRibbonTab(const QString& caption) {
    return window_.ribbon().insertTab(caption);
}

bool DeskFramework::AddFileBitmap(const QString& path, qint32 id) {
    const QString file = sharpest(platform::files::resolve(path));
    if (file.isEmpty()) return false;
    commands_.setPicture(id, QIcon(file));
    return true;
}

void DeskFramework::setLayoutPredefinito(const QString& xml) {
    layout_.read(xml);
}

int DeskFramework::Popup(const QStringList& items) {
    QList<platform::MenuEntry> entries;
    for (const QString& item : items)
        entries.append({item, true});
    return platform::dialogs().popup(entries) + 1;
}

QString DeskFramework::ApriFile(const QString& title, const QString& filter, const QString& folder) {
    return platform::dialogs().openFile(title, kindsIn(filter), folder);
}

QString DeskFramework::SalvaFile(const QString& title, const QString& filter, const QString& proposedName) {
    return platform::dialogs().saveFile(title, kindsIn(filter), proposedName);
}

void DeskFramework::ReportView(const QString& reportID, bool preview) {
    lastVariables_ = variables_.values();
    lastReportID_ = reportID;
    // A copy: while a preview is up, another report may be asked for.
    const QMap<QString, QVariant> variables = lastVariables_;
    hooks_.viewReport(reportID, variables, preview);
}

bool DeskFramework::RichiamaPaziente(const QString& id, const QString& idschema) {
    // This desk holds the patients of one schema only.
    if (!idschema.isEmpty() && idschema.compare(hooks_.schema(), Qt::CaseInsensitive) != 0) return false;
    return hooks_.openPatient(id);
}

bool DeskFramework::ValoreBool(const QVariant& value) const {
    if (value.isNull()) return false;
    if (value.typeId() != QMetaType::QString) return value.toBool();
    const QString text = value.toString().trimmed();
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (isNumber) return number != 0;
    return text.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0 ||
           text.compare(QLatin1String("t"), Qt::CaseInsensitive) == 0;
}

QString DeskFramework::noap(const QString& text) const {
    return QString(text).replace(QLatin1Char('\''), QStringLiteral("''"));
}

} // namespace desk
