#include "platform/text/fold.h"
#include "unit/data/dictionary_fixture.h"
#include "unit/text/comparison_cases.h"

#include <algorithm>
#include <random>

using namespace Qt::StringLiterals;

namespace
{

class TableRecordset : public DictionaryTest
{
};

QStringList WordsOf(const std::vector<Entry> &entries)
{
    QStringList words;
    for (const Entry &entry : entries)
        words.append(entry.word);
    return words;
}

bool Before(const Entry &left, const Entry &right)
{
    const int order = text::Compare(left.word, right.word);
    return order != 0 ? order < 0 : left.autoID < right.autoID;
}

TEST_F(TableRecordset, StartsOnTheFirstRowOfTheIndex)
{
    CreateWith({u"banana"_s, u"Apple"_s, u"apple"_s, u"cherry"_s});
    const auto view = OpenTable();
    EXPECT_FALSE(view->rows.Eof());
    EXPECT_FALSE(view->rows.Bof());
    EXPECT_EQ(view->rows.Index(), u"WordID"_s);
    EXPECT_EQ(view->Current(), (Entry{u"Apple"_s, 2}));
    EXPECT_EQ(WordsOf(Rest(view->rows)), (QStringList{u"Apple"_s, u"apple"_s, u"banana"_s, u"cherry"_s}));
    EXPECT_TRUE(view->rows.Eof());
    EXPECT_EQ(Raised([&] { view->rows.MoveNext(); }), 3021);
    EXPECT_EQ(Raised([&] { view->Text("Word"); }), 3021);
    view->rows.MovePrevious();
    EXPECT_EQ(view->Text("Word"), u"cherry"_s);
}

TEST_F(TableRecordset, WalksBackToTheBeginning)
{
    CreateWith({u"b"_s, u"a"_s, u"c"_s});
    const auto view = OpenTable();
    view->rows.MoveLast();
    EXPECT_EQ(view->Current(), (Entry{u"c"_s, 3}));
    view->rows.MovePrevious();
    view->rows.MovePrevious();
    EXPECT_EQ(view->Current(), (Entry{u"a"_s, 2}));
    view->rows.MovePrevious();
    EXPECT_TRUE(view->rows.Bof());
    EXPECT_FALSE(view->rows.Eof());
    EXPECT_EQ(Raised([&] { view->rows.MovePrevious(); }), 3021);
    view->rows.MoveNext();
    EXPECT_EQ(view->Current(), (Entry{u"a"_s, 2}));
}

TEST_F(TableRecordset, EmptyTableIsAtBothEnds)
{
    Create();
    const auto view = OpenTable();
    EXPECT_TRUE(view->rows.Eof());
    EXPECT_TRUE(view->rows.Bof());
    view->rows.MoveFirst();
    view->rows.MoveLast();
    EXPECT_TRUE(view->rows.Eof());
    EXPECT_EQ(Raised([&] { view->Value("Word"); }), -2147467259);
    EXPECT_EQ(Raised([&] { view->rows.MoveNext(); }), 3021);
    view->rows.Seek(u"a"_s, 1, ADODB::adSeekBeforeEQ);
    EXPECT_TRUE(view->rows.Eof());
    view->rows.Seek(u"a"_s, 1, ADODB::adSeekFirstEQ);
    EXPECT_TRUE(view->rows.Eof());
}

TEST_F(TableRecordset, SeekFirstEqualFindsExactlyTheKey)
{
    CreateWith({u"go"_s, u"Go"_s, u"gone"_s});
    const auto view = OpenTable();
    view->rows.Seek(u"GO"_s, 2, ADODB::adSeekFirstEQ);
    EXPECT_EQ(view->Current(), (Entry{u"Go"_s, 2}));
    EXPECT_EQ(view->Text("Description"), u"<Go>"_s);
    view->rows.Seek(u"go"_s, 3, ADODB::adSeekFirstEQ);
    EXPECT_TRUE(view->rows.Eof());
    view->rows.Seek(u"g"_s, 1, ADODB::adSeekFirstEQ);
    EXPECT_TRUE(view->rows.Eof());
    EXPECT_EQ(Raised([&] { view->rows.Seek(u"go"_s, 1, 2); }), 5);
}

TEST_F(TableRecordset, SeekBeforeEqualFindsThePlace)
{
    CreateWith({u"b"_s, u"b"_s, u"d"_s});
    const auto view = OpenTable();
    view->rows.Seek(u"b"_s, 2, ADODB::adSeekBeforeEQ);
    EXPECT_EQ(view->Current(), (Entry{u"b"_s, 2}));
    view->rows.Seek(u"b"_s, 0, ADODB::adSeekBeforeEQ);
    EXPECT_TRUE(view->rows.Eof());
    view->rows.Seek(u"c"_s, 0, ADODB::adSeekBeforeEQ);
    EXPECT_EQ(view->Current(), (Entry{u"b"_s, 2}));
    view->rows.MoveNext();
    EXPECT_EQ(view->Current(), (Entry{u"d"_s, 3}));
    view->rows.Seek(u"z"_s, 0, ADODB::adSeekBeforeEQ);
    EXPECT_EQ(view->Current(), (Entry{u"d"_s, 3}));
    view->rows.Seek(u"a"_s, 7, ADODB::adSeekBeforeEQ);
    EXPECT_TRUE(view->rows.Eof());
    view->rows.MoveFirst();
    EXPECT_EQ(view->Current(), (Entry{u"b"_s, 1}));
}

TEST_F(TableRecordset, SeekComparesAsTextComparisonDoes)
{
    Create();
    for (const comparison::Case &c : comparison::kCases) {
        SCOPED_TRACE(c.what);
        const auto view = OpenTable();
        const Entry added = view->Add(c.left.toString());
        view->rows.Seek(c.right.toString(), added.autoID, ADODB::adSeekFirstEQ);
        EXPECT_EQ(!view->rows.Eof(), c.same);
        view->rows.Seek(c.left.toString(), added.autoID, ADODB::adSeekFirstEQ);
        ASSERT_FALSE(view->rows.Eof());
        EXPECT_EQ(view->Text("Word"), c.left.toString());
        const bool equals =
            !Select(QStringLiteral("SELECT TOP 1 * FROM Dictionary WHERE Word = '%1' AND AutoID = %2")
                        .arg(QString(c.right.toString()).replace(u"'"_s, u"''"_s))
                        .arg(added.autoID))
                 .empty();
        EXPECT_EQ(equals, c.same);
    }
}

TEST_F(TableRecordset, WalksAndSeeksAgreeWithASortedCopy)
{
    std::mt19937 random(7);
    const QStringList letters{u"a"_s,
                              u"A"_s,
                              u"ａ"_s,
                              u"b"_s,
                              u"B"_s,
                              u" "_s,
                              u"　"_s,
                              u"-"_s,
                              u"か"_s,
                              u"ｶ"_s,
                              u"カ"_s,
                              u"ﾞ"_s,
                              u"が"_s,
                              u"1"_s,
                              u"漢"_s,
                              u"é"_s,
                              u"😀"_s,
                              u"'"_s,
                              QString(QChar(u'\0'))};
    const auto randomWord = [&] {
        QString word;
        for (auto length = random() % 4; length > 0; --length)
            word += letters[static_cast<qsizetype>(random() % static_cast<unsigned>(letters.size()))];
        return word;
    };
    QStringList words;
    for (int i = 0; i < 1500; ++i)
        words.append(randomWord());
    CreateWith(words);
    std::vector<Entry> sorted;
    for (int i = 0; i < words.size(); ++i)
        sorted.push_back({words[i], i + 1});
    std::ranges::sort(sorted, Before);
    ASSERT_EQ(All(), sorted);

    const auto view = OpenTable();
    std::vector<Entry> backward;
    for (view->rows.MoveLast(); !view->rows.Bof(); view->rows.MovePrevious())
        backward.push_back(view->Current());
    std::ranges::reverse(backward);
    EXPECT_EQ(backward, sorted);

    for (int i = 0; i < 2000; ++i) {
        const Entry key{randomWord(), static_cast<int>(random() % 1600)};
        const auto behind = std::ranges::upper_bound(sorted, key, Before);
        view->rows.Seek(key.word, key.autoID, ADODB::adSeekBeforeEQ);
        ASSERT_EQ(view->rows.Eof(), behind == sorted.begin());
        if (view->rows.Eof())
            continue;
        ASSERT_EQ(view->Current(), *std::prev(behind));
        // Some steps to and fro from there.
        auto place = std::prev(behind) - sorted.begin();
        for (auto steps = random() % 6; steps > 0; --steps) {
            const bool forward = random() % 2 == 0;
            if (forward ? place + 1 == std::ssize(sorted) : place == 0)
                break;
            forward ? view->rows.MoveNext() : view->rows.MovePrevious();
            place += forward ? 1 : -1;
            if (random() % 4 == 0)
                ADODB::ReleaseReads();
            ASSERT_EQ(view->Current(), sorted[static_cast<std::size_t>(place)]);
        }
        const Entry exact = sorted[random() % sorted.size()];
        view->rows.Seek(exact.word, exact.autoID, ADODB::adSeekFirstEQ);
        ASSERT_FALSE(view->rows.Eof());
        ASSERT_EQ(view->Current(), exact);
    }
}

TEST_F(TableRecordset, HundredThousandEqualHeadwords)
{
    Create();
    {
        const auto bulk = OpenBulk();
        for (int i = 0; i < 100'000; ++i)
            bulk->Add(i % 2 == 0 ? u"same"_s : u"ＳＡＭＥ"_s);
        bulk->rows.Close();
    }
    const auto view = OpenTable();
    // Each step after a release finds its place anew; it must not walk there.
    view->rows.Seek(u"Same"_s, 50'000, ADODB::adSeekFirstEQ);
    for (int i = 0; i < 2000; ++i) {
        ADODB::ReleaseReads();
        view->rows.MoveNext();
    }
    EXPECT_EQ(view->Value("AutoID").toInt(), 52'000);
    for (int i = 0; i < 4000; ++i) {
        ADODB::ReleaseReads();
        view->rows.MovePrevious();
    }
    EXPECT_EQ(view->Value("AutoID").toInt(), 48'000);
    view->rows.MoveFirst();
    int expected = 1;
    for (; !view->rows.Eof(); view->rows.MoveNext())
        ASSERT_EQ(view->Value("AutoID").toInt(), expected++);
    EXPECT_EQ(expected, 100'001);
}

TEST_F(TableRecordset, ResumesBehindItsPlaceAfterForeignWrites)
{
    CreateWith({u"a"_s, u"c"_s, u"e"_s});
    const auto reader = OpenTable();
    const auto writer = OpenTable();
    EXPECT_EQ(reader->Text("Word"), u"a"_s);
    writer->Add(u"b"_s);
    reader->rows.MoveNext();
    EXPECT_EQ(reader->Text("Word"), u"b"_s);
    writer->rows.Seek(u"b"_s, 4, ADODB::adSeekFirstEQ);
    writer->rows.Delete();
    EXPECT_EQ(Raised([&] { reader->Text("Word"); }), 3021);
    EXPECT_EQ(Raised([&] { reader->Text("Description"); }), 3021);
    reader->rows.MoveNext();
    EXPECT_EQ(reader->Text("Word"), u"c"_s);
    writer->rows.Seek(u"c"_s, 2, ADODB::adSeekFirstEQ);
    writer->Set("Description", u"new"_s);
    writer->rows.Update();
    EXPECT_EQ(reader->Text("Description"), u"new"_s);
    EXPECT_EQ(reader->Text("Word"), u"c"_s);
}

TEST_F(TableRecordset, DeletedRowKeepsThePlace)
{
    CreateWith({u"a"_s, u"b"_s, u"c"_s});
    const auto view = OpenTable();
    view->rows.MoveNext();
    view->rows.Delete();
    view->rows.Update();
    EXPECT_EQ(Raised([&] { view->Text("Word"); }), 3021);
    EXPECT_EQ(Raised([&] { view->rows.Delete(); }), 3021);
    view->rows.MoveNext();
    EXPECT_EQ(view->Text("Word"), u"c"_s);
    EXPECT_EQ(WordsOf(All()), (QStringList{u"a"_s, u"c"_s}));
}

TEST_F(TableRecordset, AddedRowIsCurrentAndNumbersAreNeverUsedAgain)
{
    CreateWith({u"b"_s});
    const auto view = OpenTable();
    EXPECT_EQ(view->Add(u"a"_s), (Entry{u"a"_s, 2}));
    EXPECT_EQ(view->Text("Description"), u"<a>"_s);
    view->rows.Delete();
    EXPECT_EQ(view->Add(u"c"_s), (Entry{u"c"_s, 3}));
    view->rows.MovePrevious();
    EXPECT_EQ(view->Current(), (Entry{u"b"_s, 1}));
}

TEST_F(TableRecordset, ChangedHeadwordMovesTheRow)
{
    CreateWith({u"a"_s, u"b"_s, u"c"_s});
    const auto view = OpenTable();
    view->Set("Word", u"d"_s);
    EXPECT_EQ(view->Text("Word"), u"d"_s);
    view->rows.Update();
    EXPECT_EQ(view->Current(), (Entry{u"d"_s, 1}));
    view->rows.MovePrevious();
    EXPECT_EQ(view->Text("Word"), u"c"_s);
}

TEST_F(TableRecordset, NullsAndEmptyTextsStayApart)
{
    Create();
    const auto view = OpenTable();
    view->rows.AddNew();
    EXPECT_FALSE(view->Value("AutoID").isValid());
    view->Set("Word", u"a"_s);
    view->Set("Description", QString(u""_s));
    view->rows.Update();
    EXPECT_FALSE(view->Value("Pronunciation").isValid());
    EXPECT_FALSE(view->Value("WordPhrase").isValid());
    EXPECT_TRUE(view->Value("Description").isValid());
    EXPECT_EQ(view->Text("Description"), u""_s);
    view->Set("Description", QVariant());
    view->rows.Update();
    EXPECT_FALSE(view->Value("Description").isValid());
}

TEST_F(TableRecordset, TextsSurviveAsTheyAre)
{
    Create();
    const QString odd = u"a"_s + QChar(u'\0') + u"b\r\nｶﾞ😀"_s;
    const auto view = OpenTable();
    const Entry added = view->Add(odd);
    EXPECT_EQ(added.word, odd);
    view->Add(u"a"_s);
    view->rows.Seek(odd, added.autoID, ADODB::adSeekFirstEQ);
    ASSERT_FALSE(view->rows.Eof());
    EXPECT_EQ(view->Text("Description"), u"<"_s + odd + u">"_s);
}

TEST_F(TableRecordset, SizesAndTypesAreEnforced)
{
    CreateWith({u"a"_s});
    const auto view = OpenTable();
    const qint32 refused = RuntimeError::ProviderError;
    EXPECT_EQ(Raised([&] { view->Set("Word", QString(256, u'x')); }), refused);
    EXPECT_EQ(Raised([&] { view->Set("Word", QVariant()); }), refused);
    EXPECT_EQ(Raised([&] { view->Set("Pronunciation", QString(65, u'x')); }), refused);
    EXPECT_EQ(Raised([&] { view->Set("WordPhrase", 40'000); }), refused);
    EXPECT_EQ(Raised([&] { view->Set("WordPhrase", u"x"_s); }), refused);
    EXPECT_EQ(Raised([&] { view->Set("AutoID", 9); }), refused);
    EXPECT_EQ(Raised([&] { view->Set("Colour", 9); }), 3265);
    view->Set("Word", QString(255, u'あ'));
    view->Set("Pronunciation", QString(64, u'x'));
    view->Set("Example", QString(100'000, u'x'));
    view->rows.Update();
    EXPECT_EQ(view->Text("Word"), QString(255, u'あ'));
    EXPECT_EQ(view->Text("Example").size(), 100'000);
    view->rows.AddNew();
    view->Set("Description", u"no headword"_s);
    EXPECT_EQ(Raised([&] { view->rows.Update(); }), refused);
    EXPECT_EQ(All().size(), 1U);
}

TEST_F(TableRecordset, ClosedObjectsSaySo)
{
    CreateWith({u"a"_s});
    ADODB::Recordset rows;
    ADODB::Connection connection;
    EXPECT_EQ(Raised([&] { connection.Close(); }), 3704);
    EXPECT_EQ(Raised([&] { rows.Open(u"Dictionary"_s, connection, 1, 3, 512); }), 3704);
    EXPECT_EQ(Raised([&] { rows.MoveNext(); }), 3704);
    const auto view = OpenTable();
    EXPECT_EQ(view->rows.State(), ADODB::adStateOpen);
    EXPECT_EQ(Raised([&] { view->connection.Open(ConnectionTo()); }), 3705);
    EXPECT_EQ(Raised([&] { view->rows.Open(u"Dictionary"_s, view->connection, 1, 3, 512); }), 3705);
    EXPECT_EQ(Raised([&] { view->rows.SetIndex(u"Other"_s); }), 3265);
    view->connection.Close();
    EXPECT_EQ(view->rows.State(), ADODB::adStateClosed);
    EXPECT_EQ(Raised([&] { view->Text("Word"); }), 3704);
}

TEST_F(TableRecordset, EveryOperationCanBeMadeToFail)
{
    CreateWith({u"a"_s, u"b"_s});
    const auto view = OpenTable();
    const auto fails = [&](const char *what, const std::function<void()> &call) {
        faults::FailNext(QLatin1String(what), 70);
        try {
            call();
            ADD_FAILURE() << what;
        } catch (const RuntimeError &error) {
            EXPECT_EQ(error.number(), 70);
            EXPECT_EQ(error.source(), u"ADODB.Recordset"_s);
        }
    };
    fails("MoveFirst", [&] { view->rows.MoveFirst(); });
    fails("MoveLast", [&] { view->rows.MoveLast(); });
    fails("MoveNext", [&] { view->rows.MoveNext(); });
    fails("MovePrevious", [&] { view->rows.MovePrevious(); });
    fails("Seek", [&] { view->rows.Seek(u"a"_s, 1, 1); });
    fails("Index", [&] { view->rows.SetIndex(u"WordID"_s); });
    fails("EOF", [&] { view->rows.Eof(); });
    fails("BOF", [&] { view->rows.Bof(); });
    fails("Item", [&] { view->Text("Word"); });
    fails("Value", [&] { view->Text("Word"); });
    fails("AddNew", [&] { view->rows.AddNew(); });
    fails("Update", [&] { view->rows.Update(); });
    fails("Delete", [&] { view->rows.Delete(); });
    fails("Close", [&] { view->rows.Close(); });
    EXPECT_EQ(view->Current(), (Entry{u"a"_s, 1}));
    EXPECT_EQ(All().size(), 2U);
}

// Cut to its 32 bits, the number of one row would be that of another, which would be changed in its place.
TEST_F(TableRecordset, ANumberBeyondItsSizeIsNoOtherRows)
{
    CreateWith({u"a"_s, u"b"_s});
    RunRaw("INSERT INTO Dictionary(Word, WordPhrase, AutoID) VALUES('b', 1, 4294967298)");
    const auto view = OpenTable();
    view->rows.MoveLast();
    EXPECT_EQ(view->Text("Word"), u"b"_s);
    EXPECT_EQ(Raised([&] { view->Value("AutoID"); }), RuntimeError::Overflow);
    for (const QString &order : {QString(), u" ORDER BY Word"_s}) {
        ADODB::Connection connection;
        connection.Open(ConnectionTo());
        const auto rows = connection.Execute(u"SELECT * FROM Dictionary WHERE Word = 'b'"_s + order);
        EXPECT_EQ(rows->Fields().Item(u"AutoID"_s).Value().toInt(), 2);
        rows->MoveNext();
        EXPECT_EQ(Raised([&] { rows->Fields().Item(u"AutoID"_s).Value(); }), RuntimeError::Overflow);
    }
}

} // namespace
