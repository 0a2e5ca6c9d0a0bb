#pragma once

#include "platform/data/page_appender.h"
#include "platform/data/schema.h"
#include "platform/data/stored_page.h"

#include <array>
#include <deque>
#include <string>
#include <string_view>

namespace data
{

/// Builds the tree of the table or of the index from its cells in their order, each page as full as it
/// gets, by the layout of SQLite's file.
class TreeWriter
{
public:
    TreeWriter(PageAppender &pages, bool isTable) : m_pages(pages), m_isTable(isTable) {}

    /// Adds a cell as StoredPage::Cell gives its body. Raises what the writing raises.
    void Add(std::string_view body) { AddTo(0, 0, body); }
    /// Writes what there is of the tree; its root takes the place of a page that is there already.
    void Finish(quint32 root);

private:
    /// A page that is being filled.
    class Page
    {
    public:
        explicit Page(StoredPage::Kind kind);

        bool HasRoomFor(std::string_view body) const;
        void Add(quint32 child, std::string_view body);
        std::string_view LastBody() const;
        /// Takes the last cell away; the pages below it become those behind all cells.
        void TakeLast();
        void SetLastChild(quint32 child);
        std::string_view Bytes() const { return {m_bytes.data(), m_bytes.size()}; }
        void Clear();

    private:
        bool IsInner() const { return m_header > page_layout::kLeafHeader; }
        int SizeOf(std::string_view body) const;
        char *At(int offset) { return m_bytes.data() + offset; }
        void WriteCounts();

        StoredPage::Kind m_kind;
        int m_header;
        int m_cells = 0;
        int m_content = kPageSize; ///< where the last cell begins: they lie from the end of the page on
        int m_lastSize = 0;        ///< of the body of the last cell
        std::array<char, kPageSize> m_bytes{};
    };

    /// Pages of the same distance from the leaves: the one that is being filled, and the cell behind it once
    /// it is full. In the tree that cell stands above, between the page and the next; but not before it is
    /// known that there is a next, for no page may stay without a cell.
    struct Level {
        explicit Level(StoredPage::Kind kind) : page(kind) {}

        Page page;
        bool isFull = false;
        quint32 childBehind = 0;
        std::string behind;
    };

    void AddTo(std::size_t level, quint32 child, std::string_view body);
    void ClosePage(std::size_t level, std::string_view divider);
    void DivideFullPage(std::size_t level);
    StoredPage::Kind KindAt(std::size_t level) const;

    PageAppender &m_pages;
    bool m_isTable;
    std::deque<Level> m_levels; ///< from the leaves up
};

} // namespace data
