#include "management/pure/record_edits.h"

#include "unit/data/dictionary_fixture.h"

#include <csignal>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace
{

RecordValues Values(const QString &word, const QString &meaning)
{
    return {.word = word, .pronunciation = {}, .wordPhrase = 1, .description = meaning, .example = u""_s};
}

/// A record as the tests compare it.
struct Row {
    QString word, meaning;
    bool operator==(const Row &) const = default;
};
using Rows = std::map<std::int32_t, Row>;

class RecordEdits : public DictionaryTest
{
protected:
    Rows AllRows() const
    {
        Rows rows;
        const auto view = OpenTable();
        for (; !view->rows.Eof(); view->rows.MoveNext())
            rows[KeyOfRow(view->rows).autoID] = {view->Text("Word"), view->Text("Description")};
        return rows;
    }
};

TEST_F(RecordEdits, AddChangeAndDelete)
{
    Create();
    const RecordKey cat = AddRow(OpenTable()->rows, Values(u"cat"_s, u"猫"_s));
    EXPECT_EQ(cat, (RecordKey{u"cat"_s, 1}));
    const auto view = OpenTable();
    const RecordValues stored = ValuesOfRow(view->rows);
    EXPECT_EQ(stored, Values(u"cat"_s, u"猫"_s));
    EXPECT_FALSE(stored.pronunciation.isValid());
    EXPECT_EQ(ChangeRow(view->rows, Values(u"Cat"_s, u"ねこ"_s)), (RecordKey{u"Cat"_s, 1}));
    EXPECT_EQ(AllRows(), (Rows{{1, {u"Cat"_s, u"ねこ"_s}}}));
    DeleteRow(OpenTable()->rows, cat);
    EXPECT_EQ(AllRows(), Rows{});
    EXPECT_THROW(DeleteRow(OpenTable()->rows, cat), RuntimeError);
}

TEST_F(RecordEdits, ReplacingGivesANewNumber)
{
    CreateWith({u"a"_s, u"b"_s});
    EXPECT_EQ(ReplaceRow(OpenTable()->rows, {u"a"_s, 1}, Values(u"c"_s, u"x"_s)), (RecordKey{u"c"_s, 3}));
    EXPECT_EQ(AllRows(), (Rows{{2, {u"b"_s, u"<b>"_s}}, {3, {u"c"_s, u"x"_s}}}));
}

TEST_F(RecordEdits, AFailedReplacementLosesNothing)
{
    CreateWith({u"a"_s, u"b"_s});
    const Rows before = AllRows();
    for (const auto &what : {u"Seek"_s, u"AddNew"_s, u"Update"_s, u"Delete"_s}) {
        const auto view = OpenTable();
        faults::FailNext(what, RuntimeError::CannotOpenDatabase);
        EXPECT_THROW(ReplaceRow(view->rows, {u"a"_s, 1}, Values(u"c"_s, u"x"_s)), RuntimeError)
            << what.toStdString();
        faults::Clear();
        EXPECT_EQ(AllRows(), before) << what.toStdString();
    }
    EXPECT_THROW(ReplaceRow(OpenTable()->rows, {u"gone"_s, 9}, Values(u"c"_s, u"x"_s)), RuntimeError);
    EXPECT_EQ(AllRows(), before);
    const QString tooLong(256, u'w');
    EXPECT_THROW(ReplaceRow(OpenTable()->rows, {u"a"_s, 1}, Values(tooLong, u"x"_s)), RuntimeError);
    EXPECT_EQ(AllRows(), before);
}

/// A user who edits at random, and what the dictionary holds after each edit.
class Editing
{
public:
    Editing(Rows rows, std::int32_t lastNumber, unsigned seed)
        : m_rows(std::move(rows)), m_lastNumber(lastNumber), m_random(seed)
    {
    }

    const Rows &Held() const { return m_rows; }
    /// What may be held in the midst of the last edit, beside the states before and behind it.
    const Rows &Between() const { return m_between; }

    /// Does the next edit; on the table too, where there is one.
    void Step(ADODB::Recordset *table)
    {
        const int kind = m_rows.empty() ? 0 : static_cast<int>(m_random() % 4);
        const QString word = QString::number(m_random() % 50);
        const QString meaning = QString(static_cast<qsizetype>(m_random() % 30'000), u'訳');
        const RecordValues values = Values(word, meaning);
        m_between = m_rows;
        if (kind == 0) {
            m_rows[++m_lastNumber] = {word, meaning};
            if (table)
                AddRow(*table, values);
            return;
        }
        const auto place = std::next(m_rows.begin(), static_cast<std::ptrdiff_t>(m_random() % m_rows.size()));
        const RecordKey key{place->second.word, place->first};
        if (kind == 1) {
            place->second.meaning = meaning;
            if (table) {
                table->Seek(key.word, key.autoID, ADODB::adSeekFirstEQ);
                ChangeRow(*table, Values(key.word, meaning));
            }
        } else if (kind == 2) {
            m_between[m_lastNumber + 1] = {word, meaning};
            m_rows.erase(place);
            m_rows[++m_lastNumber] = {word, meaning};
            if (table)
                ReplaceRow(*table, key, values);
        } else {
            m_rows.erase(place);
            if (table)
                DeleteRow(*table, key);
        }
    }

private:
    Rows m_rows, m_between;
    std::int32_t m_lastNumber;
    std::mt19937 m_random;
};

TEST_F(RecordEdits, SurviveBeingKilled)
{
    CreateWith({u"a"_s, u"b"_s});
    std::mt19937 random(20);
    int edits = 0;
    for (unsigned round = 0; round < 50; ++round) {
        // The numbers go on behind the last one ever given.
        const RecordKey newest = AddRow(OpenTable()->rows, Values(u"new"_s, u""_s));
        Editing editing(AllRows(), newest.autoID, round);
        int channel[2];
        ASSERT_EQ(pipe(channel), 0);
        const pid_t child = fork();
        if (child == 0) {
            for (;;) {
                editing.Step(&OpenTable()->rows);
                if (write(channel[1], "x", 1) != 1)
                    _exit(1);
            }
        }
        close(channel[1]);
        char token = 0;
        ASSERT_EQ(read(channel[0], &token, 1), 1) << "the first edit is done";
        editing.Step(nullptr);
        ++edits;
        usleep(static_cast<useconds_t>(random() % 40'000));
        kill(child, SIGKILL);
        int status = 0;
        waitpid(child, &status, 0);
        EXPECT_TRUE(WIFSIGNALED(status)) << "the edits went well until then";
        while (read(channel[0], &token, 1) == 1) {
            editing.Step(nullptr);
            ++edits;
        }
        close(channel[0]);

        const Rows committed = editing.Held();
        editing.Step(nullptr);
        const Rows held = AllRows();
        EXPECT_TRUE(held == committed || held == editing.Held() || held == editing.Between())
            << "round " << round;
        EXPECT_EQ(AskRaw("PRAGMA quick_check"), "ok");
    }
    EXPECT_GT(edits, 50) << "more than the first one of each round";
}

} // namespace
