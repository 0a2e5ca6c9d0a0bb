#pragma once

#include "platform/data/session.h"

#include <QtGlobal>
#include <string_view>
#include <vector>

struct sqlite3_file;

namespace data
{

/// Puts pages behind those of a file that is being made, past SQLite's own writing: nobody else has it open,
/// and the session is in no transaction until Finish. What lies on the way stays in no journal. Everything
/// raises 61 on a full disk, otherwise -2147467259.
class PageAppender
{
public:
    explicit PageAppender(Session &session);

    /// The number of the page that Append writes next.
    quint32 Next() const { return m_next; }
    /// The number behind that of a page: the page that SQLite's locks lie in is none.
    static quint32 Behind(quint32 number);

    /// Writes kPageSize bytes as the next page; its number.
    quint32 Append(std::string_view page);
    /// Writes a page that is there already.
    void Replace(quint32 number, std::string_view page);
    /// Writes what still waits, and makes the pages part of the file: from now on SQLite sees them.
    void Finish();

private:
    void Write(std::string_view bytes, qint64 offset);
    void WriteWaiting();

    sqlite3_file *m_file = nullptr;
    quint32 m_next = 0;
    qint64 m_waitingAt = 0; ///< where in the file the waiting bytes belong
    std::vector<char> m_waiting;
};

} // namespace data
