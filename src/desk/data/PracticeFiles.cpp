#include "desk/data/PracticeFiles.h"

#include "desk/data/DatabaseError.h"
#include "platform/Clock.h"
#include "platform/Files.h"
#include "platform/SpecialFolders.h"
#include "platform/XmlDocument.h"

#include <QDir>

namespace desk {

namespace files = platform::files;

namespace {

constexpr char SETTINGS_FOLDER[] = "/Lumetra/Tessara 5000 V6/Corvala";
constexpr char SETTINGS[] = "Config.xml";
constexpr char CATALOGUES[] = "DB/";
constexpr char REPLACED[] = "-sostituito-";

platform::XmlNode folderOfCatalogues(const platform::XmlDocument& settings) {
    return settings.isLoaded() ? settings.selectOne("/*/parameters/generici/parameter[@name='dbPath']")
                               : platform::XmlNode();
}

QList<PracticeFile> filesIn(const QString& folder, const QString& prefix) {
    QList<PracticeFile> found;
    for (const QString& name : files::list(folder, QStringLiteral("*.xml"))) {
        if (name.contains(QLatin1String(REPLACED))) continue;
        if (const auto content = files::read(folder + QLatin1Char('/') + name))
            found << PracticeFile{prefix + name, *content};
    }
    return found;
}

QString formerName(const QString& path) {
    const QString base =
        path.chopped(4) + QLatin1String(REPLACED) + platform::now().toString(QStringLiteral("yyyy-MM-dd-HHmmss"));
    QString name = base + QStringLiteral(".xml");
    for (int i = 2; files::exists(name); ++i)
        name = QStringLiteral("%1-%2.xml").arg(base).arg(i);
    return name;
}

void replace(const QString& path, const QByteArray& content, bool keepFormer) {
    if (!QDir().mkpath(QFileInfo(path).path()) || (keepFormer && !files::copy(path, formerName(path))) ||
        !files::writeAtomically(path, content))
        throw DatabaseError(QStringLiteral("Il file %1 non si può scrivere.").arg(QDir::toNativeSeparators(path)));
}

} // namespace

PracticeFolders PracticeFolders::ofUser() {
    const QString settings = platform::specialFolder(platform::CSIDL_APPDATA) + QLatin1String(SETTINGS_FOLDER);
    platform::XmlDocument document;
    document.loadFile(settings + QLatin1Char('/') + QLatin1String(SETTINGS));
    QString catalogues = files::resolve(folderOfCatalogues(document).text());
    while (catalogues.size() > 1 && catalogues.endsWith(QLatin1Char('/')))
        catalogues.chop(1);
    // A file that was never adapted names the program's own folder, which belongs to no practice.
    if (!files::isFolder(catalogues)) catalogues = settings + QStringLiteral("/DB");
    return {settings, catalogues};
}

QList<PracticeFile> PracticeFolders::files() const {
    QList<PracticeFile> found;
    for (const PracticeFile& file : filesIn(settings_, QString()))
        if (file.name.compare(QLatin1String(SETTINGS), Qt::CaseInsensitive) == 0) found << file;
    return found + filesIn(catalogues_, QLatin1String(CATALOGUES));
}

QString PracticeFolders::pathOf(const PracticeFile& file) const {
    const QLatin1String catalogue(CATALOGUES);
    const QString name = QFileInfo(file.name).fileName(); // a copy names files, never other folders
    return (file.name.startsWith(catalogue) ? catalogues_ : settings_) + QLatin1Char('/') + name;
}

// The settings of a copy may name a folder of another time or computer.
QByteArray PracticeFolders::fitted(const PracticeFile& file) const {
    if (file.name.compare(QLatin1String(SETTINGS), Qt::CaseInsensitive) != 0) return file.content;
    platform::XmlDocument document;
    if (!document.loadBytes(file.content)) return file.content;
    const QString folder = catalogues_ + QLatin1Char('/');
    const platform::XmlNode node = folderOfCatalogues(document);
    if (!node || node.text() == folder) return file.content;
    node.setText(folder);
    return document.toBytes();
}

QStringList PracticeFolders::putBack(const QList<PracticeFile>& from) const {
    QStringList changed;
    for (const PracticeFile& file : from) {
        const QString path = pathOf(file);
        const std::optional<QByteArray> present = files::read(path);
        const QByteArray content = fitted(file);
        if (present == content || !path.endsWith(QLatin1String(".xml"), Qt::CaseInsensitive)) continue;
        replace(path, content, files::exists(path));
        changed << file.name;
    }
    return changed;
}

} // namespace desk
