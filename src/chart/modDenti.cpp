#include "chart/modDenti.h"

#include <QStringList>
#include <array>

namespace {

struct Tooth {
    char quadrant;
    char position;
};

// In the order of the chart, which is the order of the numbers in every record: it must never change.
constexpr std::array<Tooth, TOOTH_COUNT> TEETH{{
    {1, 8}, {1, 7}, {1, 6}, {1, 5}, {1, 4}, {1, 3}, {1, 2}, {1, 1}, {2, 1}, {2, 2}, {2, 3}, {2, 4}, {2, 5},
    {2, 6}, {2, 7}, {2, 8}, {3, 8}, {3, 7}, {3, 6}, {3, 5}, {3, 4}, {3, 3}, {3, 2}, {3, 1}, {4, 1}, {4, 2},
    {4, 3}, {4, 4}, {4, 5}, {4, 6}, {4, 7}, {4, 8}, {5, 5}, {5, 4}, {5, 3}, {5, 2}, {5, 1}, {6, 1}, {6, 2},
    {6, 3}, {6, 4}, {6, 5}, {7, 5}, {7, 4}, {7, 3}, {7, 2}, {7, 1}, {8, 1}, {8, 2}, {8, 3}, {8, 4}, {8, 5},
}};

constexpr QChar SEPARATOR = u';';

/// The places of the teeth by quadrant and position; -1 where there is none.
constexpr auto PLACES = [] {
    std::array<std::array<qint16, 10>, 10> places{};
    for (auto& quadrant : places)
        quadrant.fill(-1);
    for (std::size_t index = 0; index < TEETH.size(); ++index)
        places[static_cast<std::size_t>(TEETH[index].quadrant)][static_cast<std::size_t>(TEETH[index].position)] =
            static_cast<qint16>(index);
    return places;
}();

/// -1 for a character that is no digit.
int digit(QChar character) {
    return character >= u'0' && character <= u'9' ? character.unicode() - u'0' : -1;
}

bool exists(int index) {
    return index >= 0 && index < TOOTH_COUNT;
}

const Tooth& toothAt(int index) {
    return TEETH[static_cast<std::size_t>(index)];
}

template <class Conversion>
QString forEachEntry(const QString& list, Conversion conversion) {
    if (list.isEmpty()) return {};
    QStringList entries = list.split(SEPARATOR);
    for (QString& entry : entries)
        entry = conversion(entry);
    return entries.join(SEPARATOR);
}

int indexOfText(const QString& text) {
    bool isNumber = false;
    const int index = text.toInt(&isNumber);
    return isNumber ? index : -1;
}

} // namespace

QString DenteDaIndice(int index) {
    if (!exists(index)) return {};
    const Tooth& found = toothAt(index);
    return QStringLiteral("%1.%2").arg(int{found.quadrant}).arg(int{found.position});
}

QString DentiDaIndici(const QString& indices) {
    return forEachEntry(indices, [](const QString& entry) { return DenteDaIndice(indexOfText(entry)); });
}

qint16 IndiceDaDente(const QString& text) {
    if (text.size() != 3 || text[1] != u'.') return -1;
    const int quadrant = digit(text[0]);
    const int position = digit(text[2]);
    if (quadrant < 0 || position < 0) return -1;
    return PLACES[static_cast<std::size_t>(quadrant)][static_cast<std::size_t>(position)];
}

QString IndiciDaDenti(const QString& teeth) {
    return forEachEntry(teeth, [](const QString& entry) { return QString::number(IndiceDaDente(entry)); });
}

bool isUpper(int index) {
    return (index >= 0 && index < 16) || (index >= 32 && index < 42);
}

bool isDeciduous(int index) {
    return index >= 32 && index < TOOTH_COUNT;
}

int toothQuadrant(int index) {
    return exists(index) ? toothAt(index).quadrant : 0;
}

int toothPosition(int index) {
    return exists(index) ? toothAt(index).position : 0;
}
