#pragma once

#include "platform/data/prepared.h"
#include "platform/data/schema.h"
#include "platform/data/session.h"

#include <array>
#include <string_view>
#include <vector>

struct sqlite3_file;

namespace data
{

/// Walks the pages that hold the table's rows, in the order of AutoID, by the layout of SQLite's file
/// and past its row machinery: a page whose bytes hold nothing of interest need not be taken apart.
/// It only reads, under the lock of the session's read transaction, and believes nothing that it reads:
/// what looks wrong ends the walk, and whoever reads the rest through SQLite gets the failure from there.
class LeafWalk
{
public:
    explicit LeafWalk(Session &session) : m_session(session) {}

    /// Goes to the page where the first row behind the number would stand. False where the pages cannot
    /// be walked: within a write transaction, or in a file laid out in another way.
    bool Seek(qint64 behind);
    /// Goes to the next page; false behind the last, or where the walk cannot go on.
    bool Next();
    /// Whether the walk came to the end of the table; otherwise rows may follow behind LastID.
    bool IsAtEnd() const { return m_isAtEnd; }

    /// The greatest number that a row of this page can have; that of the last page is the greatest of all.
    qint64 LastID() const { return m_lastID; }
    /// The bytes of the page, until the next call; empty where a row runs on in further pages, or where
    /// that cannot be told.
    std::string_view Bytes() const;

private:
    /// Behind the page's bytes stand zeros enough for a cell that claims to go on there.
    static constexpr std::size_t kPadding = 16;
    using Page = std::array<unsigned char, kPageSize + kPadding>;
    /// An inner page and the child that the walk is in.
    struct Level {
        Page page;
        int cells = 0;
        int child = 0;
        qint64 bound = 0; ///< the greatest number below this page
    };

    bool ReadRoot();
    bool ReadPage(quint32 number, Page &page) const;
    bool Descend(quint32 number, qint64 bound, qint64 behind);
    static bool CellAt(const Page &page, int header, int cell, int &offset);
    static bool InnerCell(const Page &page, int cell, quint32 &child, qint64 &key);
    static int FirstChildBehind(const Level &level, qint64 behind);
    static bool ChildOf(const Level &level, quint32 &number, qint64 &bound);
    bool HoldsWholeRows() const;

    Session &m_session;
    Prepared m_rootQuery;
    sqlite3_file *m_file = nullptr;
    quint32 m_root = 0;
    quint32 m_pages = 0;
    std::vector<Level> m_levels; ///< from the root down
    std::size_t m_depth = 0;     ///< of the levels in use
    qint64 m_lastID = 0;
    bool m_isAtEnd = false;
    Page m_bytes{};
};

} // namespace data
