#pragma once

#include <QString>
#include <future>

namespace data
{

/// Writes all of a file through to the disk, on a thread of its own, for the system does it in one step
/// that may take seconds. The destructor waits.
class FileFlush
{
public:
    /// Begins with the file at a host path.
    explicit FileFlush(const QString &hostPath);

    bool IsDone() const;
    /// Waits for the end; raises 61 or -2147467259 when something could not be written.
    void Finish();

private:
    std::future<int> m_error;
};

} // namespace data
