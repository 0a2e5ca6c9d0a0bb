// All kinds of searches on made-up dictionaries against a matcher that knows nothing of plans.

#include "platform/text/fold.h"
#include "unit/data/dictionary_fixture.h"

#include <algorithm>
#include <array>
#include <random>
#include <set>

using namespace Qt::StringLiterals;

namespace
{

struct Row {
    int autoID = 0;
    QString word;
    int wordPhrase = 1;
    QString description; ///< null for none
    QString example;
};

/// What a pattern says, read by itself.
class Reference
{
public:
    explicit Reference(const QString &pattern)
    {
        QString literal;
        const auto flush = [&] {
            for (const char32_t c : text::Fold(literal).folded)
                m_steps.push_back({Step::Character, false, {{text::WeightOf(c), text::WeightOf(c)}}});
            literal.clear();
        };
        for (qsizetype at = 0; at < pattern.size(); ++at) {
            if (pattern[at] == u'%' || pattern[at] == u'_') {
                flush();
                m_steps.push_back({pattern[at] == u'%' ? Step::Run : Step::Character, true, {}});
            } else if (pattern[at] == u'[') {
                flush();
                const qsizetype end = pattern.indexOf(u']', at);
                m_steps.push_back(ClassOf(pattern.mid(at + 1, end - at - 1)));
                at = end;
            } else {
                literal.append(pattern[at]);
            }
        }
        flush();
    }

    /// Goes through the text with all places that the pattern may have come to.
    bool Matches(const QString &value) const
    {
        if (value.isNull())
            return false;
        std::vector<bool> places(m_steps.size() + 1, false);
        places[0] = true;
        SkipRuns(places);
        for (const char32_t c : text::Fold(value).folded) {
            std::vector<bool> next(places.size(), false);
            for (std::size_t i = 0; i < m_steps.size(); ++i) {
                if (!places[i])
                    continue;
                if (m_steps[i].kind == Step::Run)
                    next[i] = true;
                else if (m_steps[i].Holds(text::WeightOf(c)))
                    next[i + 1] = true;
            }
            places = std::move(next);
            SkipRuns(places);
        }
        return places.back();
    }

private:
    struct Step {
        enum Kind { Character, Run };
        Kind kind;
        bool isNegated; ///< of no ranges: any character
        std::vector<std::pair<quint32, quint32>> ranges;

        bool Holds(quint32 weight) const
        {
            return isNegated != std::ranges::any_of(ranges, [weight](const auto &range) {
                       return range.first <= weight && weight <= range.second;
                   });
        }
    };

    static Step ClassOf(const QString &members)
    {
        Step step{Step::Character, members.startsWith(u'!') || members.startsWith(u'^'), {}};
        const std::u32string folded = text::Fold(members.mid(step.isNegated ? 1 : 0)).folded;
        if (folded.size() == 3 && folded[1] == U'-') {
            step.ranges.emplace_back(text::WeightOf(folded[0]), text::WeightOf(folded[2]));
            return step;
        }
        for (const char32_t c : folded)
            step.ranges.emplace_back(text::WeightOf(c), text::WeightOf(c));
        return step;
    }

    void SkipRuns(std::vector<bool> &places) const
    {
        for (std::size_t i = 0; i < m_steps.size(); ++i)
            if (places[i] && m_steps[i].kind == Step::Run)
                places[i + 1] = true;
    }

    std::vector<Step> m_steps;
};

/// A search: its statement, and which rows it finds.
struct Search {
    QString statement;
    int top = 0;
    int wordPhrase = 0;
    std::optional<Reference> word;
    std::optional<Reference> description;
    std::optional<Reference> example;
    bool byWord = true;

    bool Finds(const Row &row) const
    {
        return (wordPhrase == 0 || row.wordPhrase == wordPhrase) && (!word || word->Matches(row.word)) &&
               (!description || description->Matches(row.description)) &&
               (!example || example->Matches(row.example));
    }

    bool IsBefore(const Row &left, const Row &right) const
    {
        const int order = byWord ? text::Compare(left.word, right.word) : 0;
        return order != 0 ? order < 0 : left.autoID < right.autoID;
    }

