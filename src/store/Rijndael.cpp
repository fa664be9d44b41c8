#include "store/Rijndael.h"

#include <algorithm>
#include <stdexcept>

namespace {

using std::size_t;
using std::uint8_t;

constexpr size_t ROWS = 4;
constexpr size_t MAX_COLUMNS = 8;
constexpr unsigned REDUCTION = 0x11B; ///< x^8 + x^4 + x^3 + x + 1.

/// Product in the field of 256 elements.
constexpr uint8_t multiply(uint8_t left, uint8_t right) {
    unsigned product = 0;
    for (unsigned a = left, b = right; b != 0; b >>= 1) {
        if (b & 1U) product ^= a;
        a <<= 1;
        if (a & 0x100U) a ^= REDUCTION;
    }
    return static_cast<uint8_t>(product);
}

constexpr uint8_t rotateLeft(uint8_t value, unsigned bits) {
    return static_cast<uint8_t>((value << bits) | (value >> (8 - bits)));
}

struct Boxes {
    std::array<uint8_t, 256> forward{};
    std::array<uint8_t, 256> back{};
};

/// The substitution: the inverse in the field, walked through by the generator 3 and its inverse 0xF6, then the affine
/// map.
constexpr Boxes makeBoxes() {
    Boxes boxes;
    uint8_t element = 1;
    uint8_t inverse = 1;
    do {
        element = multiply(element, 3);
        inverse = multiply(inverse, 0xF6);
        const auto mapped = static_cast<uint8_t>(inverse ^ rotateLeft(inverse, 1) ^ rotateLeft(inverse, 2) ^
                                                 rotateLeft(inverse, 3) ^ rotateLeft(inverse, 4) ^ 0x63);
        boxes.forward[element] = mapped;
        boxes.back[mapped] = element;
    } while (element != 1);
    boxes.forward[0] = 0x63; // Zero has no inverse and is mapped as itself.
    boxes.back[0x63] = 0;
    return boxes;
}

constexpr Boxes BOXES = makeBoxes();

/// How far each row moves: wide blocks shift their last two rows one further.
constexpr std::array<size_t, ROWS> rowOffsets(size_t columns) {
    return columns == MAX_COLUMNS ? std::array<size_t, ROWS>{0, 1, 3, 4} : std::array<size_t, ROWS>{0, 1, 2, 3};
}

void substitute(uint8_t* block, size_t bytes, const std::array<uint8_t, 256>& box) {
    std::transform(block, block + bytes, block, [&box](uint8_t byte) { return box[byte]; });
}

/// Multiplies each column by the polynomial whose coefficients are given from the constant term up.
void mixColumns(uint8_t* block, size_t columns, const std::array<uint8_t, ROWS>& factors) {
    for (uint8_t* column = block; column != block + ROWS * columns; column += ROWS) {
        std::array<uint8_t, ROWS> mixed{};
        for (size_t row = 0; row < ROWS; ++row) {
            for (size_t from = 0; from < ROWS; ++from)
                mixed[row] ^= multiply(factors[(row + ROWS - from) % ROWS], column[from]);
        }
        std::copy(mixed.begin(), mixed.end(), column);
    }
}

constexpr std::array<uint8_t, ROWS> MIX = {2, 1, 1, 3};
constexpr std::array<uint8_t, ROWS> UNMIX = {0x0E, 0x09, 0x0D, 0x0B};

bool isSize(size_t words) {
    return words == 4 || words == 6 || words == 8;
}

} // namespace

Rijndael::Rijndael(QByteArrayView key, int blockWords)
    : columns_(static_cast<size_t>(blockWords)) {
    if (!isSize(columns_) || key.size() % 4 != 0 || !isSize(static_cast<size_t>(key.size()) / 4))
        throw std::invalid_argument("Rijndael: chiave o blocco di misura errata");
    expandKey(key);
}

void Rijndael::expandKey(QByteArrayView key) {
    const size_t keyWords = static_cast<size_t>(key.size()) / 4;
    rounds_ = std::max(columns_, keyWords) + 6;
    schedule_.resize(columns_ * (rounds_ + 1));
    for (size_t i = 0; i < 4 * keyWords; ++i)
        schedule_[i / 4][i % 4] = static_cast<uint8_t>(key[static_cast<qsizetype>(i)]);

    uint8_t constant = 1;
    for (size_t i = keyWords; i < schedule_.size(); ++i) {
        Word word = schedule_[i - 1];
        const bool first = i % keyWords == 0;
        if (first) std::rotate(word.begin(), word.begin() + 1, word.end());
        if (first || (keyWords > 6 && i % keyWords == 4)) substitute(word.data(), word.size(), BOXES.forward);
        if (first) {
            word[0] ^= constant;
            constant = multiply(constant, 2);
        }
        for (size_t row = 0; row < ROWS; ++row)
            schedule_[i][row] = schedule_[i - keyWords][row] ^ word[row];
    }
}

void Rijndael::addRoundKey(uint8_t* block, size_t round) const {
    for (size_t i = 0; i < blockBytes(); ++i)
        block[i] ^= schedule_[round * columns_ + i / ROWS][i % ROWS];
}

void Rijndael::shiftRows(uint8_t* block, bool back) const {
    const auto offsets = rowOffsets(columns_);
    std::array<uint8_t, MAX_COLUMNS> moved{};
    for (size_t row = 1; row < ROWS; ++row) {
        const size_t offset = back ? columns_ - offsets[row] : offsets[row];
        for (size_t column = 0; column < columns_; ++column)
            moved[column] = block[ROWS * ((column + offset) % columns_) + row];
        for (size_t column = 0; column < columns_; ++column)
            block[ROWS * column + row] = moved[column];
    }
}

void Rijndael::encryptBlock(uint8_t* block) const {
    addRoundKey(block, 0);
    for (size_t round = 1; round <= rounds_; ++round) {
        substitute(block, blockBytes(), BOXES.forward);
        shiftRows(block, false);
        if (round < rounds_) mixColumns(block, columns_, MIX);
        addRoundKey(block, round);
    }
}

void Rijndael::decryptBlock(uint8_t* block) const {
    for (size_t round = rounds_; round > 0; --round) {
        addRoundKey(block, round);
        if (round < rounds_) mixColumns(block, columns_, UNMIX);
        shiftRows(block, true);
        substitute(block, blockBytes(), BOXES.back);
    }
    addRoundKey(block, 0);
}
