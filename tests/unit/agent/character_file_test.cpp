#include "platform/agent/pure/character_file.h"

#include "platform/failure/runtime_error.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace
{

const QByteArray kHead =
    "Wordmere character 1\nName: Test\nVoice: en-us+f3\nPitch: 50\nRate: 165\nSize: 64x64\n\n";

QByteArray Drawing(const QByteArray &inside = {})
{
    QByteArray drawing = "<svg viewBox=\"0 0 64 64\">" + inside;
    for (const char *layer : {"body", "eyes-open", "eyes-closed", "mouth-closed", "mouth-small", "mouth-open",
                              "mouth-wide", "mouth-round"})
        drawing +=
            QByteArray("<g id=\"") + layer + "\"><circle cx=\"32\" cy=\"32\" r=\"8\" fill=\"#123\"/></g>";
    return drawing + "</svg>";
}

bool IsRefused(const QByteArray &content)
{
    try {
        agent::ParseCharacterFile(content);
    } catch (const RuntimeError &failure) {
        return failure.number() == RuntimeError::InvalidFileFormat;
    }
    return false;
}

QByteArray With(QByteArray head, const QByteArray &before, const QByteArray &after)
{
    return head.replace(before, after) + Drawing();
}

TEST(CharacterFile, IsRead)
{
    const agent::CharacterFile file = agent::ParseCharacterFile(kHead + Drawing());
    EXPECT_EQ(file.name, u"Test"_s);
    EXPECT_EQ(file.voice, u"en-us+f3"_s);
    EXPECT_EQ(file.pitch, 50);
    EXPECT_EQ(file.rate, 165);
    EXPECT_EQ(file.size, QSize(64, 64));
    EXPECT_EQ(file.drawing, Drawing());
    EXPECT_NO_THROW(agent::ParseCharacterFile(QByteArray(kHead).replace("\n", "\r\n") + Drawing()));
}

TEST(CharacterFile, ShippedOnesAreGood)
{
    const QDir folder(QStringLiteral(WORDMERE_CHARACTERS));
    const QStringList names = folder.entryList({u"*.acs"_s}, QDir::Files);
    EXPECT_GE(names.size(), 2);
    for (const QString &name : names) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_NO_THROW(agent::ParseCharacterFile(file.readAll())) << qPrintable(name);
    }
}

TEST(CharacterFile, ForeignAndBrokenOnesAreRefused)
{
    EXPECT_TRUE(IsRefused({}));
    EXPECT_TRUE(IsRefused(QByteArray("\xD0\xCF\x11\xE0 something else altogether\n\n")));
    EXPECT_TRUE(IsRefused(kHead));
    EXPECT_TRUE(IsRefused(kHead + Drawing().chopped(5)));
    EXPECT_TRUE(IsRefused(kHead + "<html/>"));
    EXPECT_TRUE(IsRefused(kHead + Drawing().replace("mouth-wide", "mouth-long")));
    EXPECT_TRUE(IsRefused(kHead + Drawing().replace("0 0 64 64", "0 0 65 64")));
    EXPECT_TRUE(IsRefused(kHead + Drawing() + QByteArray(agent::kLargestCharacterFile, ' ')));
}

TEST(CharacterFile, DescriptionsAreChecked)
{
    EXPECT_TRUE(IsRefused(With(kHead, "character 1", "character 2")));
    EXPECT_TRUE(IsRefused(With(kHead, "Name: Test\n", "")));
    EXPECT_TRUE(IsRefused(With(kHead, "Name: Test", "Name:  ")));
    EXPECT_TRUE(IsRefused(With(kHead, "en-us+f3", "../../etc/passwd")));
    EXPECT_FALSE(IsRefused(With(kHead, "en-us+f3", "a2345678901234567890+" + QByteArray(19, 'v'))));
    EXPECT_TRUE(IsRefused(With(kHead, "en-us+f3", "en-us+" + QByteArray(20, 'v'))));
    EXPECT_TRUE(IsRefused(With(kHead, "en-us+f3", "a23456789012345678901")));
    EXPECT_TRUE(IsRefused(With(kHead, "Pitch: 50", "Pitch: 101")));
    EXPECT_TRUE(IsRefused(With(kHead, "Rate: 165", "Rate: fast")));
    EXPECT_TRUE(IsRefused(With(kHead, "Size: 64x64", "Size: 64")));
    EXPECT_TRUE(IsRefused(With(kHead, "Size: 64x64", "Size: 64x100000")));
    EXPECT_TRUE(IsRefused(With(kHead, "Pitch: 50", "Pitch: 50\nPitch: 50")));
}

TEST(CharacterFile, DrawingsReachNothingAndExhaustNothing)
{
    for (const char *inside :
         {"<image href=\"file:///etc/passwd\"/>", "<use href=\"#body\"/>", "<script>1</script>",
          "<text>x</text>", "<style>*{}</style>", "<animate/>", "<g style=\"fill:red\"/>",
          "<path d=\"M0 0\" stroke-dasharray=\"0.001\"/>", "<circle r=\"1e30\"/>",
          "<path d=\"M0 0 L99999 0\"/>", "<path d=\"M0 0 L1e999 0\"/>", "<?php 1 ?>",
          "<g transform=\"scale(20)\"/>", "<g transform=\"matrix(9 0 0 9 0 0)\"/>",
          "<linearGradient gradientTransform=\"skewX(80)\"/>"})
        EXPECT_TRUE(IsRefused(kHead + Drawing(inside))) << inside;
    EXPECT_FALSE(IsRefused(kHead + Drawing("<g transform=\"translate(9 9) rotate(90)\"/>")));
    // Steps that lead far away one behind the other, and more of them than anyone draws by hand.
    const auto path = [](const char *step, int steps) {
        return kHead + Drawing("<path d=\"M0 0" + QByteArray(step).repeated(steps) + "\"/>");
    };
    EXPECT_FALSE(IsRefused(path(" l9 9", 900)));
    EXPECT_TRUE(IsRefused(path(" l9 9", 911)));
    EXPECT_FALSE(IsRefused(path(" L99 99", 2000)));
    EXPECT_TRUE(IsRefused(path(" L99 99", 2900)));
    EXPECT_TRUE(IsRefused(kHead + "<!DOCTYPE svg [<!ENTITY a \"b\">]>" + Drawing()));
    EXPECT_TRUE(IsRefused(kHead + Drawing(QByteArray("<g>").repeated(40) + QByteArray("</g>").repeated(40))));
    EXPECT_TRUE(IsRefused(kHead + Drawing(QByteArray("<g/>").repeated(5000))));
}

} // namespace
