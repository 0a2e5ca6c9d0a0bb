#include "platform/data/tree_writer.h"

#include <QtEndian>
#include <algorithm>
#include <string>

namespace data
{

using namespace page_layout;

namespace
{

/// A shorter cell takes that much all the same.
constexpr int kLeastCell = 4;

/// The number of a row as it stands in the cell of a table's leaf.
std::string_view RowNumberIn(std::string_view body)
{
    const auto *const begin = reinterpret_cast<const unsigned char *>(body.data());
    const unsigned char *at = begin;
    TakeNumber(at);
    const std::ptrdiff_t first = at - begin;
    TakeNumber(at);
    return body.substr(static_cast<std::size_t>(first), static_cast<std::size_t>(at - begin - first));
}

} // namespace

TreeWriter::Page::Page(StoredPage::Kind kind)
    : m_kind(kind),
      m_header(kind == StoredPage::Kind::LeafTable || kind == StoredPage::Kind::LeafIndex ? kLeafHeader
                                                                                          : kInnerHeader)
{
    Clear();
}

int TreeWriter::Page::SizeOf(std::string_view body) const
{
    return std::max(static_cast<int>(body.size()) + (IsInner() ? kPageNumberSize : 0), kLeastCell);
}

bool TreeWriter::Page::HasRoomFor(std::string_view body) const
{
    return m_header + (m_cells + 1) * kCellPointerSize + SizeOf(body) <= m_content;
}

void TreeWriter::Page::Add(quint32 child, std::string_view body)
{
    m_content -= SizeOf(body);
    m_lastSize = static_cast<int>(body.size());
    char *at = At(m_content);
    if (IsInner()) {
        qToBigEndian(child, at);
        at += kPageNumberSize;
    }
    std::ranges::copy(body, at);
    qToBigEndian(static_cast<quint16>(m_content), At(m_header + m_cells * kCellPointerSize));
    ++m_cells;
    WriteCounts();
}

std::string_view TreeWriter::Page::LastBody() const
{
    return {m_bytes.data() + m_content + (IsInner() ? kPageNumberSize : 0),
            static_cast<std::size_t>(m_lastSize)};
}

void TreeWriter::Page::TakeLast()
{
    const std::string_view body = LastBody();
    const int size = SizeOf(body);
    if (IsInner())
        SetLastChild(qFromBigEndian<quint32>(At(m_content)));
    // Nothing of what was there stays in a gap.
    std::fill_n(At(m_content), size, '\0');
    m_content += size;
    --m_cells;
    std::fill_n(At(m_header + m_cells * kCellPointerSize), kCellPointerSize, '\0');
    WriteCounts();
}

void TreeWriter::Page::SetLastChild(quint32 child) { qToBigEndian(child, &m_bytes[kLastChildAt]); }

void TreeWriter::Page::Clear()
{
    m_bytes.fill('\0');
    m_bytes.front() = static_cast<char>(m_kind);
    m_cells = 0;
    m_content = kPageSize;
    WriteCounts();
}

void TreeWriter::Page::WriteCounts()
{
    qToBigEndian(static_cast<quint16>(m_cells), &m_bytes[kCellCountAt]);
    qToBigEndian(static_cast<quint16>(m_content), &m_bytes[kContentAt]);
}

void TreeWriter::Finish(quint32 root)
{
    if (m_levels.empty())
        m_levels.emplace_back(KindAt(0));
    quint32 child = 0;
    // Dividing a page may begin one more level.
    for (std::size_t level = 0; level < m_levels.size(); ++level) {
        Page &page = m_levels[level].page;
        if (m_levels[level].isFull)
            DivideFullPage(level);
        if (level > 0)
            page.SetLastChild(child);
        if (level + 1 == m_levels.size())
            m_pages.Replace(root, page.Bytes());
        else
            child = m_pages.Append(page.Bytes());
    }
    m_levels.clear();
}

void TreeWriter::AddTo(std::size_t level, quint32 child, std::string_view body)
{
    if (level == m_levels.size())
        m_levels.emplace_back(KindAt(level));
    Level &here = m_levels[level];
    if (here.isFull) {
        here.isFull = false;
        if (level > 0)
            here.page.SetLastChild(here.childBehind);
        ClosePage(level, here.behind);
    } else if (!here.page.HasRoomFor(body)) {
        if (!m_isTable || level > 0) {
            here.isFull = true;
            here.childBehind = child;
            here.behind = body;
            return;
        }
        // All rows of a table stand in its leaves: above them stands the number of the last row of each.
        const std::string number(RowNumberIn(here.page.LastBody()));
        ClosePage(level, number);
    }
    here.page.Add(child, body);
}

/// Writes the page of a level, with the cell above it that parts it from the next, and begins that.
void TreeWriter::ClosePage(std::size_t level, std::string_view divider)
{
    Page &page = m_levels[level].page;
    const quint32 number = m_pages.Append(page.Bytes());
    page.Clear();
    AddTo(level + 1, number, divider);
}

/// The cell behind a full page is the last one: it gets a page, and the one before it stands above.
void TreeWriter::DivideFullPage(std::size_t level)
{
    Level &here = m_levels[level];
    here.isFull = false;
    const std::string divider(here.page.LastBody());
    here.page.TakeLast();
    ClosePage(level, divider);
    here.page.Add(here.childBehind, here.behind);
}

StoredPage::Kind TreeWriter::KindAt(std::size_t level) const
{
    using Kind = StoredPage::Kind;
    if (level == 0)
        return m_isTable ? Kind::LeafTable : Kind::LeafIndex;
    return m_isTable ? Kind::InnerTable : Kind::InnerIndex;
}

} // namespace data
