#include "treatments/StrangeInMemo.h"

#include "platform/XmlReading.h"

#include <QStringList>

namespace {

using platform::XmlElement;
using Names = QStringList;

QString strangeAttribute(const XmlElement& node, const Names& known) {
    for (const QString& name : node.attributeNames()) {
        if (!known.contains(name)) return name;
    }
    return {};
}

/// Elements other than the known ones, and known ones that stand twice, of which only the first is read.
QString strangeChild(const XmlElement& node, const Names& known) {
    Names seen;
    for (XmlElement child = node.firstChild(); child; child = child.nextSibling()) {
        if (!known.contains(child.name()) || seen.contains(child.name())) return child.name();
        seen << child.name();
    }
    return {};
}

QString strangeRow(const XmlElement& rows) {
    static const Names attributes{
        QStringLiteral("progressivo"), QStringLiteral("denti"),         QStringLiteral("servizio"),
        QStringLiteral("descrizione"), QStringLiteral("ragruppamento"), QStringLiteral("operatore"),
        QStringLiteral("assistente"),  QStringLiteral("assitente"),     QStringLiteral("inizioLavori"),
        QStringLiteral("fineLavori"),  QStringLiteral("statusLavori"),  QStringLiteral("fattura"),
        QStringLiteral("prezzo"),      QStringLiteral("note"),          QStringLiteral("fuoriPreventivo")};
    for (XmlElement row = rows.firstChild(); row; row = row.nextSibling()) {
        if (!row.is("rigo")) return row.name();
        if (const XmlElement inner = row.firstChild()) return inner.name();
        if (const QString name = strangeAttribute(row, attributes); !name.isEmpty()) return name;
    }
    return {};
}

/// The first thing of the memo that a plan has no place for; empty when there is none.
QString strange(const XmlElement& treatment) {
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
    const platform::XmlReading reading(memo);
    const XmlElement treatment = reading.root();
    if (!treatment) return {};
    if (!treatment.firstChild("righi")) return QStringLiteral("il testo registrato non ha l'elenco dei righi");
    const QString name = strange(treatment);
    return name.isEmpty() ? QString()
                          : QStringLiteral("il testo registrato contiene dati che non si possono leggere: ") + name;
}
