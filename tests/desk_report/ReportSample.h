#pragma once

#include "desk/report/ReportDocument.h"
#include "desk/report/ReportLayout.h"
#include "desk/report/ReportLayouts.h"
#include "support/Text.h"

#include <QMap>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>
#include <QVariant>
#include <gtest/gtest.h>

/// Variables as the records of the practice hand them over: rows joined by the character 8, fields by the character 7.
namespace sample {

using Variables = QMap<QString, QVariant>;

inline QString row(const QStringList& fields) {
    return fields.join(QChar(7));
}

inline QString euro(double amount) {
    return u8("€ ") + QString::number(amount, 'f', 2).replace(u'.', u',');
}

/// The services of an invoice, over and over; each row begins with its number so that it can be found again.
inline QString rows(int count) {
    const QStringList services{u8("Otturazione in composito, due o più superfici (dente 1.6)"),
                               u8("Terapia endodontica (devitalizzazione)"), u8("Corona in zirconia-ceramica"),
                               u8("Ablazione del tartaro e igiene orale"), u8("Impianto osteointegrato (dente 4.6)")};
    const double prices[] = {140, 250, 700, 80, 1100};
    QStringList rows;
    for (int i = 0; i < count; ++i) {
        const double price = prices[i % 5];
        rows.append(row({QStringLiteral("R%1").arg(i + 1, 4, 10, QLatin1Char('0')), services[i % 5], u8("NR"), u8("1"),
                         euro(price), u8("Esente art. 10 n. 18"), euro(price)}));
    }
    return rows.join(QChar(8));
}

/// `prefix` is "Fattura." or "Preventivo.", which share the shape of their variables.
inline Variables document(const QString& prefix, int rowCount) {
    const bool isEstimate = prefix == QLatin1String("Preventivo.");
    Variables v;
    const auto add = [&](const char* name, const QString& value) { v.insert(prefix + u8(name), value); };
    add("Intestatario.Descrizione", u8("Studio Odontoiatrico Dott.ssa Chiara Bèrgamo"));
    add("Intestatario.Dettagli", u8("Via Nizza 118, 10126 Torino (TO)\r\nTel. 011 555 01 42 · P.IVA 01234567890\r\n"
                                    "studio@bergamo-odontoiatria.example"));
    add("Cliente.Nominativo", u8("D'ANGELO Nicolò"));
    add("Cliente.CodiceFiscale", u8("DNGNCL75C10L219X"));
    add("Numero", u8("2025-0042"));
    add("Data", u8("18/11/2025"));
    add("Corpo.Header", u8("Codice,Descrizione,U.M.,Qta,Prezzo,IVA,Importo"));
    add("Corpo.Percentuali", u8("10,30,8,5,17,20,10"));
    add("Corpo.Allineamenti", u8("L,L,C,R,R,L,R"));
    add("Corpo.Righi", rows(rowCount));
    v.insert(isEstimate ? u8("PreventivoC.astellettoIva.Header") : u8("Fattura.CastellettoIva.Header"),
             u8("Iva,Descrizione,Imponibile,Imposta"));
    add("CastellettoIva.Percentuali", u8("10,35,15,10"));
    add("CastellettoIva.Allineamenti", u8("L,L,R,R"));
    add("CastellettoIva.Righi", row({u8("ES"), u8("Esente art. 10 n. 18"), euro(2270), u8("€ 0,00")}) + QChar(8) +
                                    row({u8("22"), u8("Aliquota ordinaria"), euro(300), euro(66)}));
    add("Imponibile", euro(2570));
    add("Bollo", isEstimate ? QString() : euro(2));
    add("IvaTitolo", u8("IVA*"));
    add("IvaImporto", euro(66));
    add("Totale", euro(2638));
    add("APagare", euro(2638));
    if (!isEstimate) {
        add("BolloNote", u8("Imposta di bollo assolta sull'originale."));
        add("Pagamento.Metodo", u8("Contanti, Bancomat"));
    }
    return v;
}

inline Variables summary(int rowCount) {
    QStringList rows;
    for (int i = 0; i < rowCount; ++i)
        rows.append(row({QStringLiteral("2025-%1").arg(i + 1, 4, 10, QLatin1Char('0')), u8("18/11/2025"),
                         u8("D'ANGELO Nicolò"), u8("BÈRGAMO Chiara"), u8("Otturazione in composito"), u8("140,00")}));
    rows.append(row({QString(), QString(), u8("Totale"), QString(), QString(), u8("14140,00")}));
    return {{u8("RiepilogoFattureEmesse.Corpo.Header"), u8("Progr.,Data,Cliente,Medico,Descrizione,Totale")},
            {u8("RiepilogoFattureEmesse.Corpo.Percentuali"), u8("10,15,20,20,25,10")},
            {u8("RiepilogoFattureEmesse.Corpo.Allineamenti"), u8("L,L,L,L,L,R")},
            {u8("RiepilogoFattureEmesse.Corpo.Righi"), rows.join(QChar(8))},
            {u8("RiepilogoFattureEmesse.Riepilogo"),
             u8("FATTURE\r\nNumero:             101\r\nImponibile IVA:     14140,00\r\n"
                "IVA:                0,00\r\nBolli:              12,00\r\n")}};
}

inline desk::ReportDocument fill(const QString& xml, const Variables& variables) {
    return desk::ReportDocument::compose(desk::ReportLayout::read(xml), variables);
}

/// A layout of the given body, on a page without heading and footer.
inline QString layoutOf(const QString& body) {
    return u8("<report><pagina margini=\"10; 10; 10; 10\"/><corpo>") + body + u8("</corpo></report>");
}

/// What a reader finds on each page of a PDF.
inline QStringList pagesOf(const QByteArray& pdf) {
    QTemporaryDir folder;
    QFile file(folder.filePath(u8("prova.pdf")));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(pdf) == pdf.size());
    file.close();
    QProcess reader;
    reader.start(u8("pdftotext"), {u8("-layout"), u8("-enc"), u8("UTF-8"), file.fileName(), u8("-")});
    EXPECT_TRUE(reader.waitForFinished()) << "pdftotext, of poppler-utils, is missing";
    EXPECT_EQ(reader.exitCode(), 0);
    QString text = QString::fromUtf8(reader.readAllStandardOutput());
    // Fonts draw some pairs of letters as one.
    text.replace(QChar(0xFB01), u8("fi")).replace(QChar(0xFB02), u8("fl"));
    QStringList pages = text.split(QChar(12));
    if (!pages.isEmpty() && pages.last().trimmed().isEmpty()) pages.removeLast();
    return pages;
}

} // namespace sample
