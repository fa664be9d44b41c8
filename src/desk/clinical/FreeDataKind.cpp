#include "desk/clinical/FreeDataKind.h"

#include "desk/data/FileNames.h"
#include "desk/data/FreeData.h"

#include <QFontDatabase>
#include <QLineEdit>

namespace desk {

namespace {

using host::ItemDati;
using platform::bound;
using platform::FieldKind;

constexpr char16_t NO_FOLDER[] = u"Indicare la cartella; i livelli, divisi da \u201c/\u201d, non possono essere vuoti.";

constexpr KindColumn<ItemDati> COLUMNS[] = {
    {u"Descrizione", 320, [](const ItemDati& item) { return item.descrizione.simplified(); }, true},
    {u"Dimensione", 90, [](const ItemDati& item) { return fileSizeText(item.file.toUtf8().size()); }, false,
     Qt::AlignRight | Qt::AlignVCenter}};

constexpr platform::BoundField<ItemDati> FIELDS[] = {
    {{"tbCartella", u"&Cartella:", FieldKind::Line, platform::KEEP_BLANKS, NO_FOLDER,
      u"I livelli si dividono con \u201c/\u201d; un'altra cartella sposta il dato"},
     [](const ItemDati& item) { return QVariant(item.Cartella); },
     // The folder of an item that is not moved stays as it was written, whoever wrote it.
     [](ItemDati& item, const QVariant& folder) {
         if (folder.toString() != item.Cartella) item.Cartella = folder.toString().trimmed();
     }},
    bound<&ItemDati::descrizione>(
        {"tbDescrizione", u"De&scrizione:", FieldKind::Line, platform::KEEP_BLANKS, u"Scrivere la descrizione."}),
    bound<&ItemDati::file>({"tbContenuto", u"C&ontenuto:", FieldKind::Memo})};

constexpr Kind<ItemDati> ITEMS{
    .item = "Dato",
    .grid = "rcDati",
    .caption = u"Archivio dati",
    .newCaption = u"&Nuovo dato",
    .empty = u"Nessun dato in questa cartella",
    .columns = COLUMNS,
    .form = "frmEditDato",
    .newTitle = u"Nuovo dato",
    .title = u"Dato",
    .size = {680, 460},
    .fields = FIELDS,
    .firstField = "tbDescrizione",
    .gone = u"Il dato non è più nell'archivio.",
    .removalQuestion =
        [](const ItemDati& item, const RoomContext&) {
            return QStringLiteral("Eliminare \u201c%1\u201d?").arg(item.descrizione);
        },
    .check =
        [](const ItemDati& item, const char*& field) {
            field = "tbCartella";
            return FreeData::isFolderName(item.Cartella.trimmed()) ? QString() : QString::fromUtf16(NO_FOLDER);
        },
    .adapt =
        [](platform::RecordForm& form, const RoomContext&) {
            form.field("tbContenuto")->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
        }};

constexpr platform::FormField FOLDER_FIELDS[] = {
    {"tbCartella", u"&Cartella:", FieldKind::Line, 0, NO_FOLDER},
    {nullptr, u"I livelli si dividono con \u201c/\u201d: così una cartella si sposta anche in un'altra.",
     FieldKind::Note}};

class FolderForm : public platform::RecordForm {
public:
    FolderForm(FreeData& archive, const QString& folder, const RoomServices& services, QWidget* parent)
        : RecordForm(QStringLiteral("frmEditCartella"), parent)
        , archive_(archive)
        , folder_(folder)
        , database_(services.database) {
        setWindowTitle(QStringLiteral("Rinomina o sposta cartella"));
        build(QList<platform::FormField>(std::begin(FOLDER_FIELDS), std::end(FOLDER_FIELDS)));
        setValue("tbCartella", folder);
        field<QLineEdit>("tbCartella")->selectAll();
        start("tbCartella", QSize(520, 120));
    }

protected:
    QString target() const { return value("tbCartella").toString(); }
    QString whatIsWrong() override {
        return FreeData::isFolderName(target()) ? QString() : refuse("tbCartella", QString::fromUtf16(NO_FOLDER));
    }
    QString doubt() override {
        const bool joins = target() != folder_ &&
                           !checkedQuietly(database_, [this] { return archive_.Lista(target(), true); }).isEmpty();
        return joins ? QStringLiteral("La cartella \u201c%1\u201d esiste già. Unire le due cartelle?").arg(target())
                     : QString();
    }
    QString store(QString& id) override {
        id = target();
        if (id == folder_ || checkedQuietly(database_, [&] { return archive_.moveFolder(folder_, id); })) return {};
        return QStringLiteral("La cartella non è più nell'archivio.");
    }

private:
    FreeData& archive_;
    QString folder_;
    Database& database_;
};

} // namespace

platform::ListSource freeDataList(FreeData& archive, const QString& folder, const RoomServices& services) {
    const RowStore<ItemDati> rows{.list = [&archive, &folder] { return archive.Lista(folder, false); },
                                  .load = [&archive](const QString& id) { return archive.Carica(id); },
                                  .save =
                                      [&archive](ItemDati& item) {
                                          // Writing would bring back an item that was deleted elsewhere meanwhile.
                                          if (!item.ID.isEmpty() && !archive.Carica(item.ID)) return false;
                                          return archive.Salva(item, true);
                                      },
                                  .remove = [&archive](const QString& id) { return archive.Elimina(id); },
                                  .fresh =
                                      [&archive, &folder] {
                                          ItemDati item = archive.GetEmptyItem();
                                          item.Cartella = folder;
                                          return item;
                                      }};
    return listOf(ITEMS, rows, {nullptr, services});
}

platform::RecordForm* makeFolderForm(FreeData& archive, const QString& folder, const RoomServices& services,
                                     QWidget* parent) {
    return new FolderForm(archive, folder, services, parent);
}

} // namespace desk
