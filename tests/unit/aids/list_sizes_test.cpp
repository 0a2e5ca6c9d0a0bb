#include "aids/pure/list_sizes.h"

#include "platform/failure/runtime_error.h"

#include <gtest/gtest.h>

namespace
{

QString T(const char16_t *text) { return QString::fromUtf16(text); }

constexpr const char16_t *kListTitle = u"見出し語リスト件数設定エラー";
constexpr const char16_t *kEntryTitle = u"見出し語内容の表示件数設定エラー";

/// The default texts with one field changed after the other.
SizeTexts With(std::initializer_list<std::pair<SizeField, const char16_t *>> changes)
{
    SizeTexts texts = TextsOf(ListSettings{});
    for (const auto &[field, text] : changes)
        switch (field) {
        case SizeField::Text1: texts.Text1 = T(text); break;
        case SizeField::Combo1: texts.Combo1 = T(text); break;
        case SizeField::Text4: texts.Text4 = T(text); break;
        case SizeField::Text2: texts.Text2 = T(text); break;
        case SizeField::Combo2: texts.Combo2 = T(text); break;
        case SizeField::Text3: texts.Text3 = T(text); break;
        }
    return texts;
}

int FailureOf(const std::function<void()> &action)
{
    try {
        action();
    } catch (const RuntimeError &failure) {
        return failure.number();
    }
    return 0;
}

using enum SizeField;

} // namespace

TEST(FirstSizeFault, TellsEachStep)
{
    struct Case {
        SizeTexts texts;
        const char16_t *message, *title;
        SizeField focus;
    };
    const Case cases[] = {
        {With({{Text1, u"10"}, {Combo1, u"15"}}),
         u"インクリメンタル検索時の「見出し語のリスト件数」は「見出し語内容の表示件数」と同じ、または大きい値"
         u"を設定"
         u"してください。",
         kListTitle, Text1},
        {With({{Text4, u"10"}, {Combo2, u"15"}}),
         u"条件検索時の「見出し語のリスト件数」は「見出し語内容の表示件数」と同じ、または大きい値を設定してく"
         u"ださい"
         u"。",
         kListTitle, Text4},
        {With({{Text1, u"301"}}), u"インクリメンタル検索時の「見出し語のリスト件数」は最大300件です。",
         kListTitle, Text1},
        {With({{Text4, u"301"}}), u"条件検索時の「見出し語のリスト件数」は最大300件です。", kListTitle,
         Text4},
        {With({{Combo1, u"31"}}), u"インクリメンタル検索時の「見出し語内容の表示件数」は最大30件です。",
         kEntryTitle, Combo1},
        {With({{Text2, u"30001"}}), u"条件検索時の「見出し語の最大リスト件数」は最大30000件です。",
         kListTitle, Text2},
        {With({{Text2, u"99999"}}), u"条件検索時の「見出し語の最大リスト件数」は最大30000件です。",
         kListTitle, Text2},
        {With({{Combo2, u"31"}}), u"条件検索時の「見出し語内容の表示件数」は最大30件です。", kEntryTitle,
         Combo2},
        {With({{Text3, u"1001"}}), u"マイ ワードブックの「最大登録・表示数」は最大1000件です。",
         u"マイ ワードブックの登録・表示設定エラー", Text3},
    };
    for (const Case &c : cases) {
        const std::optional<SizeFault> fault = FirstSizeFault(c.texts);
        ASSERT_TRUE(fault) << T(c.message).toStdString();
        EXPECT_EQ(fault->message, T(c.message));
        EXPECT_EQ(fault->title, T(c.title));
        EXPECT_EQ(fault->focus, c.focus);
    }
}

TEST(FirstSizeFault, EndsAtTheFirstOfSeveral)
{
    // Each row breaks the step of its own number and all steps behind it that it can break.
    const std::pair<SizeTexts, SizeField> cases[] = {
        {With({{Text1, u"1"},
               {Combo1, u"31"},
               {Text4, u"1"},
               {Combo2, u"31"},
               {Text2, u"99999"},
               {Text3, u"9999"}}),
         Text1},
        {With({{Text1, u"999"},
               {Combo1, u"31"},
               {Text4, u"1"},
               {Combo2, u"31"},
               {Text2, u"99999"},
               {Text3, u"9999"}}),
         Text4},
        {With({{Text1, u"999"}, {Combo1, u"31"}, {Text4, u"999"}, {Combo2, u"31"}, {Text2, u"99999"}}),
         Text1},
        {With({{Combo1, u"31"}, {Text4, u"999"}, {Combo2, u"31"}, {Text2, u"99999"}, {Text3, u"9999"}}),
         Text4},
        {With({{Combo1, u"31"}, {Combo2, u"31"}, {Text2, u"99999"}, {Text3, u"9999"}}), Combo1},
        {With({{Combo2, u"31"}, {Text2, u"99999"}, {Text3, u"9999"}}), Text2},
        {With({{Combo2, u"31"}, {Text3, u"9999"}}), Combo2},
    };
    for (const auto &[texts, focus] : cases) {
        const std::optional<SizeFault> fault = FirstSizeFault(texts);
        ASSERT_TRUE(fault);
        EXPECT_EQ(fault->focus, focus);
    }
}

