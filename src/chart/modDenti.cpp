#include "chart/modDenti.h"

#include <QStringList>
#include <array>

namespace {

struct Dente {
    char quadrante;
    char posizione;
};

// In the order of the chart, which is the order of the numbers in every record: it must never change.
constexpr std::array<Dente, NUMERO_DENTI> DENTI{{
    {1, 8}, {1, 7}, {1, 6}, {1, 5}, {1, 4}, {1, 3}, {1, 2}, {1, 1}, {2, 1}, {2, 2}, {2, 3}, {2, 4}, {2, 5},
    {2, 6}, {2, 7}, {2, 8}, {3, 8}, {3, 7}, {3, 6}, {3, 5}, {3, 4}, {3, 3}, {3, 2}, {3, 1}, {4, 1}, {4, 2},
    {4, 3}, {4, 4}, {4, 5}, {4, 6}, {4, 7}, {4, 8}, {5, 5}, {5, 4}, {5, 3}, {5, 2}, {5, 1}, {6, 1}, {6, 2},
    {6, 3}, {6, 4}, {6, 5}, {7, 5}, {7, 4}, {7, 3}, {7, 2}, {7, 1}, {8, 1}, {8, 2}, {8, 3}, {8, 4}, {8, 5},
}};

constexpr QChar SEPARATORE = u';';

bool esiste(int indice) {
    return indice >= 0 && indice < NUMERO_DENTI;
}

const Dente& dente(int indice) {
    return DENTI[static_cast<std::size_t>(indice)];
}

template <class Conversione>
QString perOgniVoce(const QString& elenco, Conversione conversione) {
    if (elenco.isEmpty()) return {};
    QStringList voci = elenco.split(SEPARATORE);
    for (QString& voce : voci)
        voce = conversione(voce);
    return voci.join(SEPARATORE);
}

int indiceDaTesto(const QString& testo) {
    bool numero = false;
    const int indice = testo.toInt(&numero);
    return numero ? indice : -1;
}

} // namespace

QString DenteDaIndice(int indice) {
    if (!esiste(indice)) return {};
    const Dente& trovato = dente(indice);
    return QStringLiteral("%1.%2").arg(int{trovato.quadrante}).arg(int{trovato.posizione});
}

QString DentiDaIndici(const QString& indici) {
    return perOgniVoce(indici, [](const QString& voce) { return DenteDaIndice(indiceDaTesto(voce)); });
}

qint16 IndiceDaDente(const QString& testo) {
    if (testo.size() != 3 || testo[1] != u'.') return -1;
    for (int indice = 0; indice < NUMERO_DENTI; ++indice) {
        const Dente& candidato = dente(indice);
        if (testo[0] == QChar(u'0' + candidato.quadrante) && testo[2] == QChar(u'0' + candidato.posizione))
            return static_cast<qint16>(indice);
    }
    return -1;
}

QString IndiciDaDenti(const QString& denti) {
    return perOgniVoce(denti, [](const QString& voce) { return QString::number(IndiceDaDente(voce)); });
}

bool DenteSuperiore(int indice) {
    return (indice >= 0 && indice < 16) || (indice >= 32 && indice < 42);
}

bool DenteDeciduo(int indice) {
    return indice >= 32 && indice < NUMERO_DENTI;
}

int QuadranteDente(int indice) {
    return esiste(indice) ? dente(indice).quadrante : 0;
}

int PosizioneDente(int indice) {
    return esiste(indice) ? dente(indice).posizione : 0;
}
