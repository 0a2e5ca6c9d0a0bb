#include "management/pure/entry_checks.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace
{

const QString kPath = u"C:\\dic\\a.mdb"_s;

LexiconArray Catalogue()
{
    Lexicon entry;
    entry.DicName = u"英和"_s;
    Lexicon other;
    other.DicName = u"和英"_s;
    return QList<Lexicon>{entry, other, Lexicon{}};
}

/// The title of the first fault; "" for none.
QString TitleOf(const EntryDraft &draft, bool exists = true)
{
    const auto fault = FindFault(draft, Catalogue(), [&](const QString &) { return exists; });
    return fault ? fault->title : QString();
}

EntryDraft Adding(const QString &name, const QString &path = kPath) { return {false, {}, name, path}; }
EntryDraft Editing(const QString &saved, const QString &name, const QString &path = kPath)
{
    return {true, saved, name, path};
}

} // namespace

TEST(EntryChecks, TheFirstFaultIsTold)
{
    const QString longName(26, u'語');
    const QString longPath = u"C:\\"_s + QString(253, u'a');
    const struct {
        EntryDraft draft;
        bool exists;
        QString title;
    } cases[] = {
        {Editing(u"英和"_s, u"和英"_s, u""_s), false, u"辞書名の重複"_s},
        {Editing(u"英和"_s, u"ﾜｴｲ"_s), true, u""_s},
        {Editing(u"英和"_s, u"英和"_s), true, u""_s},
        {Editing(u"abc"_s, u"ＡＢＣ"_s), true, u""_s},
        {Editing(u""_s, u"英和"_s), true, u"辞書名の重複"_s},
        {Editing(u""_s, u""_s), true, u"辞書名なし"_s},
        {Adding(u""_s, u""_s), false, u"辞書データファイルの未選択"_s},
        {Adding(u""_s, longPath), false, u"辞書名なし"_s},
        {Adding(longName, longPath), false, u"不適切な辞書名"_s},
        {Adding(u"a"_s, longPath), false, u"不適切なファイルパス長"_s},
        {Adding(u"a"_s), false, u"辞書データファイルパスの誤り"_s},
        // The name of a new entry is looked at later.
        {Adding(u"英和"_s), true, u""_s},
    };
    for (const auto &[draft, exists, title] : cases)
        EXPECT_EQ(TitleOf(draft, exists), title) << draft.name.toStdString() << ' ' << title.toStdString();
}

TEST(EntryChecks, LengthsAreBytesOfTheRecord)
{
    const auto nameTitle = [](const QString &name) { return TitleOf(Adding(name)); };
    EXPECT_EQ(nameTitle(QString(25, u'語')), u""_s);
    EXPECT_EQ(nameTitle(QString(50, u'a')), u""_s);
    EXPECT_EQ(nameTitle(QString(51, u'a')), u"不適切な辞書名"_s);
    // Half-width kana are single bytes; é is written as the reference &#xE9;.
    EXPECT_EQ(nameTitle(QString(50, u'ｱ')), u""_s);
    EXPECT_EQ(nameTitle(QString(8, u'é')), u""_s);
    EXPECT_EQ(nameTitle(QString(9, u'é')), u"不適切な辞書名"_s);
    const auto pathTitle = [](qsizetype length) {
        return TitleOf(Adding(u"a"_s, u"C:\\"_s + QString(length - 3, u'a')));
    };
    EXPECT_EQ(pathTitle(255), u""_s);
    EXPECT_EQ(pathTitle(256), u"不適切なファイルパス長"_s);
}

TEST(EntryChecks, TheTextsTellTheLength)
{
    const auto fault = [](const EntryDraft &draft) {
        return FindFault(draft, Catalogue(), [](const QString &) { return true; });
    };
    EXPECT_EQ(fault(Adding(QString(26, u'語')))->text,
              u"辞書名が長すぎます！ (文字長: 52 バイト)\r\n\r\n辞書名の長さは半角文字一文字を１、"
              u"全角文字一文字を２\r\nと計算して、合計が５０文字(バイト)以内にしてください。"_s);
    EXPECT_EQ(fault(Adding(u"a"_s, QString(256, u'a')))->text,
              u"辞書のファイルパスが長すぎます！ (文字長: 256 バイト)\r\n\r\nファイルパスの長さは"
              u"半角文字一文字を１、全角文字一文字を２\r\nと計算して、合計が５０文字(バイト)"
              u"以内にしてください。"_s);
}

TEST(EntryChecks, ADuplicateIsToBeTypedAnew)
{
    EXPECT_TRUE(DuplicateName(u"a"_s).isDuplicate);
    EXPECT_EQ(DuplicateName(u"英和"_s).text,
              u"辞書名「英和」は既に使用されています。\r\n\r\n別の名前をお使い下さい。"_s);
    const auto none = FindFault(Adding(u""_s, u""_s), Catalogue(), [](const QString &) { return true; });
    ASSERT_TRUE(none);
    EXPECT_FALSE(none->isDuplicate);
}
