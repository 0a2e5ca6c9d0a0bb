#pragma once

#include "platform/data/prepared.h"
#include "platform/data/session.h"
#include "platform/data/stored_page.h"

#include <functional>
#include <optional>
#include <vector>

struct sqlite3_file;

namespace data
{

/// Walks the tree of the table or of the index by the layout of SQLite's file and past its row machinery:
/// a page whose bytes hold nothing of interest need not be taken apart. It stops at each leaf, and in an
/// index at each single cell that stands between two leaves, so that the cells of all stops are the tree's
/// rows in their order. It only reads, under the lock of the session's read transaction, and believes
/// nothing that it reads: what looks wrong ends the walk, and whoever reads the rest through SQLite gets
/// the failure from there.
class TreeWalk
{
public:
    enum class Tree { Table, Index };
    /// Whether a cell's row stands behind the place that is sought; nothing where that cannot be told.
    using IsBehind = std::function<std::optional<bool>(const StoredPage::Cell &)>;

    TreeWalk(Session &session, Tree tree) : m_session(session), m_isTable(tree == Tree::Table) {}

    /// Goes to the leaf where the first row behind a place would stand; FirstCell is that row's. False
    /// where the pages cannot be walked: within a write transaction, or in a file laid out in another way.
    bool Seek(const IsBehind &isBehind);
    /// Whether nobody has written since Seek, so that the walk goes on under a new read transaction.
    bool StillStands();
    /// Reads a page in which a record runs on; false where it cannot, or the pages lead in circles.
    bool ReadRest(quint32 number, StoredPage &page) { return ReadPage(number, page); }
    /// Goes to the next stop; false behind the last, or where the walk cannot go on.
    bool Next();
    /// Whether the walk came to the end of the tree; otherwise rows may follow.
    bool IsAtEnd() const { return m_isAtEnd; }

    /// The stop, until the next call: a page, and its cells that count.
    const StoredPage &Page() const { return m_onLeaf ? m_leaf : m_levels[m_depth - 1].page; }
    int FirstCell() const { return m_firstCell; }
    int EndCell() const { return m_endCell; }

private:
    /// An inner page and the child that the walk is in.
    struct Level {
        StoredPage page;
        int cells = 0;
        int child = 0;
    };
    /// What of the file's header the walk depends on.
    struct FileState {
        quint32 root = 0;
        quint32 pages = 0;
        quint32 changes = 0; ///< counted by each transaction that wrote

        bool operator==(const FileState &) const = default;
    };

    bool ReadState(FileState &state);
    bool ReadPage(quint32 number, StoredPage &page);
    bool Descend(quint32 number, const IsBehind &isBehind);
    static bool FirstBehind(const StoredPage &page, const IsBehind &isBehind, int &first);
    static bool ChildOf(const Level &level, quint32 &number);

    Session &m_session;
    bool m_isTable;
    Prepared m_rootQuery;
    sqlite3_file *m_file = nullptr;
    FileState m_state;
    std::vector<bool> m_seen;    ///< pages read since Seek, by number: none twice, or they lead in circles
    std::vector<Level> m_levels; ///< from the root down
    std::size_t m_depth = 0;     ///< of the levels in use
    StoredPage m_leaf;
    bool m_onLeaf = false;
    bool m_isAtEnd = false;
    int m_firstCell = 0;
    int m_endCell = 0;
};

} // namespace data
