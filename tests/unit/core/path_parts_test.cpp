#include "core/pure/path_parts.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace
{

struct PathCase {
    const char16_t *path;
    const char16_t *drive;
    const char16_t *stem; ///< of the mode 1
    const char16_t *name; ///< the stem of the mode 2
    const char16_t *extension;
};

constexpr PathCase kPaths[] = {
    {u"C:\\dic\\a.mdb", u"C", u"C:\\dic\\a", u"a", u"mdb"},
    {u"z:\\a.MDB", u"z", u"z:\\a", u"a", u"MDB"},
    {u"C:\\dic\\a.", u"C", u"C:\\dic\\a", u"a", u""},
    {u"C:\\dic\\a", u"C", u"", u"", u""},
    {u"C:\\my.dir\\a", u"C", u"C:\\my", u"my", u"dir\\a"},
    {u"C:\\.mdb", u"C", u"C:\\", u"", u"mdb"},
    {u"C:\\dic\\ .mdb", u"C", u"C:\\dic\\ ", u" ", u"mdb"},
    {u"a\\b.mdb", u"", u"a\\b", u"b", u"mdb"},
    {u"C:a.mdb", u"", u"C:a", u"", u"mdb"},
    {u"a.mdb", u"", u"a", u"", u"mdb"},
    {u"", u"", u"", u"", u""},
    {u".", u"", u"", u"", u""},
    {u":\\a.b", u"", u":\\a", u"a", u"b"},
    {u"1:\\a.b", u"", u"1:\\a", u"a", u"b"},
    {u"Ｃ:\\a.b", u"", u"Ｃ:\\a", u"a", u"b"},
    {u"あ:\\a.b", u"", u"あ:\\a", u"a", u"b"},
    {u"CC:\\a.b", u"", u"CC:\\a", u"a", u"b"},
    {u" C:\\a.b", u"", u"C:\\a", u"a", u"b"},
    {u"C：\\a.b", u"", u"C：\\a", u"a", u"b"},
    {u"C:\\D:\\a.b", u"C", u"C:\\D:\\a", u"a", u"b"},
    {u"C:\\a.b \u3000", u"C", u"C:\\a", u"a", u"b \u3000"},
    {u"C:\\a.b.c", u"C", u"C:\\a.b", u"a.b", u"c"},
    {u"C:\\表\\辞書.mdb", u"C", u"C:\\表\\辞書", u"辞書", u"mdb"},
    {u"C:\\dic\\a．mdb", u"C", u"C:\\dic\\a", u"a", u"mdb"},
    {u"C:\\dic＼a.mdb", u"C", u"C:\\dic＼a", u"a", u"mdb"},
};

} // namespace

TEST(PathParts, TakeAPathApart)
{
    for (const PathCase &c : kPaths) {
        const QString path = QString::fromUtf16(c.path);
        EXPECT_EQ(DriveOfPath(path), QString::fromUtf16(c.drive)) << path.toStdString();
        EXPECT_EQ(StemOfPath(path, 1), QString::fromUtf16(c.stem)) << path.toStdString();
        EXPECT_EQ(StemOfPath(path, 2), QString::fromUtf16(c.name)) << path.toStdString();
        EXPECT_EQ(ExtOfPath(path), QString::fromUtf16(c.extension)) << path.toStdString();
    }
}
