#include "management/pure/compaction_paths.h"

#include "core/pure/catalogue_record.h"

#include <QList>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace
{

QList<Lexicon> Entries(int count)
{
    QList<Lexicon> lexicons(count + 1);
    for (int i = 0; i < count; ++i)
        lexicons[i].DicPath = u"C:\\%1.mdb"_s.arg(i);
    return lexicons;
}

QString FaultOf(const QString &path)
{
    const auto fault = FindBackupPathFault(path);
    return fault ? fault->title : QString();
}

} // namespace

TEST(CompactionPaths, AllSlotsButTheSpareOneAreOffered)
{
    EXPECT_TRUE(CompactionPaths(Entries(0)).isEmpty());
    QList<Lexicon> lexicons = Entries(3);
    lexicons[1] = Lexicon{};
    lexicons[1].IsDeleted = -1;
    EXPECT_EQ(CompactionPaths(lexicons), (QStringList{u"C:\\0.mdb"_s, QString(), u"C:\\2.mdb"_s}));
    for (const auto &[count, offered] :
         {std::pair{254, 254}, std::pair{255, 255}, std::pair{256, 255}, std::pair{300, 255}})
        EXPECT_EQ(CompactionPaths(Entries(count)).size(), offered) << count;
}

TEST(CompactionPaths, TheBackupStandsBesideTheDictionary)
{
    EXPECT_EQ(DefaultBackupPath(u"C:\\dic\\a.mdb"_s), u"C:\\dic\\BKUP_a.mdb"_s);
    EXPECT_EQ(DefaultBackupPath(u"a.mdb"_s), u"BKUP_a.mdb"_s);
    EXPECT_EQ(DefaultBackupPath(u""_s), u"BKUP_"_s);
    EXPECT_EQ(DefaultBackupPath(u"C:\\dic\\"_s), u"C:\\dic\\BKUP_"_s);
}

TEST(CompactionPaths, TheFormOfTheBackupPathIsCheckedInOrder)
{
    const struct {
        QString path, title;
    } cases[] = {
        {u"backup"_s, u"拡張子(またはピリオド)なし"_s},
        {u"C:\\dic\\backup"_s, u"拡張子(またはピリオド)なし"_s},
        {u"backup.mdb"_s, u"パスが不正(円マークなし)"_s},
        {u"\\backup.mdb"_s, u"ドライブ名なし"_s},
        {u"CC:\\backup.mdb"_s, u"ドライブ名なし"_s},
        {u"1:\\backup.mdb"_s, u"ドライブ名なし"_s},
        {u"C:\\.mdb"_s, u"バックアップファイル名なし"_s},
        {u"C:\\ 　.mdb"_s, u"バックアップファイル名なし"_s},
        {u"C:\\a.mdb"_s, u""_s},
        {u"C:\\a."_s, u""_s},
        {u"C:\\d.ic\\backup"_s, u""_s},
        {u"c:\\a.txt"_s, u""_s},
    };
    for (const auto &[path, title] : cases)
        EXPECT_EQ(FaultOf(path), title) << path.toStdString();
}

TEST(CompactionPaths, ExtensionsAreAddedAndReplaced)
{
    EXPECT_EQ(WithExtensionAdded(u"C:\\a."_s), u"C:\\a.mdb"_s);
    EXPECT_EQ(WithExtensionAdded(u"C:\\a"_s), u"C:\\a.mdb"_s);
    EXPECT_EQ(WithExtensionReplaced(u"C:\\a.txt"_s), u"C:\\a.MDB"_s);
    EXPECT_EQ(WithExtensionReplaced(u"C:\\a."_s), u"C:\\a.MDB"_s);
    EXPECT_EQ(WithExtensionReplaced(u"C:\\d.ic\\backup"_s), u"C:\\d.MDB"_s);
}

TEST(CompactionPaths, SizesAreGrouped)
{
    EXPECT_EQ(CompactionDone(1234567, 999).text,
              u"データベースの最適化は無事完了しました。\r\n\r\n"
              u"最適化前のファイルのサイズ： 1,234,567 バイト\r\n最適化後のファイルのサイズ： 999 バイト"_s);
    const QString text = TooLittleSpace(5'000'000'000, 0).text;
    EXPECT_TRUE(text.endsWith(u"最適化するファイルのサイズ： 5,000,000,000 バイト\r\n"
                              u"利用可能なドライブの空き容量： 0 バイト"_s));
}
