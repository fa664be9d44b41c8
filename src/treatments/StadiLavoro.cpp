#include "treatments/StadiLavoro.h"

#include <QStringList>

namespace stadilavoro {

namespace {

const QString FORMATO = QStringLiteral("yyyyMMdd");
const QLatin1String A_CAPO("\r\n");
const QLatin1Char DIVISORE('|');
constexpr qsizetype UNA_DATA = 8;
constexpr qsizetype DUE_DATE = 16;

StadioLavoro leggiRiga(const QString& riga) {
    const QStringList parti = riga.split(DIVISORE);
    StadioLavoro stadio;
    stadio.nome = parti.value(0);
    if (parti.size() != 2) return stadio;
    stadio.inizio = QDate::fromString(parti[1].left(UNA_DATA), FORMATO);
    if (parti[1].size() == DUE_DATE) stadio.fine = QDate::fromString(parti[1].right(UNA_DATA), FORMATO);
    return stadio;
}

} // namespace

QList<StadioLavoro> leggi(const QString& statuslavori) {
    QList<StadioLavoro> stadi;
    if (statuslavori.isEmpty()) return stadi;
    for (const QString& riga : statuslavori.split(A_CAPO)) {
        if (stadi.size() == MASSIMO) break;
        stadi << leggiRiga(riga);
    }
    return stadi;
}

QString scrivi(const QList<StadioLavoro>& stadi) {
    QStringList righe;
    for (const StadioLavoro& stadio : stadi) {
        QString riga = stadio.nome;
        if (stadio.inizio.isValid()) {
            riga += DIVISORE + stadio.inizio.toString(FORMATO);
            if (stadio.fine.isValid()) riga += stadio.fine.toString(FORMATO);
        }
        righe << riga;
    }
    return righe.join(A_CAPO);
}

QStringList nomi(const QString& testoCatalogo) {
    QStringList nomi;
    const QStringList righe = testoCatalogo.trimmed().split(A_CAPO);
    for (const QString& riga : righe.mid(0, MASSIMO)) {
        if (!riga.isEmpty()) nomi << riga.section(DIVISORE, 0, 0);
    }
    return nomi;
}

} // namespace stadilavoro