    std::vector<Entry> Among(const std::vector<Row> &rows) const
    {
        std::vector<Row> found;
        std::ranges::copy_if(rows, std::back_inserter(found), [this](const Row &row) { return Finds(row); });
        std::ranges::sort(found, [this](const Row &a, const Row &b) { return IsBefore(a, b); });
        if (found.size() > static_cast<std::size_t>(top))
            found.resize(static_cast<std::size_t>(top));
        std::vector<Entry> entries;
        entries.reserve(found.size());
        for (const Row &row : found)
            entries.push_back({row.word, row.autoID});
        return entries;
    }
};

class Maker
{
public:
    explicit Maker(unsigned seed) : m_random(seed) {}

    int Below(int count) { return static_cast<int>(m_random() % static_cast<unsigned>(count)); }
    bool OneIn(int count) { return Below(count) == 0; }

    /// Characters in many forms, so few that texts and patterns often meet.
    QString Text(int pieces)
    {
        static const QStringList alphabet{
            u"a"_s,  u"b"_s,  u"c"_s,  u"A"_s,  u"Ｂ"_s, u"ｃ"_s, u"か"_s, u"カ"_s, u"ｶ"_s,  u"が"_s,
            u"ｶﾞ"_s, u"パ"_s, u"ﾊﾟ"_s, u"ﾊ"_s,  u"ﾞ"_s,  u"犬"_s, u"猫"_s, u" "_s,  u"　"_s, u"-"_s,
            u"'"_s,  u"%"_s,  u"_"_s,  u"１"_s, u"é"_s,  u"😀"_s,  u"ー"_s, u"k"_s,  u"K"_s,  u"！"_s};
        QString text = u""_s;
        for (int i = 0; i < pieces; ++i)
            text.append(alphabet[Below(static_cast<int>(alphabet.size()))]);
        return text;
    }

    QString LongText()
    {
        switch (Below(40)) {
        case 0: return {};
        case 1: return u""_s;
        // Longer than a page.
        case 2: return Text(7000) + u"zq"_s + Text(4);
        case 3: return Text(300);
        case 4: return Text(6) + u"zq"_s;
        default: return Text(1 + Below(20));
        }
    }

    Row NewRow(int autoID)
    {
        const QString word = Text(1 + Below(6));
        return {autoID, OneIn(60) ? word + u"zq"_s : word, 1 + Below(2), LongText(),
                OneIn(3) ? LongText() : QString()};
    }

    Search NewSearch()
    {
        constexpr std::array tops{1, 2, 7, 100, 32767, 32767};
        Search search;
        search.top = tops.at(static_cast<std::size_t>(Below(tops.size())));
        QStringList conditions;
        if (const int target = Below(3); target != 0) {
            search.wordPhrase = target;
            conditions.append(u"WordPhrase = %1"_s.arg(target));
        }
        const auto like = [&conditions](const QString &column, const QString &pattern) {
            conditions.append(u"%1 Like '%2'"_s.arg(column, QString(pattern).replace(u'\'', u"''"_s)));
            return Reference(pattern);
        };
        const int mode = 1 + Below(7);
        switch (mode) {
        case 4: search.description = like(u"Description"_s, u"%%1%"_s.arg(Sought())); break;
        case 5: search.example = like(u"Example"_s, u"%%1%"_s.arg(Sought())); break;
        default: search.word = like(u"Word"_s, WordPattern(mode));
        }
        search.byWord = search.word.has_value();
        if (search.byWord) {
            const int composite = Below(4);
            if ((composite & 1) != 0)
                search.description = like(u"Description"_s, u"%%1%"_s.arg(Sought()));
            if ((composite & 2) != 0)
                search.example = like(u"Example"_s, u"%%1%"_s.arg(Sought()));
        }
        search.statement =
            u"SELECT TOP %1 * FROM Dictionary WHERE %2"_s.arg(search.top).arg(conditions.join(u" AND "_s));
        if (search.byWord)
            search.statement += OneIn(2) ? u" ORDER BY Word ASC"_s : u" ORDER BY Word, AutoID ASC"_s;
        return search;
    }

private:
    static QString Escaped(QString text)
    {
        text.replace(u"_"_s, u"\v"_s).replace(u"%"_s, u"[%]"_s);
        return text.replace(u"\v"_s, u"[_]"_s);
    }

