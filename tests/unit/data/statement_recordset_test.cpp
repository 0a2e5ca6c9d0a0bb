#include "unit/data/dictionary_fixture.h"

using namespace Qt::StringLiterals;

namespace
{

class StatementRecordset : public DictionaryTest
{
protected:
    /// Rows of headword, WordPhrase, meaning and example, in this order.
    void Fill(const std::vector<std::array<QString, 4>> &rows) const
    {
        Create();
        const auto view = OpenBulk();
        for (const auto &row : rows) {
            view->rows.AddNew();
            view->Set("Word", row[0]);
            view->Set("WordPhrase", row[1].toInt());
            view->Set("Description", row[2]);
            view->Set("Example", row[3].isEmpty() ? QVariant() : QVariant(row[3]));
            view->rows.Update();
        }
        view->rows.Close();
    }

    void FillAnimals() const
    {
        Fill({{u"dog"_s, u"1"_s, u"犬"_s, u"A dog barks."_s},
              {u"hot dog"_s, u"2"_s, u"ホットドッグ"_s, u""_s},
              {u"Dogma"_s, u"1"_s, u"教義"_s, u""_s},
              {u"dog days"_s, u"2"_s, u"猛暑の犬の日々"_s, u"The dog days are over."_s},
              {u"ＤＯＧ"_s, u"1"_s, u"いぬ"_s, u""_s},
              {u"bulldog"_s, u"1"_s, u"ﾌﾞﾙﾄﾞｯｸﾞ"_s, u""_s},
              {u"cat"_s, u"1"_s, u"ネコ、犬の敵"_s, u""_s}});
    }
};

TEST_F(StatementRecordset, PrefixWantsOneMoreCharacter)
{
    FillAnimals();
    EXPECT_EQ(SelectWords(u"SELECT TOP 10 * FROM Dictionary WHERE Word Like 'dog%_%' ORDER BY Word ASC"_s),
              (QStringList{u"dog days"_s, u"Dogma"_s}));
    EXPECT_EQ(SelectWords(u"SELECT TOP 10 * FROM Dictionary WHERE WordPhrase = 1 AND Word like 'dog%' "
                          "ORDER BY Word, AutoID ASC"_s),
              (QStringList{u"dog"_s, u"ＤＯＧ"_s, u"Dogma"_s}));
}

TEST_F(StatementRecordset, MiddleSuffixAndClasses)
{
    FillAnimals();
    const auto like = [this](const QString &pattern) {
        return SelectWords(
            QStringLiteral("SELECT TOP 10 * FROM Dictionary WHERE Word Like '%1' ORDER BY Word ASC")
                .arg(pattern));
    };
    EXPECT_EQ(like(u"%_%dog"_s), (QStringList{u"bulldog"_s, u"hot dog"_s}));
    EXPECT_EQ(like(u"%_%og%_%"_s), (QStringList{u"dog days"_s, u"Dogma"_s}));
    EXPECT_EQ(like(u"[bc]%"_s), (QStringList{u"bulldog"_s, u"cat"_s}));
    EXPECT_EQ(like(u"d_g"_s), (QStringList{u"dog"_s, u"ＤＯＧ"_s}));
    EXPECT_EQ(like(u"dog"_s), (QStringList{u"dog"_s, u"ＤＯＧ"_s}));
    EXPECT_EQ(like(u""_s), QStringList());
}

TEST_F(StatementRecordset, TextsComeInTheOrderOfTheirNumbers)
{
    FillAnimals();
    EXPECT_EQ(SelectWords(u"SELECT TOP 10 * FROM Dictionary WHERE Description Like '%犬%'"_s),
              (QStringList{u"dog"_s, u"dog days"_s, u"cat"_s}));
    EXPECT_EQ(SelectWords(u"SELECT TOP 2 * FROM Dictionary WHERE Description Like '%犬%'"_s),
              (QStringList{u"dog"_s, u"dog days"_s}));
    EXPECT_EQ(SelectWords(u"SELECT TOP 10 * FROM Dictionary WHERE WordPhrase = 2 AND Example Like '%DOG%'"_s),
              (QStringList{u"dog days"_s}));
    EXPECT_EQ(SelectWords(u"SELECT TOP 10 * FROM Dictionary WHERE Description Like '%ぶるどっぐ%'"_s),
              (QStringList{u"bulldog"_s}));
}

TEST_F(StatementRecordset, CompositeConditionsAreSorted)
{
    FillAnimals();
    EXPECT_EQ(
        SelectWords(u"SELECT TOP 10 * FROM Dictionary WHERE Word Like '%_%' AND Description Like '%犬%' "
                    "ORDER BY Word ASC"_s),
        (QStringList{u"cat"_s, u"dog"_s, u"dog days"_s}));
    EXPECT_EQ(SelectWords(u"SELECT TOP 1 * FROM Dictionary WHERE Word Like '%_%' AND Description Like '%犬%' "
                          "ORDER BY Word ASC"_s),
              (QStringList{u"cat"_s}));
    EXPECT_EQ(
        SelectWords(u"SELECT TOP 10 * FROM Dictionary WHERE Word Like 'd%_%' AND Description Like '%犬%' "
                    "AND Example Like '%over%' ORDER BY Word ASC"_s),
        (QStringList{u"dog days"_s}));
    EXPECT_EQ(SelectWords(u"SELECT TOP 0 * FROM Dictionary WHERE Word Like 'd%'"_s), QStringList());
}

TEST_F(StatementRecordset, EqualHeadwordsAreCutInTheOrderOfTheirNumbers)
{
    Fill({{u"b"_s, u"1"_s, u"x"_s, u""_s},
          {u"Ｂ"_s, u"1"_s, u"x"_s, u""_s},
          {u"a"_s, u"1"_s, u"x"_s, u""_s},
          {u"B"_s, u"1"_s, u"x"_s, u""_s}});
    const std::vector<Entry> expected{{u"a"_s, 3}, {u"b"_s, 1}, {u"Ｂ"_s, 2}};
    EXPECT_EQ(Select(u"SELECT TOP 3 * FROM Dictionary WHERE Word Like '%_' ORDER BY Word ASC"_s), expected);
    EXPECT_EQ(Select(u"SELECT TOP 3 * FROM Dictionary WHERE Word Like '%' AND Description Like '%x%' "
                     "ORDER BY Word ASC"_s),
              expected);
}

TEST_F(StatementRecordset, EqualsFindsTheExactHeadword)
{
    FillAnimals();
    EXPECT_EQ(Select(u"SELECT TOP 1 * FROM Dictionary WHERE Word = 'DOG'"_s),
              (std::vector<Entry>{{u"dog"_s, 1}}));
    EXPECT_EQ(Select(u"SELECT * FROM Dictionary WHERE Word = 'dog'"_s).size(), 2U);
    EXPECT_TRUE(Select(u"SELECT TOP 1 * FROM Dictionary WHERE Word = 'do'"_s).empty());
    EXPECT_EQ(Select(u"SELECT * FROM Dictionary WHERE AutoID = 3"_s), (std::vector<Entry>{{u"Dogma"_s, 3}}));
    EXPECT_TRUE(Select(u"SELECT * FROM Dictionary WHERE AutoID = 3 AND Word Like 'x%'"_s).empty());
    EXPECT_EQ(Select(u"SELECT * FROM Dictionary"_s).size(), 7U);
}

TEST_F(StatementRecordset, AllColumnsCanBeRead)
{
    FillAnimals();
    View view;
    view.connection.Open(ConnectionTo());
    view.rows.Open(
        u"SELECT TOP 9 * FROM Dictionary WHERE WordPhrase = 2 AND Word like 'd%' ORDER BY Word, AutoID ASC"_s,
        view.connection, ADODB::adOpenStatic, -1, -1);
    EXPECT_EQ(view.Current(), (Entry{u"dog days"_s, 4}));
    EXPECT_EQ(view.Value("WordPhrase").toInt(), 2);
    EXPECT_EQ(view.Text("Example"), u"The dog days are over."_s);
    EXPECT_FALSE(view.Value("Pronunciation").isValid());
    view.rows.MoveNext();
    EXPECT_TRUE(view.rows.Eof());
    EXPECT_FALSE(view.rows.Bof());
    EXPECT_EQ(Raised([&] { view.rows.MoveNext(); }), 3021);
    view.rows.MoveFirst();
    EXPECT_EQ(view.Text("Word"), u"dog days"_s);
    EXPECT_EQ(Raised([&] { view.rows.MoveLast(); }), 3251);
    EXPECT_EQ(Raised([&] { view.rows.AddNew(); }), 3251);
    EXPECT_EQ(Raised([&] { view.Set("Word", u"x"_s); }), 3251);
    EXPECT_EQ(Raised([&] { view.rows.Delete(); }), 3251);
}

TEST_F(StatementRecordset, NothingFoundIsAtBothEnds)
{
    FillAnimals();
    ADODB::Connection connection;
    connection.Open(ConnectionTo());
    const auto rows = connection.Execute(u"SELECT TOP 9 * FROM Dictionary WHERE Word Like 'x%'"_s);
    EXPECT_TRUE(rows->Eof());
    EXPECT_TRUE(rows->Bof());
    EXPECT_EQ(Raised([&] { rows->MoveNext(); }), 3021);
}

TEST_F(StatementRecordset, ResumesAfterReleaseAndWrites)
{
    const QStringList statements{
        u"SELECT TOP 100 * FROM Dictionary WHERE Word Like 'w%' ORDER BY Word ASC"_s,
        u"SELECT TOP 100 * FROM Dictionary WHERE Word Like '%w%' ORDER BY Word ASC"_s,
        u"SELECT TOP 100 * FROM Dictionary WHERE Description Like '%w%'"_s,
        u"SELECT TOP 100 * FROM Dictionary WHERE Word Like '%w%' AND Description Like "
        "'%w%' ORDER BY Word ASC"_s};
    QStringList words;
    for (int i = 100; i < 150; ++i)
        words.append(u"w%1"_s.arg(i));
    CreateWith(words);
    const auto writer = OpenTable();
    for (const QString &statement : statements) {
        SCOPED_TRACE(statement.toStdString());
        ADODB::Connection connection;
        connection.Open(ConnectionTo());
        const auto rows = connection.Execute(statement);
        QStringList seen;
        for (; !rows->Eof(); rows->MoveNext()) {
            seen.append(rows->Fields().Item(u"Word"_s).Text());
            // A turn in which an editor writes: it waits for nobody.
            ADODB::ReleaseReads();
            writer->rows.Seek(u"w100"_s, 1, ADODB::adSeekFirstEQ);
            writer->Set("Example", seen.last());
            writer->rows.Update();
        }
        EXPECT_EQ(seen, words);
    }
}

TEST_F(StatementRecordset, RowsThatWentAreLeftOut)
{
    FillAnimals();
    ADODB::Connection connection;
    connection.Open(ConnectionTo());
    const auto rows = connection.Execute(
        u"SELECT TOP 9 * FROM Dictionary WHERE Word Like '%_%' AND Description Like '%犬%' ORDER BY Word ASC"_s);
    EXPECT_EQ(rows->Fields().Item(u"Word"_s).Text(), u"cat"_s);
    const auto writer = OpenTable();
    writer->rows.Seek(u"dog"_s, 1, ADODB::adSeekFirstEQ);
    writer->rows.Delete();
    rows->MoveNext();
    EXPECT_EQ(rows->Fields().Item(u"Word"_s).Text(), u"dog days"_s);
    writer->rows.Seek(u"dog days"_s, 4, ADODB::adSeekFirstEQ);
    writer->rows.Delete();
    EXPECT_EQ(Raised([&] { rows->Fields().Item(u"Description"_s).Text(); }), 3021);
    rows->MoveNext();
    EXPECT_TRUE(rows->Eof());
}

TEST_F(StatementRecordset, InvalidStatementsAreRefused)
{
    FillAnimals();
    ADODB::Connection connection;
    connection.Open(ConnectionTo());
    QStringList told;
    ADODB::EngineHooks().statement = [&told](const QString &statement) { told.append(statement); };
    for (const QString &statement :
         {u"SELECT TOP 5 * FROM Dictionary WHERE Word Like 'a[' ORDER BY Word ASC"_s,
          u"DROP TABLE Dictionary"_s, u"SELECT TOP 1 * FROM Dictionary WHERE Word = 'it's'"_s, u""_s}) {
        try {
            connection.Execute(statement);
            ADD_FAILURE() << statement.toStdString();
        } catch (const RuntimeError &error) {
            EXPECT_EQ(error.number(), RuntimeError::InvalidStatement);
            EXPECT_EQ(error.source(), u"ADODB.Connection"_s);
        }
    }
    EXPECT_EQ(told.size(), 4);
    EXPECT_EQ(All().size(), 7U);
}

} // namespace
