#include "treatments/StrangeInMemo.h"

#include "platform/XmlDocument.h"

#include <QStringList>

namespace {

using platform::XmlNode;
using Names = QStringList;

QString strangeAttribute(const XmlNode& node, const Names& known) {
    for (const auto& [name, value] : node.attributes()) {
        if (!known.contains(name)) return name;
    }
    return {};
}

/// Elements other than the known ones, and known ones that stand twice, of which only the first is read.
QString strangeChild(const XmlNode& node, const Names& known) {
    Names seen;
    for (XmlNode child = node.firstChild(); child; child = child.nextSibling()) {
        if (!known.contains(child.name()) || seen.contains(child.name())) return child.name();
        seen << child.name();
    }
    return {};
}

QString strangeRow(const XmlNode& rows) {
    static const Names attributes{
        QStringLiteral("progressivo"), QStringLiteral("denti"),         QStringLiteral("servizio"),
        QStringLiteral("descrizione"), QStringLiteral("ragruppamento"), QStringLiteral("operatore"),
        QStringLiteral("assistente"),  QStringLiteral("assitente"),     QStringLiteral("inizioLavori"),
        QStringLiteral("fineLavori"),  QStringLiteral("statusLavori"),  QStringLiteral("fattura"),
        QStringLiteral("prezzo"),      QStringLiteral("note"),          QStringLiteral("fuoriPreventivo")};
    for (XmlNode row = rows.firstChild(); row; row = row.nextSibling()) {
        if (row.name() != QLatin1String("rigo")) return row.name();
        if (const XmlNode inner = row.firstChild()) return inner.name();
        if (const QString name = strangeAttribute(row, attributes); !name.isEmpty()) return name;
    }
    return {};
}

/// The first thing of the memo that a plan has no place for; empty when there is none.
QString strange(const XmlNode& treatment) {
    static const Names head{QStringLiteral("anno"), QStringLiteral("progressivo"), QStringLiteral("data"),
                            QStringLiteral("fatturaAnticipo")};
    static const Names parts{QStringLiteral("paziente"),    QStringLiteral("medico"),
                             QStringLiteral("righi"),       QStringLiteral("descrizione"),
                             QStringLiteral("annotazioni"), QStringLiteral("situazioneOrale")};
    for (const QString& name : {strangeAttribute(treatment, head), strangeChild(treatment, parts),
                                strangeRow(treatment.firstChild("righi"))}) {
        if (!name.isEmpty()) return name;
    }
    return {};
}

} // namespace

QString strangeInMemo(const QString& memo) {
    platform::XmlDocument document;
    if (!document.loadText(memo)) return {};
    const XmlNode treatment = document.root();
    if (!treatment.firstChild("righi")) return QStringLiteral("il testo registrato non ha l'elenco dei righi");
    const QString name = strange(treatment);
    return name.isEmpty() ? QString()
                          : QStringLiteral("il testo registrato contiene dati che non si possono leggere: ") + name;
}
