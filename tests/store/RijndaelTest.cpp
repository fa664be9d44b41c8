#include "store/Rijndael.h"

#include <QByteArray>
#include <gtest/gtest.h>
#include <stdexcept>

namespace {

struct KnownAnswer {
    const char* name;
    int blockWords;
    const char* key;
    const char* plain;
    const char* cipher;
};

QByteArray encrypted(const Rijndael& cipher, QByteArray block) {
    cipher.encryptBlock(reinterpret_cast<std::uint8_t*>(block.data()));
    return block;
}

QByteArray decrypted(const Rijndael& cipher, QByteArray block) {
    cipher.decryptBlock(reinterpret_cast<std::uint8_t*>(block.data()));
    return block;
}

} // namespace

// The same code runs for all sizes; the answers of AES prove its boxes, key schedule and columns, the last one the wide
// block with its own row offsets.
TEST(Rijndael, GivesThePublishedAnswersAndTheWayBack) {
    const char* const sequence = "00112233445566778899aabbccddeeff";
    const char* const zeros = "0000000000000000000000000000000000000000000000000000000000000000";
    const KnownAnswer answers[] = {
        {"AES-128", 4, "000102030405060708090a0b0c0d0e0f", sequence, "69c4e0d86a7b0430d8cdb78070b4c55a"},
        {"AES-192", 4, "000102030405060708090a0b0c0d0e0f1011121314151617", sequence,
         "dda97ca4864cdfe06eaf70a0ec0d7191"},
        {"AES-256", 4, "000102030405060708090a0b0c0d0e0f101112131415161718191a1b1c1d1e1f", sequence,
         "8ea2b7ca516745bfeafc49904b496089"},
        {"block of 256, key of 256", 8, zeros, zeros,
         "c6227e7740b7e53b5cb77865278eab0726f62366d9aabad908936123a1fc8af3"},
    };
    for (const KnownAnswer& answer : answers) {
        SCOPED_TRACE(answer.name);
        const Rijndael cipher(QByteArray::fromHex(answer.key), answer.blockWords);
        const QByteArray plain = QByteArray::fromHex(answer.plain);
        const QByteArray coded = encrypted(cipher, plain);
        EXPECT_EQ(coded.toHex().toStdString(), answer.cipher);
        EXPECT_EQ(decrypted(cipher, coded), plain);
    }
}

TEST(Rijndael, RefusesSizesItDoesNotKnow) {
    EXPECT_THROW(Rijndael(QByteArray(20, 'k'), 8), std::invalid_argument);
    EXPECT_THROW(Rijndael(QByteArray(33, 'k'), 8), std::invalid_argument);
    EXPECT_THROW(Rijndael(QByteArray(32, 'k'), 5), std::invalid_argument);
}
