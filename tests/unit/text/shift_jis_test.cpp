#include "platform/text/shift_jis.h"

#include <QByteArray>
#include <gtest/gtest.h>
#include <random>
#include <thread>

using namespace Qt::StringLiterals;

namespace
{

QByteArray Bytes(std::initializer_list<int> values)
{
    QByteArray bytes;
    for (const int value : values)
        bytes.append(static_cast<char>(value));
    return bytes;
}

TEST(ShiftJis, DecodesAsciiKanaAndKanji)
{
    EXPECT_EQ(text::Decode("abc\\~\r\n"), u"abc\\~\r\n"_s);
    EXPECT_EQ(text::Decode(Bytes({0x8E, 0xAB, 0x8F, 0x91})), u"辞書"_s);
    EXPECT_EQ(text::Decode(Bytes({0xB6, 0xDE})), u"ｶﾞ"_s);
    EXPECT_EQ(text::Decode(Bytes({0x95, 0x5C, 'x'})), u"表x"_s) << "a trail byte that is a backslash";
    EXPECT_EQ(text::Decode(Bytes({0x87, 0x40, 0xFA, 0x40})), u"①ⅰ"_s);
    EXPECT_EQ(text::Decode(Bytes({0x1A, 0x1C, 0x7F, 0})), QString(u"\u001A\u001C\u007F\0"_s));
    EXPECT_EQ(text::Decode(Bytes({0x81, 0x60, 0x81, 0x7C, 0x81, 0x61, 0x81, 0x5C})), u"～－∥―"_s);
    EXPECT_EQ(text::Decode(""), QString());
}

TEST(ShiftJis, ReplacesEachUndecodableByteAndGoesOn)
{
    EXPECT_EQ(text::Decode(Bytes({'a', 0x80, 0xA0, 0xFD, 0xFE, 0xFF, 'b'})), u"a・・・・・b"_s);
    EXPECT_EQ(text::Decode(Bytes({'a', 0x82})), u"a・"_s) << "a lone lead byte at the end";
    EXPECT_EQ(text::Decode(Bytes({0x82, '\r', '\n'})), u"・\r\n"_s) << "a bad trail byte stays";
    EXPECT_EQ(text::Decode(Bytes({0x82, 0x82, 0xA0})), u"ｂ・"_s) << "a bad byte behind a good code";
    EXPECT_EQ(text::Decode(Bytes({0x85, 'A'})), u"・A"_s) << "not assigned, the trail is ASCII";
    EXPECT_EQ(text::Decode(Bytes({0x85, 0x9F, 0x82, 0xA0})), u"・・あ"_s) << "not assigned, in step";
    EXPECT_EQ(text::Decode(Bytes({0x81, 0xFF, 'x'})), u"・・x"_s);
    EXPECT_EQ(text::Decode(Bytes({0x81, 0})), u"・\0"_s);
}

TEST(ShiftJis, EveryCodeDecodesToACharacterThatEncodesToIt)
{
    int characters = 0;
    int twins = 0;
    for (int code = 0; code < 0x10000; ++code) {
        const QByteArray bytes = code < 0x100 ? Bytes({code}) : Bytes({code >> 8, code & 0xFF});
        const QString decoded = text::Decode(bytes);
        if (decoded.size() != 1 || (decoded == u"・"_s && code != 0x8145))
            continue;
        ++characters;
        const QByteArray back = text::EncodeRecord(decoded);
        ASSERT_EQ(text::Decode(back), decoded) << code;
        ASSERT_EQ(text::EncodePlain(decoded), back) << code;
        const int known = text::CodeOf(decoded[0].unicode());
        ASSERT_EQ(known, back.size() == 1 ? uchar(back[0]) : uchar(back[0]) * 0x100 + uchar(back[1]));
        twins += known != code;
    }
    EXPECT_EQ(twins, 398);
    EXPECT_GT(characters, 9000);
}

TEST(ShiftJis, TakesBestFitsInPagesAndPlainText)
{
    const QString fits = u"\u301C\u2212\u2016\u2014¢£¬¥"_s;
    const QByteArray codes =
        Bytes({0x81, 0x60, 0x81, 0x7C, 0x81, 0x61, 0x81, 0x5C, 0x81, 0x91, 0x81, 0x92, 0x81, 0xCA, 0x5C});
    EXPECT_EQ(text::EncodePage(fits), codes);
    EXPECT_EQ(text::EncodePlain(fits), codes);
    EXPECT_EQ(text::EncodeRecord(fits), "&#x301C;&#x2212;&#x2016;&#x2014;&#xA2;&#xA3;&#xAC;&#xA5;");
    EXPECT_EQ(text::DecodeRecord(text::EncodeRecord(fits)), fits);
}

TEST(ShiftJis, WritesWhatIsLackingAsReferences)
{
    const QString lacking = u"é\U0001F600"_s;
    EXPECT_EQ(text::EncodePage(lacking), "&#233;&#128512;");
    EXPECT_EQ(text::EncodeRecord(lacking), "&#xE9;&#x1F600;");
    EXPECT_EQ(text::EncodePlain(lacking), "??");
    EXPECT_EQ(text::EncodePage(QStringView(u"\U0001F600").first(1)), "&#65533;");
    EXPECT_EQ(text::EncodePage(u"a&b &#233; <"), "a&b &#233; <") << "markup is not touched";
}

TEST(ShiftJis, CodeOfKnowsWhatTheCodePageHas)
{
    EXPECT_EQ(text::CodeOf(u'A'), 0x41);
    EXPECT_EQ(text::CodeOf(u'\0'), 0);
    EXPECT_EQ(text::CodeOf(u'ｱ'), 0xB1);
    EXPECT_EQ(text::CodeOf(u'あ'), 0x82A0);
    EXPECT_EQ(text::CodeOf(u'〜'), 0x8160);
    EXPECT_EQ(text::CodeOf(u'¥'), 0x5C);
    EXPECT_EQ(text::CodeOf(u'é'), -1);
    EXPECT_EQ(text::CodeOf(0xD83D), -1);
    EXPECT_EQ(text::CodeOf(0xFFFF), -1);
    EXPECT_EQ(text::CodeOf(0xFFFE), -1);
}

TEST(RecordText, EscapesWhatWouldReadAsAReference)
{
    EXPECT_EQ(text::EncodeRecord(u"&#x41;"), "&#x26;#x41;");
    EXPECT_EQ(text::EncodeRecord(u"&#x26;"), "&#x26;#x26;");
    EXPECT_EQ(text::EncodeRecord(u"&#xD800;"), "&#x26;#xD800;");
    EXPECT_EQ(text::EncodeRecord(u"a & b &amp; &#233; &#x; &#xG; &#x110000; &#x41"),
              "a & b &amp; &#233; &#x; &#xG; &#x110000; &#x41");
    EXPECT_EQ(text::DecodeRecord("&#x41;"), u"A"_s);
    EXPECT_EQ(text::DecodeRecord("&#x26;#x41;"), u"&#x41;"_s);
    EXPECT_EQ(text::DecodeRecord("&#x110000;&#x0000041;&#xe9;"), u"&#x110000;&#x0000041;&#xe9;"_s);
    EXPECT_EQ(text::DecodeRecord("x&#x1F600;y&"), u"x\U0001F600y&"_s);
    EXPECT_EQ(text::DecodeRecord(Bytes({'&', 0x82})), u"&・"_s);
}

TEST(RecordText, GivesBackExactlyWhatWasWritten)
{
    constexpr char16_t kAlphabet[] = u"&&&&####xxxx;;;;0126AFaf漢ｶあé〜¥\\\u00A0\xD83D\xDE00\xDBFF\xFFFF";
    std::mt19937 random(5);
    for (int i = 0; i < 100000; ++i) {
        QString original;
        for (size_t length = random() % 14; length > 0; --length)
            original.append(QChar(kAlphabet[random() % std::size(kAlphabet)]));
        ASSERT_EQ(text::DecodeRecord(text::EncodeRecord(original)), original);
    }
    for (uint unit = 0; unit <= 0xFFFF; ++unit) {
        const QString original{QChar(unit)};
        ASSERT_EQ(text::DecodeRecord(text::EncodeRecord(original)), original) << unit;
    }
}

TEST(FixedField, IsCutOnABoundaryAndPadded)
{
    EXPECT_EQ(text::FixedField(u"ab", 4), "ab  ");
    EXPECT_EQ(text::FixedField(u"", 3), "   ");
    EXPECT_EQ(text::FixedField(u"abcd", 4), "abcd");
    EXPECT_EQ(text::FixedField(u"abcde", 4), "abcd");
    EXPECT_EQ(text::FixedField(u"aああ", 4), Bytes({'a', 0x82, 0xA0, ' '}));
    EXPECT_EQ(text::FixedField(u"aéb", 6), "a     ") << "a reference is not broken, nothing follows it";
    EXPECT_EQ(text::FixedField(u"aéb", 7), "a&#xE9;");
    EXPECT_EQ(text::FixedField(u"abc", 0), "");
}

TEST(FixedField, TellsWhetherItCuts)
{
    EXPECT_FALSE(text::FieldCuts(u"ああ", 4));
    EXPECT_TRUE(text::FieldCuts(u"ああa", 4));
    EXPECT_FALSE(text::FieldCuts(u"é", 6));
    EXPECT_TRUE(text::FieldCuts(u"é", 5));
    EXPECT_FALSE(text::FieldCuts(u"", 0));
}

TEST(ShiftJis, ServesSeveralThreadsAtOnce)
{
    const QString original = u"辞書 dictionary é"_s.repeated(200);
    QString results[4];
    std::thread threads[4];
    for (size_t i = 0; i < 4; ++i)
        threads[i] = std::thread([&, i] { results[i] = text::DecodeRecord(text::EncodeRecord(original)); });
    for (std::thread &thread : threads)
        thread.join();
    for (const QString &result : results)
        EXPECT_EQ(result, original);
}

} // namespace
