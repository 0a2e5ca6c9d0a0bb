#include "core/pure/search_modes.h"

#include <gtest/gtest.h>

TEST(SearchModeName, NamesEachMode)
{
    constexpr const char16_t *names[] = {u"インクリメンタル検索",
                                         u"前方一致検索",
                                         u"中間一致検索",
                                         u"後方一致検索",
                                         u"訳語項目中の文字列検索",
                                         u"用例項目中の文字列検索",
                                         u"ワイルドカード検索",
                                         u"",
                                         u""};
    for (std::uint8_t mode = 0; mode < std::size(names); ++mode)
        EXPECT_EQ(SearchModeName(mode), QString::fromUtf16(names[mode]));
}

TEST(SearchTargetName, NamesEachTarget)
{
    constexpr const char16_t *names[] = {u"単語と熟語の両方", u"単語のみ", u"熟語のみ", u""};
    for (std::uint8_t target = 0; target < std::size(names); ++target)
        EXPECT_EQ(SearchTargetName(target), QString::fromUtf16(names[target]));
}
