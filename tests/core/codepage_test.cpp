#include "core/files/codepage.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

TEST(CodePage, GivesEveryByteBackAndAQuestionMarkForEachCharacterItLacks)
{
    QByteArray todos;
    for (int byte = 0; byte < 256; ++byte) {
        todos.append(static_cast<char>(byte));
    }
    EXPECT_EQ(ParaCodePage(DeCodePage(todos)), todos);
    EXPECT_EQ(ParaCodePage(u"Ação €“—Ÿ ж日😀b"_s), "A\xE7\xE3o \x80\x93\x97\x9F ???b");
    EXPECT_EQ(ParaCodePage(u"😀"_s.first(1)), "?") << "half a character";
    EXPECT_FALSE(CabeNoCodePage(u"ж"_s));
    EXPECT_TRUE(CabeNoCodePage(u"É€"_s));
}
