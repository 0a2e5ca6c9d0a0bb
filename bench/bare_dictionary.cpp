#include "bare_dictionary.h"

#include "platform/text/fold.h"

#include <QByteArray>
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <limits>
#include <sqlite3.h>
#include <string_view>

namespace bench
{

namespace
{

int CompareWords(void * /*unused*/, int leftSize, const void *left, int rightSize, const void *right)
{
    return text::CompareUtf8({static_cast<const char *>(left), static_cast<std::size_t>(leftSize)},
                             {static_cast<const char *>(right), static_cast<std::size_t>(rightSize)});
}

void Check(int code)
{
    if (code != SQLITE_OK)
        std::abort();
}

sqlite3 *Open(const QString &path, int flags)
{
    sqlite3 *database = nullptr;
    Check(sqlite3_open_v2(path.toUtf8().constData(), &database, flags | SQLITE_OPEN_NOMUTEX, nullptr));
    Check(sqlite3_create_collation(database, "WORDMERE", SQLITE_UTF8, nullptr, CompareWords));
    return database;
}

void Run(sqlite3 *database, const char *sql)
{
    Check(sqlite3_exec(database, sql, nullptr, nullptr, nullptr));
}

sqlite3_stmt *Prepare(sqlite3 *database, const char *sql)
{
    sqlite3_stmt *statement = nullptr;
    Check(sqlite3_prepare_v2(database, sql, -1, &statement, nullptr));
    return statement;
}

void Bind(sqlite3_stmt *statement, int parameter, std::string_view text)
{
    Check(sqlite3_bind_text64(statement, parameter, text.data(), text.size(), SQLITE_TRANSIENT, SQLITE_UTF8));
}

std::string_view Text(sqlite3_stmt *statement, int column)
{
    const void *bytes = sqlite3_column_blob(statement, column);
    return {static_cast<const char *>(bytes),
            static_cast<std::size_t>(sqlite3_column_bytes(statement, column))};
}

constexpr char kEqualForward[] = "SELECT Word, AutoID, WordPhrase FROM Dictionary INDEXED BY WordID "
                                 "WHERE Word = ?1 AND AutoID > ?2 ORDER BY AutoID";
constexpr char kForward[] = "SELECT Word, AutoID, WordPhrase FROM Dictionary INDEXED BY WordID "
                            "WHERE Word > ?1 ORDER BY Word, AutoID";
constexpr char kEqualBackward[] = "SELECT Word, AutoID, WordPhrase FROM Dictionary INDEXED BY WordID "
                                  "WHERE Word = ?1 AND AutoID <= ?2 ORDER BY AutoID DESC";
constexpr char kBackward[] = "SELECT Word, AutoID, WordPhrase FROM Dictionary INDEXED BY WordID "
                             "WHERE Word < ?1 ORDER BY Word DESC, AutoID DESC";
constexpr char kWhole[] = "SELECT Word, Pronunciation, WordPhrase, Description, Example FROM Dictionary "
                          "WHERE AutoID = ?1";

/// Runs the equal range, then the other, until `take` has enough.
template <typename Take>
void Walk(sqlite3_stmt *equal, sqlite3_stmt *other, const std::string &word, qint64 autoID, Take take)
{
    Bind(equal, 1, word);
    Check(sqlite3_bind_int64(equal, 2, autoID));
    while (sqlite3_step(equal) == SQLITE_ROW)
        if (!take(equal))
            return;
    Bind(other, 1, word);
    while (sqlite3_step(other) == SQLITE_ROW)
        if (!take(other))
            return;
}

} // namespace

std::size_t BareIncrementalStep(const QString &path, const std::string &word)
{
    sqlite3 *database = Open(path, SQLITE_OPEN_READWRITE);
    Run(database, "BEGIN");
    sqlite3_stmt *equalForward = Prepare(database, kEqualForward);
    sqlite3_stmt *forward = Prepare(database, kForward);
    sqlite3_stmt *equalBackward = Prepare(database, kEqualBackward);
    sqlite3_stmt *backward = Prepare(database, kBackward);
    sqlite3_stmt *whole = Prepare(database, kWhole);

    std::size_t bytes = 0;
    std::string place;
    qint64 placeID = 0;
    const auto stand = [&](sqlite3_stmt *statement) {
        place = Text(statement, 0);
        placeID = sqlite3_column_int64(statement, 1);
        return false;
    };
    Walk(equalForward, forward, {}, std::numeric_limits<qint64>::min(), stand);
    bytes += place.size();
    sqlite3_reset(equalForward);
    sqlite3_reset(forward);
    Walk(equalBackward, backward, word, 0, stand);
    int count = 0;
    Walk(equalForward, forward, place, placeID, [&](sqlite3_stmt *statement) {
        bytes += Text(statement, 0).size();
        if (count < 15) {
            Check(sqlite3_bind_int64(whole, 1, sqlite3_column_int64(statement, 1)));
            if (sqlite3_step(whole) == SQLITE_ROW)
                for (int column = 0; column < 5; ++column)
                    bytes += Text(whole, column).size();
            sqlite3_reset(whole);
        }
        return ++count < 50;
    });
    for (sqlite3_stmt *statement : {equalForward, forward, equalBackward, backward, whole})
        sqlite3_finalize(statement);
    Run(database, "COMMIT");
    sqlite3_close(database);
    return bytes;
}

BareLoader::BareLoader(const QString &path)
    : m_database(Open(path, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE))
{
    Run(m_database,
        "PRAGMA page_size = 16384; PRAGMA journal_mode = TRUNCATE;"
        "CREATE TABLE Dictionary(Word TEXT NOT NULL COLLATE WORDMERE, Pronunciation TEXT, "
        "WordPhrase INTEGER, Description TEXT, Example TEXT, AutoID INTEGER PRIMARY KEY AUTOINCREMENT)");
    m_insert = Prepare(
        m_database,
        "INSERT INTO Dictionary(Word, Pronunciation, WordPhrase, Description, Example) VALUES(?,?,?,?,?)");
    Run(m_database, "BEGIN");
}

BareLoader::~BareLoader() { sqlite3_close_v2(m_database); }

void BareLoader::Add(std::span<const GeneratedRow> rows)
{
    using Clock = std::chrono::steady_clock;
    Clock::time_point groupEnd = Clock::now() + std::chrono::milliseconds(250);
    for (const GeneratedRow &row : rows) {
        Bind(m_insert, 1, row.word.toStdString());
        Bind(m_insert, 2, row.pronunciation.toStdString());
        Check(sqlite3_bind_int(m_insert, 3, row.wordPhrase));
        Bind(m_insert, 4, row.description.toStdString());
        Bind(m_insert, 5, row.example.toStdString());
        if (sqlite3_step(m_insert) != SQLITE_DONE)
            std::abort();
        sqlite3_reset(m_insert);
        if (Clock::now() >= groupEnd) {
            Run(m_database, "COMMIT; BEGIN");
            groupEnd = Clock::now() + std::chrono::milliseconds(250);
        }
    }
}

void BareLoader::Finish()
{
    Run(m_database, "COMMIT");
    sqlite3_finalize(m_insert);
    Run(m_database, "CREATE UNIQUE INDEX WordID ON Dictionary(Word, AutoID, WordPhrase)");
}

void BareLoad(const QString &path, std::span<const GeneratedRow> rows)
{
    BareLoader loader(path);
    loader.Add(rows);
    loader.Finish();
}

void BareIndexScan(const QString &path)
{
    sqlite3 *database = Open(path, SQLITE_OPEN_READONLY);
    const auto passNone = [](sqlite3_context *context, int /*count*/, sqlite3_value ** /*values*/) {
        sqlite3_result_int(context, 0);
    };
    Check(sqlite3_create_function(database, "PassNone", 1, SQLITE_UTF8, nullptr, passNone, nullptr, nullptr));
    sqlite3_stmt *scan =
        Prepare(database, "SELECT Word, AutoID, WordPhrase FROM Dictionary INDEXED BY WordID "
                          "WHERE PassNone(Word) ORDER BY Word, AutoID");
    if (sqlite3_step(scan) != SQLITE_DONE)
        std::abort();
    sqlite3_finalize(scan);
    sqlite3_close(database);
}

void BareWriteColumn(const QString &path, const char *column, const QString &flatPath)
{
    sqlite3 *database = Open(path, SQLITE_OPEN_READONLY);
    const std::string sql = std::string("SELECT ") + column + " FROM Dictionary NOT INDEXED ORDER BY AutoID";
    sqlite3_stmt *rows = Prepare(database, sql.c_str());
    std::ofstream flat(flatPath.toStdString(), std::ios::binary);
    while (sqlite3_step(rows) == SQLITE_ROW)
        flat << Text(rows, 0) << '\n';
    sqlite3_finalize(rows);
    sqlite3_close(database);
    if (!flat.flush())
        std::abort();
}

} // namespace bench
