#include "platform/data/index_scan.h"

namespace data
{

IndexScan::IndexScan(Session &session, RowTests tests, int range, RowReader &reader)
    : m_filter(std::move(tests), range), m_isWhole(range < 0),
      m_pages(session, TreeWalk::Tree::Index, m_filter.Tests(), reader), m_walk(session, &m_filter),
      m_isInPages(m_isWhole), m_entry{.word = m_filter.RangeStart()}
{
}

bool IndexScan::Next()
{
    if (m_isAtEnd)
        return false;
    if (m_isInPages) {
        const PageScan::Result result = m_pages.Next();
        if (result == PageScan::Result::Row) {
            m_entry.word = m_pages.Word();
            m_entry.autoID = m_pages.AutoID();
            m_entry.hasWordPhrase = m_pages.HasWordPhrase();
            m_entry.wordPhrase = m_pages.WordPhrase();
            return true;
        }
        m_isInPages = false;
        m_isAtEnd = result == PageScan::Result::End;
        if (m_isAtEnd)
            return false;
    }
    m_isAtEnd = !NextOfWalk();
    return !m_isAtEnd;
}

void IndexScan::Restart()
{
    m_pages.Restart();
    m_filter.Restart();
    m_isInPages = m_isWhole;
    m_isInWalk = m_isAtEnd = false;
    m_entry = {.word = m_filter.RangeStart()};
}

bool IndexScan::NextOfWalk()
{
    const bool there = m_isInWalk ? m_walk.Next() : m_walk.SeekBehind(m_entry.word, m_entry.autoID);
    m_isInWalk = true;
    if (!there || m_filter.HasLeftRange())
        return false;
    m_entry.word = m_walk.Word();
    m_entry.autoID = m_walk.AutoID();
    m_entry.hasWordPhrase = m_walk.HasWordPhrase();
    m_entry.wordPhrase = m_walk.WordPhrase();
    return true;
}

} // namespace data
