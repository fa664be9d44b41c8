#include "platform/SingleByteText.h"

#include <gtest/gtest.h>

using platform::fromSingleByte;
using platform::toSingleByte;

TEST(SingleByteText, EveryByteSurvivesTheWayThereAndBack) {
    QByteArray all;
    for (int byte = 0; byte < 256; ++byte)
        all.append(static_cast<char>(byte));
    const QString text = fromSingleByte(all);
    EXPECT_EQ(text.size(), 256);
    EXPECT_EQ(toSingleByte(text), all);
}

TEST(SingleByteText, SpecialCharactersHaveTheBytesOfWindows1252) {
    const QString text = QString::fromUtf8("€‚ƒ„…†‡ˆ‰Š‹ŒŽ‘’“”•–—˜™š›œžŸ");
    EXPECT_EQ(toSingleByte(text).toHex().toStdString(), "8082838485868788898a8b8c8e9192939495969798999a9b9c9e9f");
    EXPECT_EQ(toSingleByte(QString::fromUtf8("àèìòù°")).toHex().toStdString(), "e0e8ecf2f9b0");
}

TEST(SingleByteText, WhatHasNoByteIsOneQuestionMark) {
    EXPECT_EQ(toSingleByte(QString::fromUtf8("a☺b")), "a?b");
    EXPECT_EQ(toSingleByte(QString::fromUtf8("a🦷b")), "a?b");
    EXPECT_EQ(toSingleByte(QString(QChar(0x80))), "?"); // The code point, whose byte is the euro's.
    const QChar torn[] = {QChar(0xD83E), QLatin1Char('x'), QChar(0xDDB7)};
    EXPECT_EQ(toSingleByte(QString(torn, 3)), "?x?");
    EXPECT_EQ(toSingleByte(QString()), "");
}
