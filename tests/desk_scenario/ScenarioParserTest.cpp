#include "desk/scenario/ScenarioParser.h"

#include <gtest/gtest.h>

TEST(ScenarioParser, SplitsWordsTextsAndComments) {
    const struct {
        const char* written;
        const char* words; // Divided by "|".
    } cases[] = {
        {"window frmProva", "window|frmProva"},
        {"  type\ttbDati(2)   \"due parole\"  # nota", "type|tbDati(2)|due parole"},
        {R"(type tbDati(2) "detto \"qui\"\nsotto \\ fine")", "type|tbDati(2)|detto \"qui\"\nsotto \\ fine"},
        {R"(file "C:\temp\x.txt")", R"(file|C:\temp\x.txt)"},
        {R"(popup "")", "popup|"},
        {"type tbDati(0) \"# non è una nota\"", "type|tbDati(0)|# non è una nota"},
        {"\xEF\xBB\xBFkey Escape\r", "key|Escape"},
    };
    for (const auto& [written, words] : cases) {
        SCOPED_TRACE(written);
        const desk::ParsedScenario parsed = desk::parseScenario(QString::fromUtf8(written));
        ASSERT_EQ(parsed.faultyLine, 0) << parsed.fault.toStdString();
        ASSERT_EQ(parsed.lines.size(), 1);
        const QStringList expected = QString::fromUtf8(words).split(QLatin1Char('|'));
        EXPECT_EQ(parsed.lines[0].command, expected.first());
        EXPECT_EQ(parsed.lines[0].arguments, expected.mid(1));
    }
}

TEST(ScenarioParser, CountsLinesAsTheEditorShowsThem) {
    const desk::ParsedScenario parsed = desk::parseScenario(QStringLiteral("# inizio\r\n\r\ndump\r\n\r\nkey F3"));
    ASSERT_EQ(parsed.lines.size(), 2);
    EXPECT_EQ(parsed.lines[0].number, 3);
    EXPECT_EQ(parsed.lines[1].number, 5);
}

TEST(ScenarioParser, RefusesTheWholeScriptForOneBadLine) {
    const struct {
        const char* line;
        const char* fault;
    } cases[] = {
        {"clik cbConferma", "comando sconosciuto «clik»; nomi vicini: click"},
        {"window", "si scrive: window NAME"},
        {"type tbDati(0) due parole", "si scrive: type CONTROL TEXT"},
        {"doubleclick rcRighi 2", "si scrive: doubleclick CONTROL [ROW COL]"},
        {"type tbDati(0) \"aperto", "virgolette"},
        {"set ckSempre yes", "«yes» non è ammesso: on|off"},
        {"click imDente left", "«left» non è ammesso: right"},
        {"click rcRighi 1 2 left", "«left» non è ammesso: right"},
        {"click rcRighi uno 2", "«uno» non è un numero"},
        {"click rcRighi 1 2 right 3", "si scrive: click CONTROL [ROW COL] [right]"},
        {"select rcRighi -1", "«-1» non è un numero"},
        {"edit rcRighi uno 2 x", "«uno» non è un numero"},
        {"date dtpData 31/02/2026", "«31/02/2026» non è una data"},
        {"clock ieri", "«ieri» non è un momento"},
    };
    for (const auto& [line, fault] : cases) {
        SCOPED_TRACE(line);
        const desk::ParsedScenario parsed = desk::parseScenario(QStringLiteral("dump\n") + QString::fromUtf8(line));
        EXPECT_EQ(parsed.faultyLine, 2);
        EXPECT_TRUE(parsed.lines.isEmpty());
        EXPECT_TRUE(parsed.fault.contains(QString::fromUtf8(fault))) << parsed.fault.toStdString();
    }
}
