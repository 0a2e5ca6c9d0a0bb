#include "web/pure/favorite_record.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(FavoriteRecord, IsAFileOf383Bytes)
{
    EXPECT_EQ(EncodeFavorites({}), QByteArray());
    const QByteArray content = EncodeFavorites({{u"語 site"_s, u"http://a.example/"_s}, {u"b"_s, QString()}});
    ASSERT_EQ(content.size(), 2 * 383);
    EXPECT_EQ(content.first(128), QByteArray("\x8c\xea site").leftJustified(128, ' '));
    EXPECT_EQ(content.sliced(128, 255), QByteArray("http://a.example/").leftJustified(255, ' '));
    EXPECT_EQ(content.sliced(383, 128), QByteArray("b").leftJustified(128, ' '));
    EXPECT_EQ(content.last(255), QByteArray(255, ' '));
}

TEST(FavoriteRecord, ComesBackAsItWasWritten)
{
    const Favorite cases[] = {
        {QString(128, u'n'), QString(255, u'a')},
        {QString(64, u'名'), u"https://example.com/?q=%E8%AA%9E&x=1"_s},
        {u"é & &#x41; 😀"_s, u"http://例え.example/"_s},
        {QString(), QString()},
    };
    for (const Favorite &favorite : cases)
        EXPECT_EQ(DecodeFavorite(EncodeFavorites({favorite})), favorite) << qPrintable(favorite.name);
}

TEST(FavoriteRecord, CutsOnACharacter)
{
    struct Case {
        Favorite given, kept;
    };
    const Case cases[] = {
        {{QString(129, u'n'), QString(256, u'a')}, {QString(128, u'n'), QString(255, u'a')}},
        {{QString(65, u'名'), QString(128, u'場')}, {QString(64, u'名'), QString(127, u'場')}},
        {{u"x"_s + QString(64, u'名'), QString()}, {u"x"_s + QString(63, u'名'), QString()}},
    };
    for (const Case &each : cases)
        EXPECT_EQ(DecodeFavorite(EncodeFavorites({each.given})), each.kept);
}

TEST(FavoriteRecord, FieldsEndBehindTheirLastCharacter)
{
    struct Case {
        QByteArray name;
        const char16_t *read;
    };
    const Case cases[] = {
        {QByteArray("dic").leftJustified(128, '\0'), u"dic"},
        {QByteArray("dic \0 \x81\x40", 8).leftJustified(128, ' '), u"dic"},
        {QByteArray("  \x81\x40 dic").leftJustified(128, ' '), u"dic"},
        {QByteArray(128, '\0'), u""},
        {QByteArray(128, ' '), u""},
        {QByteArray(128, 'x'), u"xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx"
                               u"xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx"},
    };
    for (const Case &each : cases) {
        const Favorite read = DecodeFavorite(each.name + QByteArray(255, '\0'));
        EXPECT_EQ(read.name, QString::fromUtf16(each.read)) << each.name.toStdString();
        EXPECT_EQ(read.address, QString());
    }
}
