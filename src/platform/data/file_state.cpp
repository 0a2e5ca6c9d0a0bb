#include "platform/data/file_state.h"

#include <QFile>
#include <sys/stat.h>

data::FileState data::StateOf(const QString &hostPath)
{
    struct stat state {
    };
    if (::stat(QFile::encodeName(hostPath).constData(), &state) != 0)
        return {};
    constexpr qint64 nanoseconds = 1'000'000'000;
    return {.device = static_cast<quint64>(state.st_dev),
            .file = static_cast<quint64>(state.st_ino),
            .size = static_cast<qint64>(state.st_size),
            .modified = static_cast<qint64>(state.st_mtim.tv_sec) * nanoseconds + state.st_mtim.tv_nsec};
}
