#pragma once

#include "platform/Collection.h"
#include "platform/ReportColumn.h"
#include "store/modWorkspace.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <functional>

class QObject;

namespace platform {
class ReportRecord;
} // namespace platform

/// What a column of a list of documents shows: what the row in the store tells by itself, what only the memo tells, or
/// the patient, whom the panel of a patient need not repeat.
enum class DocumentField { Row, Memo, TaxCode, Patient };

struct DocumentColumn {
    platform::ReportColumn look;
    DocumentField field = DocumentField::Memo;
};

namespace documentcolumns {

DocumentColumn number();      ///< "Progressivo"
DocumentColumn date();        ///< "Data"
DocumentColumn taxCode();     ///< "Cod.Fiscale"
DocumentColumn patient();     ///< "Cliente"
DocumentColumn description(); ///< "Descrizione"

} // namespace documentcolumns

/// A document as its row in the store gives it, the memo unread.
struct DocumentRow {
    QString id;
    QString date;
    QString number; ///< idrif1
    QString description;
    QVariant memo; ///< As the host gave it; converts to text.
};

/// How one document stands in the lists: the texts of its columns, and the status mark of the last one, 0 for none.
struct DocumentCells {
    QStringList texts;
    int icon = 0;
};

/// How a kind of documents stands in its two lists, the panel of the patient and the practice-wide one: columns, cells,
/// commands. Whatever it leaves out its lists do not offer.
struct DocumentKind {
    enum class Period { WholeMonth, MonthToToday };

    qint32 recordType = 0; ///< TipoRecord of the panel.
    QString t1;
    QString plural; ///< "Trattamenti": names and title of the practice-wide list are made from it.
    QList<DocumentColumn> columns;
    int sortColumn = -1; ///< Sorted by it, descending.
    Period period = Period::WholeMonth;
    /// New, edit, remove, print; what is missing at the end is not offered.
    QStringList commands{QStringLiteral("Nuovo"), QStringLiteral("Modifica"), QStringLiteral("Elimina"),
                         QStringLiteral("Stampa")};

    /// Hands on the documents of the open patient. Throws HostError when they cannot be read. `listDocuments` gives the
    /// usual one; the same for the two below.
    std::function<void(const std::function<void(const QString& id, const DocumentCells& cells)>& show)> list;
    /// The cells as far as the row tells them.
    std::function<DocumentCells(const DocumentRow& row)> early;
    /// All cells. May throw.
    std::function<DocumentCells(const DocumentRow& row, host::Paziente& patient)> whole;

    std::function<QObject*(const QString& id)> editor; ///< For the host to show and own.
    std::function<void(const QString& id)> open;       ///< The editor on a document of the open patient; new when empty.
    std::function<bool(host::Paziente& patient, const QString& id)> remove; ///< Asks; whether it is gone.
    std::function<void(host::Paziente& patient, const QString& id)> print;
    std::function<bool(bool hasAny)> mayAdd; ///< Whether the panel offers a new one; always, when left out.
};

/// The record that a row gives without its memo.
template <class Item>
Item itemOf(const DocumentRow& row) {
    Item item;
    item.ID = row.id;
    item.Data = row.date;
    item.setNumber(RecordNumber::parse(row.number));
    item.descrizione = row.description;
    return item;
}

/// Lets both lists show the items of one manager, by its variable in the application context. `readMemo` fills an item
/// from the memo of its row: (Item&, const QString& memo, host::Paziente&).
template <class Item, class Manager, class ReadMemo>
void listDocuments(DocumentKind& kind, Manager* const& manager, DocumentCells (*cells)(const Item&),
                   ReadMemo readMemo) {
    kind.list = [&manager, cells](const auto& show) {
        for (const Item& item : manager->Lista())
            show(item.ID, cells(item));
    };
    kind.early = [cells](const DocumentRow& row) { return cells(itemOf<Item>(row)); };
    kind.whole = [cells, readMemo](const DocumentRow& row, host::Paziente& patient) {
        Item item = itemOf<Item>(row);
        readMemo(item, row.memo.toString(), patient);
        return cells(item);
    };
}

void showCells(platform::ReportRecord& record, const DocumentCells& cells);
