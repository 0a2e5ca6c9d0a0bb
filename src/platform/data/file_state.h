#pragma once

#include <QString>

namespace data
{

/// What tells one state of a file from another: another file, another length, another time of the last
/// change. Times are nanoseconds.
struct FileState {
    quint64 device = 0, file = 0;
    qint64 size = -1; ///< -1 where there is no file
    qint64 modified = 0;

    bool operator==(const FileState &) const = default;
    /// Whether it is the same file, in whatever state.
    bool IsSameFile(const FileState &other) const { return device == other.device && file == other.file; }
};

/// The state of the file at a host path; never raises.
FileState StateOf(const QString &hostPath);

} // namespace data
