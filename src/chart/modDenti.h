#pragma once

#include <QString>
#include <QStringList>

/// The vocabulary of teeth. A tooth is written as quadrant, full stop, position ("1.8"); records hold its place in the
/// fixed order of the chart, windows show the tooth. Unknown teeth and places are answered, never an error.

inline constexpr int NUMERO_DENTI = 52;

QString DenteDaIndice(int indice);            ///< Empty outside 0 to 51.
QString DentiDaIndici(const QString& indici); ///< "0;9" gives "1.8;2.2"; an entry that is no tooth gives an empty one.
qint16 IndiceDaDente(const QString& dente);   ///< -1 for an empty or unknown tooth.
QString IndiciDaDenti(const QString& denti);  ///< "1.1;1.2" gives "7;6"; unknown teeth give -1.

/// The teeth of a selection as it stands in windows: "1.1" or "+1.1;1.2", unknown teeth included.
QStringList DentiDaSelezione(const QString& selezione);
/// The reverse: one tooth stands alone, several get the leading "+".
QString SelezioneDaDenti(const QStringList& denti);

/// The two fields of a stored row. One tooth: `dente` holds its index. Several: `dente` is "+" and `denti` the indexes.
/// An unknown tooth leaves both empty.
struct DentiMemorizzati {
    QString dente;
    QString denti;
};
DentiMemorizzati DentiDaMemorizzare(const QString& selezione);
QString SelezioneDaMemoria(const QString& dente, const QString& denti); ///< The selection as it stands in windows.

/// "Dente 1.1" or "Denti 1.1;1.2"; empty without teeth.
QString EtichettaDenti(const QString& selezione);

bool DenteSuperiore(int indice); ///< The tooth belongs to the upper arch.
bool DenteDeciduo(int indice);
/// Quadrant 1 to 8 and position 1 to 8 from the middle of the mouth; 0 outside 0 to 51.
int QuadranteDente(int indice);
int PosizioneDente(int indice);
