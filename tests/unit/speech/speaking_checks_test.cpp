#include "speech/pure/speaking_checks.h"

#include "speech/pure/character_choice.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace
{

TEST(IsNotEnglishText, RefusesCharactersOfTwoBytes)
{
    const struct {
        QString text;
        int refused;
    } rows[] = {
        {u""_s, 0},         {u"plain English, 100 %!\r\n\t"_s, 0},
        {u"ｱｲｳ half"_s, 0}, {u"café naïve"_s, 0},
        {u"語"_s, 1},       {u"English with a 　 wide blank"_s, 1},
        {u"Ａ"_s, 1},       {u"ending in あ"_s, 1},
        {u"“quoted”"_s, 1}, {u"熙 in the last rows of the page"_s, 1},
    };
    for (const auto &row : rows)
        EXPECT_EQ(IsNotEnglishText(row.text), row.refused) << qPrintable(row.text);
}

TEST(SpeakingObstacle, OfTypedTexts)
{
    EXPECT_EQ(TypedTextObstacle(u""_s, 1), SpeakingObstacle::NoText);
    EXPECT_EQ(TypedTextObstacle(u" 　 "_s, 1), SpeakingObstacle::NoText);
    EXPECT_EQ(TypedTextObstacle(u"語"_s, 0), SpeakingObstacle::NotEnglish);
    EXPECT_EQ(TypedTextObstacle(u"　owl　"_s, 1), SpeakingObstacle::None)
        << "blanks around it are not judged";
    EXPECT_EQ(TypedTextObstacle(u"owl"_s, 0), SpeakingObstacle::SpeechOff);
    EXPECT_EQ(TypedTextObstacle(u"owl"_s, 2), SpeakingObstacle::SpeechOff);
}

TEST(SpeakingObstacle, OfSelections)
{
    EXPECT_EQ(SelectionObstacle(u"  "_s, 1), SpeakingObstacle::NotSelected);
    EXPECT_EQ(SelectionObstacle(u"　owl"_s, 1), SpeakingObstacle::NotEnglish) << "a wide blank counts here";
    EXPECT_EQ(SelectionObstacle(u"owl"_s, 0), SpeakingObstacle::SpeechOff);
    EXPECT_EQ(SelectionObstacle(u"owl "_s, 1), SpeakingObstacle::None);
}

TEST(SpeakingNotice, HasATextForEachObstacle)
{
    const QString title = u"英文発音不可"_s;
    EXPECT_EQ(SpeakingNotice(SpeakingObstacle::None), std::nullopt);
    EXPECT_EQ(SpeakingNotice(SpeakingObstacle::NoText), (Notice{title, u"発音する英文がありません！"_s}));
    EXPECT_EQ(SpeakingNotice(SpeakingObstacle::NotSelected),
              (Notice{title, u"発音する文字が選択されていません！"_s}));
    EXPECT_EQ(SpeakingNotice(SpeakingObstacle::NotEnglish),
              (Notice{title, u"英文以外の文字(全角文字)が含まれています！"_s}));
    EXPECT_EQ(
        SpeakingNotice(SpeakingObstacle::SpeechOff),
        (Notice{title,
                u"「英文発音機能を使用しない」を選択、またはキャラクタ ファイルが未設定です！\r\n"
                "メニューバーから [ツール] ＞ [キャラクタの設定] を選択して設定をおこなってください。"_s}));
}

TEST(CharacterChoice, KnowsTheDefaultFolderInAnyCase)
{
    EXPECT_EQ(CharacterFolderOf(u"default"_s, u"C:\\Windows"_s), u"C:\\Windows\\msagent\\Chars"_s);
    EXPECT_EQ(CharacterFolderOf(u"Default"_s, u"C:\\Windows"_s), u"Default"_s);
    EXPECT_EQ(FolderFieldOf(u"c:\\WINDOWS\\MSAGENT\\chars"_s, u"C:\\Windows"_s), u"default"_s);
    EXPECT_EQ(FolderFieldOf(u"C:\\Windows\\msagent\\Chars\\"_s, u"C:\\Windows"_s),
              u"C:\\Windows\\msagent\\Chars\\"_s);
    EXPECT_EQ(FolderFieldOf(u"D:\\chars"_s, u"C:\\Windows"_s), u"D:\\chars"_s);
}

TEST(CharacterChoice, IsOffWithoutAFile)
{
    EXPECT_EQ(ChosenSettings(false, u"D:\\x"_s, u" a.acs "_s, u"C:"_s),
              (AgentSettings{1, u"D:\\x"_s, u"a.acs"_s}));
    EXPECT_EQ(ChosenSettings(false, u"D:\\x"_s, u"  "_s, u"C:"_s).enabled, 0);
    EXPECT_EQ(ChosenSettings(true, u"D:\\x"_s, u"a.acs"_s, u"C:"_s).enabled, 0);
}

} // namespace
