#include "conversion/pure/database_path.h"

#include <gtest/gtest.h>
#include <optional>

using namespace Qt::StringLiterals;

namespace
{

bool NothingExists(const QString &) { return false; }

/// The first check that has something to say.
std::optional<PathCheck> FirstFinding(const QString &path)
{
    for (const PathCheck check : kPathChecks)
        if (Finds(check, path, NothingExists))
            return check;
    return std::nullopt;
}

} // namespace

TEST(DatabasePath, IsCheckedInOrder)
{
    const std::pair<QString, std::optional<PathCheck>> paths[] = {
        {u""_s, PathCheck::Empty},
        {u"C:\\dic\\new"_s, PathCheck::NoPeriod},
        {u"new"_s, PathCheck::NoPeriod},
        {u"C:new.mdb"_s, PathCheck::NoBackslash},
        {u"C:/dic/new.mdb"_s, PathCheck::NoBackslash},
        {u"dic\\new.mdb"_s, PathCheck::NoDrive},
        {u"CC:\\new.mdb"_s, PathCheck::NoDrive},
        {u"C:\\.mdb"_s, PathCheck::NoStem},
        {u"C:\\dic\\　.mdb"_s, PathCheck::NoStem},
        {u"C:\\dic\\new."_s, PathCheck::NoExtension},
        {u"C:\\dic\\new．"_s, PathCheck::NoExtension},
        {u"C:\\dic\\new.txt"_s, PathCheck::WrongExtension},
        {u"C:\\my.dir\\new"_s, PathCheck::WrongExtension},
        {u"C:\\dic\\new.ｍｄｂ"_s, PathCheck::WrongExtension},
        {u"C:\\dic\\new.mdb"_s, std::nullopt},
        {u"C:\\dic\\new.MdB"_s, std::nullopt},
        {u"C:\\dic\\new．mdb"_s, std::nullopt},
        {u"C:\\dic＼new.mdb"_s, std::nullopt},
    };
    for (const auto &[path, check] : paths)
        EXPECT_EQ(FirstFinding(path), check) << path.toStdString();
}

TEST(DatabasePath, IsAskedForAFileThere)
{
    QString asked;
    EXPECT_TRUE(Finds(PathCheck::Exists, u"C:\\a.mdb"_s, [&asked](const QString &path) {
        asked = path;
        return true;
    }));
    EXPECT_EQ(asked, u"C:\\a.mdb"_s);
}

TEST(DatabasePath, IsRewrittenByConsent)
{
    struct {
        PathCheck check;
        bool agreed;
        QString path;
        bool goesOn;
        QString rewritten;
    } const table[] = {
        {PathCheck::NoExtension, true, u"C:\\new."_s, true, u"C:\\new.mdb"_s},
        {PathCheck::NoExtension, true, u"C:\\new．"_s, true, u"C:\\new．.mdb"_s},
        {PathCheck::NoExtension, false, u"C:\\new."_s, true, u"C:\\new."_s},
        {PathCheck::WrongExtension, true, u"C:\\new."_s, true, u"C:\\new.MDB"_s},
        {PathCheck::WrongExtension, true, u"C:\\new.txt"_s, true, u"C:\\new.MDB"_s},
        {PathCheck::WrongExtension, true, u"C:\\my.dir\\a"_s, true, u"C:\\my.MDB"_s},
        {PathCheck::WrongExtension, false, u"C:\\new.txt"_s, false, u"C:\\new.txt"_s},
        {PathCheck::Empty, true, u""_s, false, u""_s},
        {PathCheck::NoPeriod, true, u"a"_s, false, u"a"_s},
        {PathCheck::NoBackslash, true, u"a.b"_s, false, u"a.b"_s},
        {PathCheck::NoDrive, true, u"a\\b.c"_s, false, u"a\\b.c"_s},
        {PathCheck::NoStem, true, u"C:\\.c"_s, false, u"C:\\.c"_s},
        {PathCheck::Exists, true, u"C:\\a.mdb"_s, false, u"C:\\a.mdb"_s},
    };
    for (const auto &row : table) {
        QString path = row.path;
        EXPECT_EQ(GoesOn(row.check, row.agreed, path), row.goesOn) << row.path.toStdString();
        EXPECT_EQ(path, row.rewritten) << row.path.toStdString();
    }
}
