#include "core/pure/catalogue_record.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace
{

Lexicon Entry(const QString &name, const QString &path, qint16 selected = 0)
{
    Lexicon lexicon;
    lexicon.DicName = name;
    lexicon.DicPath = path;
    lexicon.IsSelected = selected;
    return lexicon;
}

Lexicon ThereAndBack(const Lexicon &lexicon) { return DecodeLexicon(EncodeLexicon(lexicon)); }

} // namespace

TEST(CatalogueRecord, BytesStandAtTheirPlaces)
{
    const QByteArray record = EncodeLexicon(Entry(u"動物"_s, u"C:\\dic\\a.mdb"_s, -1));
    ASSERT_EQ(record.size(), 309);
    EXPECT_EQ(record.first(50), QByteArray("\x93\xae\x95\xa8") + QByteArray(46, ' '));
    EXPECT_EQ(record.sliced(50, 255), QByteArray("C:\\dic\\a.mdb") + QByteArray(243, ' '));
    EXPECT_EQ(record.sliced(305), QByteArray("\xff\xff\0\0", 4));
}

TEST(CatalogueRecord, ADeletedMarkIsNeitherWrittenNorRead)
{
    Lexicon lexicon = Entry(u"a"_s, u"C:\\a.mdb"_s);
    lexicon.IsDeleted = -1;
    QByteArray record = EncodeLexicon(lexicon);
    EXPECT_EQ(record.sliced(307), QByteArray(2, '\0'));
    record.replace(307, 2, "\xff\xff");
    EXPECT_EQ(DecodeLexicon(record).IsDeleted, 0);
}

TEST(CatalogueRecord, TextComesBackAsItWas)
{
    for (const QString &text :
         {u""_s, u"é ə 😀"_s, u"A&B &#x41;"_s, u"表ソ能十"_s, u"a  b　c"_s, u"～－￥∥"_s})
        EXPECT_EQ(ThereAndBack(Entry(text, u"C:\\"_s + text)), Entry(text, (u"C:\\"_s + text)))
            << text.toStdString();
}

TEST(CatalogueRecord, BlanksAndNulAroundATextGo)
{
    QByteArray record(309, '\0');
    record.replace(0, 6, "\x81\x40 a\x81\x40");
    record.replace(50, 10, " C:\\a.mdb ");
    EXPECT_EQ(DecodeLexicon(record), Entry(u"a"_s, u"C:\\a.mdb"_s));
}

TEST(CatalogueRecord, ALongTextIsCutOnACharacter)
{
    EXPECT_EQ(ThereAndBack(Entry(QString(60, u'語'), u"C:\\a"_s)).DicName, QString(25, u'語'));
    EXPECT_EQ(ThereAndBack(Entry(u"a"_s + QString(60, u'語'), u"C:\\a"_s)).DicName,
              u"a"_s + QString(24, u'語'));
    EXPECT_EQ(ThereAndBack(Entry(QString(47, u'a') + u'é', u"C:\\a"_s)).DicName, QString(47, u'a'));
}

TEST(CatalogueRecord, WhatIsNoShiftJisStaysUntilItIsChanged)
{
    const QByteArray path = QByteArray("Z:\\\xe8\xbe\x9e\xe6\x9b\xb8\\a.mdb").leftJustified(255, ' ');
    const QByteArray name = QByteArray(50, '\xff');
    const QByteArray record = name + path + QByteArray("\xff\xff\0\0", 4);
    Lexicon lexicon = DecodeLexicon(record);
    EXPECT_EQ(EncodeLexicon(lexicon), record);
    lexicon.IsSelected = 0;
    EXPECT_EQ(EncodeLexicon(lexicon).first(305), record.first(305));
    lexicon.DicName = u"new"_s;
    EXPECT_EQ(EncodeLexicon(lexicon).first(305), QByteArray("new").leftJustified(50, ' ') + path);
}

TEST(CatalogueRecord, ANameIsFoundAsItIsWrittenFirst)
{
    QList<Lexicon> lexicons{Entry(u"ABC"_s, u"a"_s), Entry(u"abc"_s, u"b"_s), Entry(u"gone"_s, u"c"_s),
                            Entry(u"spare"_s, u"d"_s)};
    lexicons[2].IsDeleted = -1;
    EXPECT_EQ(SlotNamed(lexicons, u"ABC"_s), 0);
    EXPECT_EQ(SlotNamed(lexicons, u" abc "_s), 1);
    EXPECT_EQ(SlotNamed(lexicons, u"ａｂｃ"_s), 0);
    EXPECT_EQ(SlotNamed(lexicons, u"gone"_s), -1);
    EXPECT_EQ(SlotNamed(lexicons, u"spare"_s), -1);
    EXPECT_EQ(SlotNamed({}, u"x"_s), -1);
}
