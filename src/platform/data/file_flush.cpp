#include "platform/data/file_flush.h"

#include "platform/data/operation.h"

#include <QFile>
#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

namespace
{

/// errno, or 0.
int Flush(const QByteArray &path)
{
    const int file = ::open(path.constData(), O_RDONLY | O_CLOEXEC);
    if (file < 0)
        return errno;
    const int error = ::fsync(file) == 0 ? 0 : errno;
    ::close(file);
    return error;
}

} // namespace

data::FileFlush::FileFlush(const QString &hostPath)
    : m_error(std::async(std::launch::async, Flush, QFile::encodeName(hostPath)))
{
}

bool data::FileFlush::IsDone() const
{
    return m_error.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
}

void data::FileFlush::Finish()
{
    const int error = m_error.get();
    if (error != 0)
        RaiseCode(error == ENOSPC || error == EDQUOT ? SQLITE_FULL : SQLITE_IOERR);
}
