#include "config/ConfigFolder.h"

#include "config/TemplateMerge.h"
#include "host/context.h"
#include "host/modCartelle.h"
#include "platform/Clock.h"
#include "platform/Files.h"
#include "platform/XmlDocument.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace files = platform::files;
using platform::XmlDocument;

namespace {

const char* const CATALOGUES[] = {"TabellaArticoli.xml", "TabellaServizi.xml"};

QString configTemplate() {
    return sAppPath + QStringLiteral("/Config.xml");
}

QString catalogueTemplate(const char* name) {
    return sAppPath + QStringLiteral("/DB/") + QLatin1String(name);
}

/// There, readable and no document: what cannot be read now may well be whole.
bool broken(const QString& path) {
    const std::optional<QByteArray> content = files::read(path);
    return content && !XmlDocument().loadFile(path);
}

/// A copy beside the file under its name, the word and the moment; empty when there is none to be had.
QString keepAside(const QString& path, const char* word) {
    const QFileInfo file(files::resolve(path));
    const QString moment = platform::now().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    const QString aside = QStringLiteral("%1/%2-%3-%4.%5")
                              .arg(file.path(), file.completeBaseName(), QLatin1String(word), moment, file.suffix());
    if (!files::copy(path, aside)) return {};
    QFile::setPermissions(aside, file.permissions()); // who may read the one may read the other
    return aside;
}

} // namespace

ConfigFolder::ConfigFolder()
    : folder_(userFolder())
    , error_(QStringLiteral("Non è stato possibile caricare il file di configurazione")) {
    if (folder_.isEmpty()) return;
    file_ = files::resolve(folder_ + QStringLiteral("/Config.xml"));
    restrict();
    files::removeLeftovers(folder_, QStringLiteral("*.geometry"));
}

bool ConfigFolder::open(XmlDocument& document) {
    if (file_.isEmpty()) return false;
    if (!files::exists(file_)) return seed(document);
    if (document.loadFile(file_)) {
        renew(document);
        return true;
    }
    if (!broken(file_) || !XmlDocument().loadFile(configTemplate())) return false;
    const QString aside = keepAside(file_, "danneggiato");
    if (aside.isEmpty() || !seed(document)) return false;
    notices_ << QStringLiteral("Il file delle impostazioni era danneggiato. È stato conservato come\n%1\ne sostituito "
                               "con quello iniziale.\n\nLe impostazioni dello studio, e la cartella comune se le "
                               "postazioni sono più d'una, vanno indicate di nuovo.")
                    .arg(QDir::toNativeSeparators(aside));
    return true;
}

// The file comes last and whole, with the folder of its catalogues in it: a start that dies before begins anew.
bool ConfigFolder::seed(XmlDocument& document) {
    if (!document.loadFile(configTemplate())) return false;
    const QString refused = QStringLiteral("Non è stato possibile salvare il file di configurazione ") + file_;
    QString dataFolder;
    if (!seedCatalogues(dataFolder)) {
        error_ = refused;
        return false;
    }
    if (!dataFolder.isEmpty()) {
        for (const platform::XmlNode& node : document.root().select("parameters/generici/parameter[@name='dbPath']"))
            node.setText(dataFolder);
    }
    noteOfferedCommands(document);
    if (!document.saveFile(file_)) {
        error_ = refused;
        return false;
    }
    files::restrictToOwner(file_);
    return true;
}

// Catalogues that are there are never overwritten. Without both the program's own stay in use. False when the disk
// refuses.
bool ConfigFolder::seedCatalogues(QString& dataFolder) const {
    const QString folder = folder_ + QStringLiteral("/DB");
    if (!files::createFolder(folder)) return false;
    bool complete = true;
    for (const char* name : CATALOGUES) {
        const QString target = folder + QLatin1Char('/') + QLatin1String(name);
        if (files::exists(target)) continue;
        if (!files::exists(catalogueTemplate(name)))
            complete = false;
        else if (!files::copy(catalogueTemplate(name), target))
            return false;
    }
    if (complete) dataFolder = folder + QLatin1Char('/');
    return true;
}

// Where the old file cannot be kept or the new one not be written, the practice works on with the old one for this run.
void ConfigFolder::renew(XmlDocument& document) const {
    XmlDocument shipped;
    XmlDocument renewed;
    if (!shipped.loadFile(configTemplate()) || !renewed.loadBytes(document.toBytes())) return;
    if (!mergeTemplate(renewed, shipped) || keepAside(file_, "precedente").isEmpty()) return;
    if (renewed.saveFile(file_)) document = std::move(renewed);
}

void ConfigFolder::mendCatalogues(const QString& dataFolder) {
    for (const char* name : CATALOGUES) {
        const QString path = dataFolder + QLatin1Char('/') + QLatin1String(name);
        if (dataFolder.isEmpty() || !broken(path) || !XmlDocument().loadFile(catalogueTemplate(name))) continue;
        const QString aside = keepAside(path, "danneggiato");
        if (aside.isEmpty() || !files::copy(catalogueTemplate(name), path)) continue;
        notices_ << QStringLiteral("Il catalogo %1 era danneggiato. È stato conservato come\n%2\ne sostituito con "
                                   "quello iniziale.\n\nControllare voci e prezzi prima di usarli.")
                        .arg(QLatin1String(name), QDir::toNativeSeparators(aside));
    }
}

// Names, addresses and passwords of programs are nobody's business but the owner's. A data folder in which others may
// write was opened to them on purpose, and stays so with the way to it.
void ConfigFolder::restrict() const {
    const QString data = folder_ + QStringLiteral("/DB");
    const QFile::Permissions others = QFile::WriteGroup | QFile::WriteOther;
    if (!files::isFolder(data) || !(QFile::permissions(files::resolve(data)) & others)) files::restrictToOwner(folder_);
    for (const QString& name : files::list(folder_, QStringLiteral("*")))
        files::restrictToOwner(folder_ + QLatin1Char('/') + name);
}