    QString Sought() { return OneIn(5) ? u"zq"_s : Escaped(Text(1 + Below(3))); }

    QString WordPattern(int mode)
    {
        switch (mode) {
        case 1: return Sought() + u"%_%"_s;
        case 2: return u"%_%"_s + Sought() + u"%_%"_s;
        case 3: return u"%_%"_s + Sought();
        case 7: return Sought() + u"%"_s;
        default: break;
        }
        static const QStringList wild{u"%"_s,     u"%"_s,     u"_"_s,       u"[ab]"_s, u"[!ab]"_s,
                                      u"[^か]"_s, u"[a-c]"_s, u"[か-コ]"_s, u"[%]"_s,  u"[[]"_s};
        QString pattern = u""_s;
        for (int i = 1 + Below(5); i > 0; --i)
            pattern += OneIn(2) ? wild[Below(static_cast<int>(wild.size()))] : Text(1);
        return pattern;
    }

    std::mt19937 m_random;
};

class SearchProperty : public DictionaryTest
{
protected:
    std::vector<Row> Fill(int count, Maker &maker) const
    {
        std::vector<Row> rows;
        Create();
        const auto view = OpenBulk();
        for (int i = 1; i <= count; ++i) {
            rows.push_back(maker.NewRow(i));
            Add(*view, rows.back());
        }
        view->rows.Close();
        return rows;
    }

    static void Add(View &view, const Row &row)
    {
        view.rows.AddNew();
        Put(view, row);
    }

    /// Writes the row that stands in the view.
    static void Put(View &view, const Row &row)
    {
        const auto orNull = [](const QString &text) { return text.isNull() ? QVariant() : QVariant(text); };
        view.Set("Word", row.word);
        view.Set("WordPhrase", row.wordPhrase);
        view.Set("Description", orNull(row.description));
        view.Set("Example", orNull(row.example));
        view.rows.Update();
    }

    std::vector<Entry> Found(const Search &search, bool releases) const
    {
        ADODB::Connection connection;
        connection.Open(ConnectionTo());
        const auto rows = connection.Execute(search.statement);
        std::vector<Entry> entries;
        for (; !rows->Eof(); rows->MoveNext()) {
            entries.push_back(
                {rows->Fields().Item(u"Word"_s).Text(), rows->Fields().Item(u"AutoID"_s).Value().toInt()});
            if (releases)
                ADODB::ReleaseReads();
        }
        return entries;
    }

    /// Takes out one row of three, from the middle of pages, and changes and adds some.
    void Rework(std::vector<Row> &rows, Maker &maker) const
    {
        const auto view = OpenTable();
        for (Row &row : rows) {
            const int kind = maker.Below(6);
            if (kind > 2)
                continue;
            view->rows.Seek(row.word, row.autoID, ADODB::adSeekFirstEQ);
            if (kind < 2) {
                view->rows.Delete();
                row.autoID = 0;
            } else {
                const int autoID = row.autoID;
                row = maker.NewRow(autoID);
                Put(*view, row);
            }
        }
        std::erase_if(rows, [](const Row &row) { return row.autoID == 0; });
        for (std::size_t i = rows.size() / 5; i > 0; --i) {
            Row added = maker.NewRow(0);
            Add(*view, added);
            added.autoID = view->Current().autoID;
            rows.push_back(added);
        }
    }

    void Compare(const std::vector<Row> &rows, int searches, Maker &maker) const
    {
        int found = 0;
        for (int i = 0; i < searches; ++i) {
            const Search search = maker.NewSearch();
            SCOPED_TRACE(search.statement.toStdString());
            const std::vector<Entry> expected = search.Among(rows);
            found += expected.empty() ? 0 : 1;
            ASSERT_EQ(Found(search, false), expected);
            if (i % 4 == 0) {
                ASSERT_EQ(Found(search, true), expected);
            }
        }
        EXPECT_GT(found, searches / 10);
        EXPECT_LT(found, searches);
    }

