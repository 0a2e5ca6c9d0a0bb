#include "aids/pure/condition_text.h"

#include "search/pure/composite_text.h"

#include <gtest/gtest.h>

namespace
{

struct Case {
    const char16_t *word, *meaning, *example, *text;
};

QString T(const char16_t *text) { return QString::fromUtf16(text); }

} // namespace

TEST(ComposeSearchText, PutsWordMeaningAndExampleInARow)
{
    constexpr Case cases[] = {
        {u"ab", u"語", u"test", u"ab/T:語/E:test"},
        {u"ab", u"", u"", u"ab"},
        {u"ab", u"語", u"", u"ab/T:語"},
        {u"ab", u"", u"test", u"ab/E:test"},
        {u" ab ", u"　語　", u" a b ", u"ab/T:語/E:a b"},
        {u"ab", u" ", u"　", u"ab"},
        {u"", u"語", u"", u"/T:語"},
        {u"a/T:b", u"c", u"", u"a/T:b/T:c"},
    };
    for (const Case &c : cases)
        EXPECT_EQ(ComposeSearchText(T(c.word), T(c.meaning), T(c.example)), T(c.text));
}

TEST(ComposeSearchText, IsTakenApartAgain)
{
    constexpr Case cases[] = {
        {u"ab", u"語", u"test", u""},
        {u"a%b_", u"Meaning", u"Example", u""},
        {u"ab", u"", u"test", u""},
        {u"ab", u"", u"", u""},
    };
    for (const Case &c : cases) {
        const CompositeText parts = TakeApart(ComposeSearchText(T(c.word), T(c.meaning), T(c.example)));
        EXPECT_EQ(parts, (CompositeText{T(c.word), T(c.meaning), T(c.example), false}));
    }
}
