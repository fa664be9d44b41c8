#pragma once

#include <QByteArrayView>
#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

/// The Rijndael block cipher with blocks and keys of 4, 6 or 8 words of 32 bits each, as published; blocks of 4 words
/// are AES. One key per object. For texts kept from curious eyes, not built against an attacker who measures time.
class Rijndael {
public:
    /// The key must have 16, 24 or 32 bytes and the block 4, 6 or 8 words; throws std::invalid_argument otherwise.
    Rijndael(QByteArrayView key, int blockWords);

    std::size_t blockBytes() const { return 4 * columns_; }
    void encryptBlock(std::uint8_t* block) const; ///< In place, `blockBytes` bytes.
    void decryptBlock(std::uint8_t* block) const;

private:
    using Word = std::array<std::uint8_t, 4>;

    void expandKey(QByteArrayView key);
    void addRoundKey(std::uint8_t* block, std::size_t round) const;
    void shiftRows(std::uint8_t* block, bool back) const;

    std::size_t columns_;
    std::size_t rounds_ = 0;
    std::vector<Word> schedule_;
};
