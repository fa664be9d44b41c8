#include "desk/data/DemoPlans.h"

#include "platform/Regional.h"
#include "platform/SingleByteText.h"

#include <QDate>

namespace desk {

namespace {

const QString lineEnd = QStringLiteral("\r\n");

QString encoded(const QString& text) {
    return QString::fromLatin1(platform::toSingleByte(text).toBase64());
}

QString attribute(const char* name, const QString& value) {
    return QStringLiteral("%1=\"%2\" ").arg(QLatin1String(name), value);
}

QString element(const char* name, const QString& text) {
    return QStringLiteral("\t<%1>%2</%1>").arg(QLatin1String(name), encoded(text)) + lineEnd;
}

QString person(const char* name, const QString& taxCode, const QString& description) {
    return QStringLiteral("\t<%1 codiceFiscale=\"%2\">%3</%1>")
               .arg(QLatin1String(name), taxCode, encoded(description)) +
           lineEnd;
}

} // namespace

DemoPlans::DemoPlans()
    : plans_(QStringLiteral("piani"))
    , rows_(QStringLiteral("righi")) {}

QString DemoPlans::date(int plan) const {
    return platform::regional().shortDate(QDate::fromString(plans_.text(plan, "data"), Qt::ISODate));
}

QString DemoPlans::memo(int plan, const PatientData& patient, const UserData& doctor) const {
    const QStringList yearAndNumber = number(plan).split(QLatin1Char('-'));
    QString memo = QStringLiteral("<?xml version=\"1.0\" encoding=\"utf-8\"?>") + lineEnd;
    memo += QStringLiteral("<trattamento ") + attribute("anno", yearAndNumber.value(0)) +
            attribute("progressivo", yearAndNumber.value(1)) + attribute("data", date(plan)) +
            attribute("fatturaAnticipo", QString()) + QLatin1Char('>') + lineEnd;
    memo += person("paziente", patient.codicefiscale, patient.Cognome + QLatin1Char(' ') + patient.Nome);
    memo += person("medico", doctor.codicefiscale, doctor.Cognome + QStringLiteral(" dott. ") + doctor.Nome);
    memo += QStringLiteral("\t<righi>") + lineEnd;
    for (int i = 0; i < rows_.size(); ++i) {
        if (rows_.text(i, "piano") == number(plan)) memo += row(i);
    }
    memo += QStringLiteral("\t</righi>") + lineEnd;
    memo += element("descrizione", description(plan));
    memo += element("annotazioni", plans_.text(plan, "annotazioni"));
    memo += element("situazioneOrale", QString());
    return memo + QStringLiteral("</trattamento>");
}

QString DemoPlans::row(int row) const {
    const auto plain = [&](const char* name, const char* column) { return attribute(name, rows_.text(row, column)); };
    const QString stages = rows_.text(row, "status").replace(QLatin1Char(';'), lineEnd);
    const QString price = platform::regional().format(rows_.text(row, "prezzo").toFloat(), QStringLiteral("###0.00"));
    return QStringLiteral("\t\t<rigo ") + plain("progressivo", "progressivo") + plain("denti", "denti") +
           plain("servizio", "servizio") + attribute("descrizione", encoded(rows_.text(row, "descrizione"))) +
           plain("ragruppamento", "raggruppamento") + // the records spell it with one g
           plain("operatore", "operatore") + plain("assistente", "assistente") + plain("inizioLavori", "inizio") +
           plain("fineLavori", "fine") + attribute("statusLavori", encoded(stages)) + attribute("fattura", QString()) +
           attribute("prezzo", price) + plain("fuoriPreventivo", "fuoripreventivo") +
           attribute("note", encoded(rows_.text(row, "note"))) + QStringLiteral("/>") + lineEnd;
}

} // namespace desk