    void Compare(int rowCount, int searches, unsigned seed) const
    {
        Maker maker(seed);
        const std::vector<Row> rows = Fill(rowCount, maker);
        Compare(rows, searches, maker);
    }
};

TEST_F(SearchProperty, FewRows) { Compare(60, 3000, 1); }

TEST_F(SearchProperty, ManyPages) { Compare(900, 1000, 2); }

// So many that walking the index with look-ups gives way to a scan of the table.
TEST_F(SearchProperty, MoreRowsThanLookUps) { Compare(6000, 60, 3); }

TEST_F(SearchProperty, PagesWithGaps)
{
    Maker maker(5);
    std::vector<Row> rows = Fill(1500, maker);
    for (int round = 0; round < 3; ++round) {
        Rework(rows, maker);
        Compare(rows, 200, maker);
    }
}

// Where the pages cannot be walked past SQLite.
TEST_F(SearchProperty, FilesLaidOutInAnotherWay)
{
    Maker maker(6);
    const std::vector<Row> rows = Fill(700, maker);
    RunRaw("PRAGMA journal_mode = WAL");
    Compare(rows, 300, maker);
}

TEST_F(SearchProperty, OthersWriteBetweenRows)
{
    Maker maker(4);
    std::vector<Row> rows = Fill(500, maker);
    for (int i = 0; i < 60; ++i) {
        Search search = maker.NewSearch();
        if (search.top < 32767)
            continue;
        SCOPED_TRACE(search.statement.toStdString());
        const std::vector<Row> before = rows;
        std::set<int> gone;
        std::vector<Row> seen;
        ADODB::Connection connection;
        connection.Open(ConnectionTo());
        const auto found = connection.Execute(search.statement);
        for (; !found->Eof(); found->MoveNext()) {
            const int autoID = found->Fields().Item(u"AutoID"_s).Value().toInt();
            const auto row = std::ranges::find(rows, autoID, &Row::autoID);
            ASSERT_NE(row, rows.end()) << autoID;
            EXPECT_EQ(found->Fields().Item(u"Word"_s).Text(), row->word);
            EXPECT_TRUE(search.Finds(*row));
            if (!seen.empty()) {
                EXPECT_TRUE(search.IsBefore(seen.back(), *row)) << autoID;
            }
            seen.push_back(*row);
            ADODB::ReleaseReads();
            if (!maker.OneIn(8))
                continue;
            const auto writer = OpenTable();
            if (maker.OneIn(2)) {
                const Row &lost = rows[static_cast<std::size_t>(maker.Below(static_cast<int>(rows.size())))];
                writer->rows.Seek(lost.word, lost.autoID, ADODB::adSeekFirstEQ);
                writer->rows.Delete();
                gone.insert(lost.autoID);
                std::erase_if(rows, [id = lost.autoID](const Row &r) { return r.autoID == id; });
            } else {
                Row added = maker.NewRow(0);
                Add(*writer, added);
                added.autoID = writer->Current().autoID;
                rows.push_back(added);
            }
        }
        for (const Row &row : before)
            if (search.Finds(row) && !gone.contains(row.autoID)) {
                EXPECT_NE(std::ranges::find(seen, row.autoID, &Row::autoID), seen.end()) << row.autoID;
            }
    }
}

// A table of more pages than one inner page has room for.
TEST_F(SearchProperty, RareRowsInATreeOfSeveralLevels)
{
    Create();
    constexpr int count = 80000;
    const QString common = u"ありふれた意味 "_s.repeated(24);
    std::vector<Entry> expected;
    const auto view = OpenBulk();
    for (int i = 1; i <= count; ++i) {
        const bool isRare = i == 1 || i == count || i % 7001 == 0;
        const QString word = u"w%1"_s.arg(i);
        if (isRare)
            expected.push_back({word, i});
        Add(*view, {i, word, 1, isRare ? common + u"珍品"_s : common, {}});
    }
    view->rows.Close();
    ASSERT_GT(QFile(Host()).size(), 40'000'000);
    Search search;
    search.statement = u"SELECT TOP 32767 * FROM Dictionary WHERE Description Like '%珍品%'"_s;
    EXPECT_EQ(Found(search, false), expected);
    EXPECT_EQ(Found(search, true), expected);
    search.statement = u"SELECT TOP 32767 * FROM Dictionary WHERE Description Like '%ありふれた%'"_s;
    EXPECT_EQ(Found(search, false).size(), 32767U);
    search.statement = u"SELECT TOP 32767 * FROM Dictionary WHERE Description Like '%珍味%'"_s;
    EXPECT_TRUE(Found(search, false).empty());
}

// Headwords so long that inner pages of the index have room for few; every one of them stands somewhere
// in the tree once, some in its inner pages.
TEST_F(SearchProperty, IndexOfSeveralLevels)
{
    Create();
    constexpr int count = 9000;
    std::vector<Entry> all;
    std::vector<Entry> rare;
    const auto view = OpenBulk();
    for (int i = 1; i <= count; ++i) {
        const bool isRare = i == 1 || i == count || i % 701 == 0;
        const QString word =
            u"見%1"_s.arg(i, 6, 10, QChar(u'0')) + u"出し語"_s.repeated(80) + (isRare ? u"珍"_s : u""_s);
        all.push_back({word, i});
        if (isRare)
            rare.push_back(all.back());
        Add(*view, {i, word, 1 + i % 2, u"意味"_s, {}});
    }
    view->rows.Close();
    Search search;
    search.statement = u"SELECT TOP 32767 * FROM Dictionary WHERE Word Like '%出し%' ORDER BY Word ASC"_s;
    EXPECT_EQ(Found(search, false), all);
    EXPECT_EQ(Found(search, true), all);
    search.statement = u"SELECT TOP 32767 * FROM Dictionary WHERE Word Like '%珍' ORDER BY Word ASC"_s;
    EXPECT_EQ(Found(search, false), rare);
    EXPECT_EQ(Found(search, true), rare);
}

// Rows with one headword fill many pages of the index: only their numbers tell them apart.
TEST_F(SearchProperty, EqualHeadwords)
{
    Create();
    constexpr int count = 5000;
    std::vector<Entry> all;
    const auto view = OpenBulk();
    for (int i = 1; i <= count; ++i) {
        all.push_back({i % 2 == 0 ? u"Same"_s : u"ｓａｍｅ"_s, i});
        Add(*view, {i, all.back().word, 1, {}, {}});
    }
    view->rows.Close();
    Search search;
    search.statement = u"SELECT TOP 32767 * FROM Dictionary WHERE Word Like '%am%' ORDER BY Word ASC"_s;
    EXPECT_EQ(Found(search, false), all);
    EXPECT_EQ(Found(search, true), all);
}

// Values that this program does not write, but that SQLite keeps: they end the way past SQLite, and
// nothing is lost or found twice.
TEST_F(SearchProperty, ForeignValues)
{
    CreateWith({u"a1"_s, u"b1"_s, u"o1"_s, u"z1"_s});
    RunRaw("INSERT INTO Dictionary(Word, Description) VALUES(printf('m%.*c1', 5000, 'm'), 'long')");
    RunRaw("INSERT INTO Dictionary(Word, WordPhrase, Description) VALUES('n1', 'text', 'foreign')");
    RunRaw("INSERT INTO Dictionary(Word, WordPhrase, Description) VALUES('p1', 1.5, x'666f726569676e')");
    const auto numbers = [this](const QString &condition, bool releases) {
        Search search;
        search.statement = u"SELECT TOP 99 * FROM Dictionary WHERE "_s + condition;
        std::vector<int> found;
        for (const Entry &entry : Found(search, releases))
            found.push_back(entry.autoID);
        return found;
    };
    for (const bool releases : {false, true}) {
        EXPECT_EQ(numbers(u"Word Like '%1' ORDER BY Word ASC"_s, releases),
                  (std::vector{1, 2, 5, 6, 3, 7, 4}));
        EXPECT_EQ(numbers(u"Description Like '%foreign%'"_s, releases), (std::vector{6, 7}));
        EXPECT_EQ(numbers(u"Description Like '%long%'"_s, releases), (std::vector{5}));
        EXPECT_EQ(numbers(u"Word Like '%m1' AND Description Like '%n%' ORDER BY Word ASC"_s, releases),
                  (std::vector{5}));
    }
}

} // namespace
