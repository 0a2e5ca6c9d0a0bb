#include "conversion/pure/file_checks.h"

#include "conversion/pure/format_table.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace
{

const QString kTaken = u"C:\\dic\\taken.mdb"_s;

/// The checks that speak, until one ends the sequence; the user's answers are given in their order.
struct Course {
    QList<int> found;
    bool goesOn = true;
    QString target;
};

Course Follow(ConvFiles files, QList<bool> answers)
{
    Course course;
    for (const FileCheck check : kFileChecks) {
        if (!Finds(check, files, [](const QString &path) { return path == kTaken; }))
            continue;
        course.found.append(static_cast<int>(check));
        if (!GoesOn(check, !answers.isEmpty() && answers.takeFirst(), files)) {
            course.goesOn = false;
            break;
        }
    }
    course.target = files.target;
    return course;
}

struct Row {
    QString source;
    QString target;
    QList<bool> answers;
    QList<FileCheck> found;
    QString result;
    std::int16_t format;
    bool goesOn;
};

TEST(FileChecks, FollowTheirOrder)
{
    using enum FileCheck;
    const Row table[] = {
        {u""_s, u""_s, {true}, {SourceEmpty}, u""_s, 0, false},
        {u"s"_s, u""_s, {true}, {TargetEmpty}, u""_s, 0, false},
        {u"s"_s, u"C:\\dic\\a"_s, {true}, {NoPeriod}, u"C:\\dic\\a"_s, 0, false},
        {u"s"_s, u"C:a.mdb"_s, {true}, {NoBackslash}, u"C:a.mdb"_s, 0, false},
        {u"s"_s, u"a\\b.mdb"_s, {true}, {NoDrive}, u"a\\b.mdb"_s, 0, false},
        {u"s"_s, u"C:\\.mdb"_s, {true}, {NoStem}, u"C:\\.mdb"_s, 0, false},
        {u"s"_s, u"C:\\ \u3000.mdb"_s, {true}, {NoStem}, u"C:\\ \u3000.mdb"_s, 0, false},
        {u"s"_s, u"C:\\a."_s, {true}, {NoExtension}, u"C:\\a.mdb"_s, 0, true},
        {u"s"_s, u"C:\\a．"_s, {true}, {NoExtension}, u"C:\\a．.mdb"_s, 0, true},
        {u"s"_s, u"C:\\a."_s, {false, true}, {NoExtension, WrongExtension}, u"C:\\a.MDB"_s, 0, true},
        {u"s"_s, u"C:\\a."_s, {false, false}, {NoExtension, WrongExtension}, u"C:\\a."_s, 0, false},
        {u"s"_s, u"C:\\a.txt"_s, {true}, {WrongExtension}, u"C:\\a.MDB"_s, 0, true},
        {u"s"_s, u"C:\\my.dir\\a"_s, {true}, {WrongExtension}, u"C:\\my.MDB"_s, 0, true},
        {u"s"_s, u"C:\\a.txt"_s, {false}, {WrongExtension}, u"C:\\a.txt"_s, 0, false},
        {u"s"_s, u"C:\\a.mDb"_s, {}, {}, u"C:\\a.mDb"_s, 0, true},
        {u"s"_s, kTaken, {true}, {TargetExists}, kTaken, 0, true},
        {u"s"_s, kTaken, {false}, {TargetExists}, kTaken, 0, false},
        {u"s"_s, u"C:\\dic\\taken."_s, {true, false}, {NoExtension, TargetExists}, kTaken, 0, false},
        {u"s.Dic"_s, u"C:\\a.mdb"_s, {true}, {PdicBinary}, u"C:\\a.mdb"_s, FormatPdicText, true},
        {u"s.dic"_s, u"C:\\a.mdb"_s, {false}, {PdicBinary}, u"C:\\a.mdb"_s, FormatPdicText, false},
        {u"s.txt"_s, u"C:\\a.mdb"_s, {}, {}, u"C:\\a.mdb"_s, FormatPdicText, true},
        {u"s.dic"_s, u"C:\\a.mdb"_s, {}, {}, u"C:\\a.mdb"_s, FormatEijiro, true},
        {u"s.txt"_s, u"C:\\a.mdb"_s, {true}, {GlossaryExtension}, u"C:\\a.mdb"_s, FormatGlossary, true},
        {u"s"_s, u"C:\\a.mdb"_s, {false}, {GlossaryExtension}, u"C:\\a.mdb"_s, FormatGlossary, false},
        {u"s.Csv"_s, u"C:\\a.mdb"_s, {}, {}, u"C:\\a.mdb"_s, FormatGlossary, true},
        {u"s.txt"_s, u"C:\\a.mdb"_s, {}, {}, u"C:\\a.mdb"_s, FormatCsv, true},
    };
    for (const Row &row : table) {
        const Course course = Follow({row.format, row.source, row.target}, row.answers);
        QList<int> expected;
        for (const FileCheck check : row.found)
            expected.append(static_cast<int>(check));
        EXPECT_EQ(course.found, expected) << row.target.toStdString();
        EXPECT_EQ(course.goesOn, row.goesOn) << row.target.toStdString();
        EXPECT_EQ(course.target, row.result) << row.target.toStdString();
    }
}

TEST(FileChecks, FormatsHaveNamesAndDescriptions)
{
    EXPECT_EQ(SourceFormatNames().size(), 5);
    EXPECT_EQ(SourceFormatDescriptions().size(), 5);
    EXPECT_EQ(SourceFormatNames().at(FormatGlossary), u"MS Glossary"_s);
    EXPECT_EQ(SourceFormatNames().at(FormatPdicText), u"ＰＤＩＣテキスト"_s);
}

} // namespace
