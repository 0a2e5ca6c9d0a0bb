#include "platform/text/one_line.h"

#include <gtest/gtest.h>

TEST(OneLine, JoinsLinesByABlank)
{
    struct Case {
        const char16_t *text, *line;
    };
    constexpr Case cases[] = {
        {u"", u""},
        {u"cat", u"cat"},
        {u" cat \t", u" cat \t"},
        {u"cat\r\n", u"cat"},
        {u"\n\r\ncat", u"cat"},
        {u"cat\nnap", u"cat nap"},
        {u"cat\r\rnap\n\ntime", u"cat nap time"},
        {u"\r\n", u""},
    };
    for (const Case &each : cases)
        EXPECT_EQ(text::OneLine(QString::fromUtf16(each.text)), QString::fromUtf16(each.line));
}
