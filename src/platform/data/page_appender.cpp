#include "platform/data/page_appender.h"

#include "platform/data/operation.h"
#include "platform/data/schema.h"

#include <QtEndian>
#include <array>
#include <sqlite3.h>

namespace data
{

namespace
{

/// Written in one go; SQLite's file layer takes less than 128 KiB.
constexpr std::size_t kMostWaiting = 1 << 16;

/// Of the file's header: how often it was changed, how many pages it has, and for which change that holds.
constexpr std::size_t kHeaderSize = 100;
constexpr std::size_t kChangesAt = 24;
constexpr std::size_t kPagesAt = 28;
constexpr std::size_t kPagesHoldForAt = 92;

/// SQLite locks bytes at 1 GiB, and leaves the page free in which they lie.
constexpr quint32 kLockedPage = (1 << 30) / kPageSize + 1;

qint64 OffsetOf(quint32 number) { return qint64(number - 1) * kPageSize; }

void Require(int code)
{
    if (code != SQLITE_OK)
        RaiseCode(code);
}

} // namespace

PageAppender::PageAppender(Session &session)
{
    sqlite3_int64 size = 0;
    Require(sqlite3_file_control(session.Database(), "main", SQLITE_FCNTL_FILE_POINTER, &m_file));
    if (m_file->pMethods == nullptr)
        RaiseCode(SQLITE_CANTOPEN);
    Require(m_file->pMethods->xFileSize(m_file, &size));
    m_next = Behind(static_cast<quint32>(size / kPageSize));
    m_waitingAt = OffsetOf(m_next);
    m_waiting.reserve(kMostWaiting);
}

quint32 PageAppender::Behind(quint32 number)
{
    return number + 1 == kLockedPage ? kLockedPage + 1 : number + 1;
}

quint32 PageAppender::Append(std::string_view page)
{
    const quint32 number = m_next;
    m_waiting.insert(m_waiting.end(), page.begin(), page.end());
    m_next = Behind(number);
    if (m_waiting.size() >= kMostWaiting || m_next != number + 1)
        WriteWaiting();
    return number;
}

void PageAppender::Replace(quint32 number, std::string_view page) { Write(page, OffsetOf(number)); }

void PageAppender::Finish()
{
    WriteWaiting();
    std::array<char, kHeaderSize> header{};
    Require(m_file->pMethods->xRead(m_file, header.data(), static_cast<int>(header.size()), 0));
    const auto changes = qFromBigEndian<quint32>(&header[kChangesAt]) + 1;
    // The locked page is no last one.
    const quint32 last = m_next - 1 == kLockedPage ? kLockedPage - 1 : m_next - 1;
    qToBigEndian(changes, &header[kChangesAt]);
    qToBigEndian(last, &header[kPagesAt]);
    qToBigEndian(changes, &header[kPagesHoldForAt]);
    Write({header.data(), header.size()}, 0);
}

void PageAppender::Write(std::string_view bytes, qint64 offset)
{
    Require(m_file->pMethods->xWrite(m_file, bytes.data(), static_cast<int>(bytes.size()), offset));
}

void PageAppender::WriteWaiting()
{
    if (!m_waiting.empty())
        Write({m_waiting.data(), m_waiting.size()}, m_waitingAt);
    m_waiting.clear();
    m_waitingAt = OffsetOf(m_next);
}

} // namespace data
