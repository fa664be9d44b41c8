#include "desk/report/ReportGrammar.h"

#include "desk/report/ReportLayoutError.h"
#include "platform/XmlDocument.h"

#include <QStringList>

namespace desk {

namespace {

struct AttributeRule {
    enum Kind { TEXT, NUMBER, FLAG, COLOUR, NUMBERS, WORD };
    const char* name;
    Kind kind;
    qreal least = 0;
    qreal most = 0;
    const char* words = ""; ///< Those allowed, divided by "|".
};

struct ElementRule {
    const char* name;
    const char* attributes; ///< Divided by blanks.
    const char* children;
    bool hasText = false;
};

using Rule = AttributeRule;
const AttributeRule ATTRIBUTES[] = {
    {"titolo", Rule::TEXT},
    {"formato", Rule::WORD, 0, 0, "A4|A5"},
    {"orientamento", Rule::WORD, 0, 0, "verticale|orizzontale"},
    {"margini", Rule::NUMBERS, 0, 80},
    {"carattere", Rule::TEXT},
    {"dimensione", Rule::NUMBER, 4, 72},
    {"grassetto", Rule::FLAG},
    {"corsivo", Rule::FLAG},
    {"maiuscolo", Rule::FLAG},
    {"colore", Rule::COLOUR},
    {"allineamento", Rule::WORD, 0, 0, "sinistra|centro|destra"},
    {"se", Rule::TEXT},
    {"sopra", Rule::NUMBER, 0, 200},
    {"sotto", Rule::NUMBER, 0, 200},
    {"unito", Rule::FLAG},
    {"spessore", Rule::NUMBER, 0.1, 10},
    {"altezza", Rule::NUMBER, 0, 250},
    {"larghezza", Rule::NUMBER, 1, 100},
    {"verticale", Rule::WORD, 0, 0, "alto|centro|basso"},
    {"spazio", Rule::NUMBER, 0, 100},
    {"file", Rule::TEXT},
    {"facoltativo", Rule::FLAG},
    {"sfondo", Rule::COLOUR},
    {"bordo", Rule::COLOUR},
    {"raggio", Rule::NUMBER, 0, 20},
    {"margine", Rule::NUMBER, 0, 50},
    {"variabile", Rule::TEXT},
    {"intestazioni", Rule::TEXT},
    {"percentuali", Rule::TEXT},
    {"allineamenti", Rule::TEXT},
    {"righi", Rule::TEXT},
    {"colore-testata", Rule::COLOUR},
    {"sfondo-testata", Rule::COLOUR},
    {"colore-linee", Rule::COLOUR},
    {"valore", Rule::TEXT},
    {"evidenza", Rule::FLAG},
    {"totale", Rule::FLAG},
};

// Words that many elements share.
const char STYLE[] = "carattere dimensione grassetto corsivo maiuscolo colore allineamento";
const char PLACE[] = "se sopra sotto unito";
const char BLOCKS[] = "testo linea spazio logo colonne riquadro griglia totali";

const ElementRule ELEMENTS[] = {
    {"report", "titolo", "pagina intestazione seguito corpo piede"},
    {"pagina", "formato orientamento margini carattere dimensione colore", ""},
    {"intestazione", "", "@blocks"},
    {"seguito", "", "@blocks"},
    {"corpo", "", "@blocks"},
    {"piede", "", "@blocks"},
    {"testo", "@style @place", "", true},
    {"linea", "spessore colore larghezza allineamento @place", ""},
    {"spazio", "altezza se", ""},
    {"logo", "file altezza larghezza allineamento facoltativo @place", "", true},
    {"colonne", "spazio @place", "colonna"},
    {"colonna", "larghezza verticale", "@blocks"},
    {"riquadro", "sfondo bordo spessore raggio margine @place", "@blocks"},
    {"griglia",
     "variabile intestazioni percentuali allineamenti righi dimensione colore-testata sfondo-testata colore-linee "
     "totale @place",
     ""},
    {"totali", "titolo righi larghezza dimensione allineamento colore colore-linee sfondo @place", "voce"},
    {"voce", "titolo valore evidenza se", ""},
};

bool lists(const char* words, const QString& word, char divider = ' ') {
    const QString all = QString::fromLatin1(words)
                            .replace(QLatin1String("@style"), QLatin1String(STYLE))
                            .replace(QLatin1String("@place"), QLatin1String(PLACE))
                            .replace(QLatin1String("@blocks"), QLatin1String(BLOCKS));
    return all.split(QLatin1Char(divider), Qt::SkipEmptyParts).contains(word);
}

const ElementRule* ruleOf(const QString& name) {
    for (const ElementRule& rule : ELEMENTS)
        if (name == QLatin1String(rule.name)) return &rule;
    return nullptr;
}

const AttributeRule* attributeRule(const QString& name) {
    for (const AttributeRule& rule : ATTRIBUTES)
        if (name == QLatin1String(rule.name)) return &rule;
    return nullptr;
}

QString range(const AttributeRule& rule) {
    return QStringLiteral("da %1 a %2").arg(rule.least).arg(rule.most).replace(QLatin1Char('.'), QLatin1Char(','));
}

bool isWithin(const AttributeRule& rule, qreal number) {
    return number >= rule.least && number <= rule.most;
}

/// What the attribute wants instead; empty when the value is good.
QString wanted(const AttributeRule& rule, const QString& value) {
    switch (rule.kind) {
    case Rule::TEXT:
        return {};
    case Rule::NUMBER: {
        const std::optional<qreal> number = ReportElement::readNumber(value);
        return number && isWithin(rule, *number) ? QString() : QStringLiteral("un numero ") + range(rule);
    }
    case Rule::NUMBERS: {
        const std::optional<QList<qreal>> numbers = ReportElement::readNumbers(value);
        bool good = numbers && numbers->size() == 4;
        for (qsizetype i = 0; good && i < 4; ++i)
            good = isWithin(rule, numbers->at(i));
        return good ? QString()
                    : QStringLiteral("quattro numeri %1, divisi da punto e virgola (sopra; destra; sotto; sinistra)")
                          .arg(range(rule));
    }
    case Rule::FLAG:
        return ReportElement::readFlag(value) ? QString() : QStringLiteral("\u201csi\u201d o \u201cno\u201d");
    case Rule::COLOUR:
        return QColor(value).isValid() ? QString() : QStringLiteral("un colore, come \u201c#1a6f8c\u201d");
    case Rule::WORD:
        return lists(rule.words, value, '|')
                   ? QString()
                   : QStringLiteral("una di queste parole: %1")
                         .arg(QString::fromLatin1(rule.words).replace(QLatin1Char('|'), QStringLiteral(", ")));
    }
    return {};
}

void check(const ElementRule& rule, const QString& name, const QString& value) {
    const AttributeRule* attribute = attributeRule(name);
    if (!attribute || !lists(rule.attributes, name))
        throw ReportLayoutError(
            QStringLiteral("L'elemento <%1> non ha un attributo \u201c%2\u201d.").arg(QLatin1String(rule.name), name));
    const QString instead = wanted(*attribute, value);
    if (!instead.isEmpty())
        throw ReportLayoutError(QStringLiteral("L'attributo \u201c%1\u201d di <%2> vuole %3; contiene \u201c%4\u201d.")
                                    .arg(name, QLatin1String(rule.name), instead, value));
}

/// What no attribute's own rule can see.
void checkWhole(const ReportElement& element) {
    if (element.name != QLatin1String("griglia")) return;
    if (element.value("variabile").isEmpty() && element.value("righi").isEmpty())
        throw ReportLayoutError(
            QStringLiteral("A <griglia> manca l'attributo \u201cvariabile\u201d, oppure \u201crighi\u201d."));
}

} // namespace

ReportElement readReportElement(const platform::XmlNode& node) {
    const ElementRule* rule = ruleOf(node.name());
    if (!rule) throw ReportLayoutError(QStringLiteral("L'elemento <%1> \u00e8 sconosciuto.").arg(node.name()));
    ReportElement element;
    element.name = node.name();
    for (const auto& [name, value] : node.attributes()) {
        check(*rule, name, value);
        element.attributes.insert(name, value);
    }
    checkWhole(element);
    if (rule->hasText) element.text = node.text().simplified();
    for (platform::XmlNode child = node.firstChild(); child; child = child.nextSibling()) {
        if (ruleOf(child.name()) && !lists(rule->children, child.name()))
            throw ReportLayoutError(
                QStringLiteral("L'elemento <%1> non pu\u00f2 stare dentro <%2>.").arg(child.name(), element.name));
        element.children.push_back(readReportElement(child));
    }
    return element;
}

} // namespace desk
