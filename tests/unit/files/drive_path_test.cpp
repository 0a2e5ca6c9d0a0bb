#include "unit/files/temp_home.h"

namespace
{

using namespace Qt::StringLiterals;

struct PathCase {
    QString drive;
    QString host; ///< empty: the host lacks it
};

class HostPathTest : public testing::TestWithParam<PathCase>
{
};

TEST_P(HostPathTest, MapsOrRefuses)
{
    const PathCase &c = GetParam();
    EXPECT_EQ(files::HostPathOrEmpty(c.drive), c.host);
    if (c.host.isEmpty())
        EXPECT_EQ(Raised([&] { files::HostPath(c.drive); }), RuntimeError::PathNotFound);
    else
        EXPECT_EQ(files::HostPath(c.drive), c.host);
}

INSTANTIATE_TEST_SUITE_P(Paths, HostPathTest,
                         testing::Values(PathCase{u"Z:\\home\\u\\a.mdb"_s, u"/home/u/a.mdb"_s},
                                         PathCase{u"z:\\home"_s, u"/home"_s}, PathCase{u"Z:\\"_s, u"/"_s},
                                         PathCase{u"Z:"_s, u"/"_s}, PathCase{u"Z:/home/u"_s, u"/home/u"_s},
                                         PathCase{u"Z:\\英和\\辞書 1.mdb"_s, u"/英和/辞書 1.mdb"_s},
                                         PathCase{u"Z:home"_s, {}}, PathCase{u"C:\\dic\\a.mdb"_s, {}},
                                         PathCase{u"\\home"_s, {}}, PathCase{u"\\\\server\\share"_s, {}},
                                         PathCase{u"/home"_s, {}}, PathCase{u"a.mdb"_s, {}}, PathCase{{}, {}},
                                         PathCase{u"Z"_s, {}}, PathCase{u"ＺＺ:\\a"_s, {}}));

TEST(DrivePath, IsTheWayBack)
{
    for (const QString &host : {u"/"_s, u"/home/u/a.mdb"_s, u"/英和/b c.mdb"_s, u"/home/u/"_s})
        EXPECT_EQ(files::HostPath(files::DrivePath(host)), host);
    EXPECT_EQ(files::DrivePath(u"/home/u/a.mdb"_s), u"Z:\\home\\u\\a.mdb"_s);
}

TEST(DrivePath, RefusesNamesThatHaveNone)
{
    EXPECT_EQ(Raised([] { files::DrivePath(u"/home/a\\b.mdb"_s); }), RuntimeError::BadFileName);
    EXPECT_EQ(Raised([] { files::DrivePath(u"a.mdb"_s); }), RuntimeError::BadFileName);
    EXPECT_EQ(Raised([] { files::DrivePath({}); }), RuntimeError::BadFileName);
}

TEST(DrivePath, RewritesOnlyWhatWasTypedAsAHostPath)
{
    EXPECT_EQ(files::TypedPath(u"/home/u/a.mdb"_s), u"Z:\\home\\u\\a.mdb"_s);
    for (const QString &typed : {u"C:\\a.mdb"_s, u"a/b"_s, u"~/a"_s, QString(), u" /a"_s})
        EXPECT_EQ(files::TypedPath(typed), typed);
}

} // namespace
