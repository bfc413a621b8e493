#include "core/files/codepage.h"

#include <gtest/gtest.h>

TEST(CodePage, GivesEveryByteBack)
{
    QByteArray todos;
    for (int byte = 0; byte < 256; ++byte) {
        todos.append(static_cast<char>(byte));
    }
    EXPECT_EQ(ParaCodePage(DeCodePage(todos)), todos);
}

TEST(CodePage, KnowsTheLettersOfTheLanguageAndOfTheMiddleRows)
{
    EXPECT_EQ(ParaCodePage(QStringLiteral("Ação à João")), QByteArray("A\xE7\xE3o \xE0 Jo\xE3o"));
    EXPECT_EQ(ParaCodePage(QStringLiteral("€“—Ÿ")), QByteArray("\x80\x93\x97\x9F"));
}

TEST(CodePage, WritesOneQuestionMarkForEachCharacterItLacks)
{
    EXPECT_EQ(ParaCodePage(QStringLiteral("a€ж日😀b")), QByteArray("a\x80???b"));
    EXPECT_FALSE(CabeNoCodePage(QStringLiteral("ж")));
    EXPECT_TRUE(CabeNoCodePage(QStringLiteral("É")));
}
