#include "platform/Files.h"
#include "store/clsAES.h"
#include "support/Text.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

TEST(ClsAes, EncodesSingleBytesInBase64) {
    const struct {
        const char* text;
        const char* encoded;
        const char* back;
    } cases[] = {
        {"", "", ""},
        {"f", "Zg==", "f"},
        {"fo", "Zm8=", "fo"},
        {"foo", "Zm9v", "foo"},
        {"perché", "cGVyY2jp", "perché"}, // One byte for the accent, not the two of UTF-8.
        {"100 € – “ok”", "MTAwIIAgliCTb2uU", "100 € – “ok”"},
        {"dente ☺", "ZGVudGUgPw==", "dente ?"},
        {"🦷!", "PyE=", "?!"},
    };
    const clsAES aes;
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(aes.plbEncodeStrB64(u8(c.text)), u8(c.encoded));
        EXPECT_EQ(aes.plbDecodeStrB64(u8(c.encoded)), u8(c.back));
    }
    const QString longText(5000, QLatin1Char('x'));
    EXPECT_FALSE(aes.plbEncodeStrB64(longText).contains(QLatin1Char('\n')));
    EXPECT_EQ(aes.plbDecodeStrB64(aes.plbEncodeStrB64(longText)), longText);
}

TEST(ClsAes, SkipsWhatIsNotBase64) {
    const clsAES aes;
    EXPECT_EQ(aes.plbDecodeStrB64(u8("Zm\r\n9 v")), u8("foo"));
    EXPECT_EQ(aes.plbDecodeStrB64(u8("\"Zm9v€\"")), u8("foo"));
    EXPECT_EQ(aes.plbDecodeStrB64(u8("perché no?")).size(), 5); // Never encoded: bytes, no error.
    EXPECT_EQ(aes.plbDecodeStrB64(u8("!\"£%")), QString());
}

TEST(ClsAes, TextsOfAnyLengthSurviveTheCipher) {
    const clsAES aes;
    for (const qsizetype length : {0, 1, 27, 28, 29, 59, 60, 61, 4000}) {
        SCOPED_TRACE(length);
        const QString text(length, QChar(0x00E8));
        const QString coded = aes.EncryptStr(text);
        const qsizetype blocks = (4 + length + 31) / 32;
        EXPECT_EQ(QByteArray::fromBase64(coded.toLatin1()).size(), 32 * blocks);
        EXPECT_EQ(aes.DecryptStr(coded), text);
    }
    EXPECT_EQ(aes.EncryptStr(u8("uguale")), clsAES().EncryptStr(u8("uguale")));
    EXPECT_NE(aes.EncryptStr(u8("uguale")), aes.EncryptStr(u8("diverso")));
}

TEST(ClsAes, ForeignTextsDecryptToNothing) {
    const clsAES aes;
    EXPECT_EQ(aes.DecryptStr(QString()), QString());
    EXPECT_EQ(aes.DecryptStr(u8("Zm9v")), QString()); // Less than a block.
    const QByteArray noise(64, 'n');                  // The length in it goes beyond the buffer.
    EXPECT_EQ(aes.DecryptStr(QString::fromLatin1(noise.toBase64())), QString());
}

TEST(ClsAes, FilesAreEncryptedWholeAndNeverReplacedUnasked) {
    const QTemporaryDir folder;
    const QString plain = folder.filePath(u8("lastra.bin"));
    const QString coded = folder.filePath(u8("lastra.aes"));
    const QString back = folder.filePath(u8("ritorno.bin"));
    const QByteArray content = QByteArray::fromHex("00ff80200a0d00") + QByteArray(70, '\x9d');
    ASSERT_TRUE(platform::files::writeAtomically(plain, content));

    const clsAES aes;
    EXPECT_FALSE(aes.EncryptFile(folder.filePath(u8("manca")), coded, true));
    EXPECT_FALSE(platform::files::exists(coded));
    ASSERT_TRUE(aes.EncryptFile(plain, coded, false));
    EXPECT_EQ(platform::files::read(coded)->size(), 96);
    EXPECT_FALSE(platform::files::read(coded)->contains(content.right(40)));
    ASSERT_TRUE(aes.DecryptFile(coded, back, false));
    EXPECT_EQ(*platform::files::read(back), content);

    ASSERT_TRUE(platform::files::writeAtomically(back, "altro"));
    EXPECT_FALSE(aes.DecryptFile(coded, back, false));
    EXPECT_EQ(*platform::files::read(back), "altro");
    EXPECT_TRUE(aes.DecryptFile(coded, back, true));
    EXPECT_EQ(*platform::files::read(back), content);
}

TEST(ClsAes, ReadsThePartsOfAMimeText) {
    const clsAES aes;
    const QString mail = u8("Subject: prova\r\nContent-Type: multipart/mixed; boundary=\"=_x\"\r\n\r\nTesta\r\n"
                            "--=_x\r\nContent-Transfer-Encoding: base64\r\n\r\nY2lh\r\nbyA=\r\n"
                            "--=_x\r\nContent-Type: text/plain\r\n\r\nbW9uZG8=\r\n--=_x--\r\ncoda\r\n");
    EXPECT_EQ(aes.Base64DecoderStringMIME(mail), u8("ciao mondo"));
    EXPECT_EQ(aes.Base64DecoderStringMIME(u8("Zm9v")), u8("foo"));

    const QTemporaryDir folder;
    const QString path = folder.filePath(u8("posta.txt"));
    const QString sent = u8("BOUNDARY=b1\r\n--b1\r\n\r\n") + aes.EncryptStr(u8("città")) + u8("\r\n--b1--\r\n");
    ASSERT_TRUE(platform::files::writeAtomically(path, sent.toLatin1()));
    EXPECT_EQ(aes.DecryptFileStr(path), u8("città"));
    EXPECT_EQ(aes.DecryptFileStr(folder.filePath(u8("manca"))), QString());
}
