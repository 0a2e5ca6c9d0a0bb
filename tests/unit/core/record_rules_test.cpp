#include "core/pure/record_rules.h"

#include <QString>
#include <gtest/gtest.h>

TEST(WordPhraseRule, LooksForABlank)
{
    EXPECT_EQ(WordPhraseRule(u"ice cream"), kPhrase);
    EXPECT_EQ(WordPhraseRule(u"kick the bucket"), kPhrase);
    for (const QStringView word :
         {QStringView(u""), QStringView(u"apple"), QStringView(u"ice-cream"), QStringView(u"ice\u3000cream"),
          QStringView(u"ice\u00A0cream"), QStringView(u"ice\tcream"), QStringView(u"アイスクリーム")})
        EXPECT_EQ(WordPhraseRule(word), kWord) << word.toString().toStdString();
}