TEST(FirstSizeFault, PassesTheLimitsThemselves)
{
    const SizeTexts passing[] = {
        TextsOf(ListSettings{}),
        With({{Text1, u"300"},
              {Combo1, u"30"},
              {Text4, u"300"},
              {Combo2, u"30"},
              {Text2, u"30000"},
              {Text3, u"1000"}}),
        With({{Text1, u"15"}, {Text4, u"15"}}),
        With({{Text1, u"0"}, {Combo1, u"0"}, {Text4, u"0"}, {Combo2, u"0"}, {Text2, u"0"}, {Text3, u"0"}}),
        With({{Text1, u"050"}, {Combo1, u"0030"}}),
    };
    for (const SizeTexts &texts : passing)
        EXPECT_FALSE(FirstSizeFault(texts)) << texts.Text1.toStdString();
}

TEST(FirstSizeFault, FailsOnNoNumberWhereItComesToIt)
{
    for (const SizeField field : {Text1, Combo1, Text4, Text2, Combo2, Text3})
        for (const char16_t *text : {u"", u" ", u"x", u"1x"})
            EXPECT_EQ(FailureOf([&] {
                          (void)FirstSizeFault(With({{field, text}}));
                      }),
                      13)
                << static_cast<int>(field) << T(text).toStdString();
    for (const SizeField field : {Text1, Combo1, Text4, Combo2, Text3})
        for (const char16_t *text : {u"32768", u"99999999999999999999999"})
            EXPECT_EQ(FailureOf([&] {
                          (void)FirstSizeFault(With({{field, text}}));
                      }),
                      6)
                << static_cast<int>(field);
    EXPECT_EQ(FailureOf([] { (void)FirstSizeFault(With({{Text2, u"2147483648"}})); }), 6);
    // A step that fails comes before an empty field that a later step reads.
    EXPECT_EQ(FirstSizeFault(With({{Text1, u"1"}, {Text3, u""}}))->focus, Text1);
}

TEST(SizesOf, ReadsTheFields)
{
    SizeTexts texts{T(u"120"), T(u"7"), T(u"88"), T(u"30000"), T(u"30"), T(u"1000"), 2};
    EXPECT_EQ(SizesOf(texts), (ListSettings{120, 7, 88, 30000, 30, 1000, 2}));
    EXPECT_EQ(ListLine(SizesOf(texts)), T(u"12007088300003010002"));
    EXPECT_EQ(SizesOf(TextsOf(ListSettings{})), ListSettings{});
    for (const char16_t *tooGreat : {u"32768", u"40000", u"99999"})
        EXPECT_EQ(FailureOf([&] { (void)SizesOf(With({{Text2, tooGreat}})); }), 6);
    EXPECT_EQ(SizesOf(With({{Text2, u"32767"}})).MaxListCount, 32767);
    EXPECT_EQ(FailureOf([] { (void)SizesOf(With({{Text3, u""}})); }), 13);
}

TEST(FilteredKey, PassesDigitsAlone)
{
    for (char16_t digit = u'0'; digit <= u'9'; ++digit) {
        EXPECT_EQ(FilteredKey(digit), QChar(digit));
        EXPECT_EQ(FilteredKey(QChar(static_cast<char16_t>(digit - u'0' + u'０'))), QChar(digit));
    }
    for (const char16_t other : u"/:aAzZ -+.,%　／：一二〇①٣५")
        EXPECT_EQ(FilteredKey(other), std::nullopt) << int{other};
}

TEST(FilteredText, TakesTextsOfDigits)
{
    struct Case {
        const char16_t *text, *digits;
    };
    constexpr Case cases[] = {{u"", u""},        {u"12", u"12"},       {u"１２", u"12"}, {u"1２3", u"123"},
                              {u" 50\n", u"50"}, {u"　５０　", u"50"}, {u"1a", nullptr}, {u"-1", nullptr},
                              {u"1 2", nullptr}, {u"五", nullptr}};
    for (const Case &c : cases)
        EXPECT_EQ(FilteredText(T(c.text)), c.digits ? std::optional(T(c.digits)) : std::nullopt)
            << T(c.text).toStdString();
}
