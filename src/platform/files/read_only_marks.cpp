#include "platform/files/read_only_marks.h"

#include "platform/files/file_operations.h"

#include <QDir>
#include <QStringList>
#include <mutex>

namespace
{

std::mutex marksMutex;
QStringList marks;

} // namespace

void files::MarkReadOnly(const QString &hostPath)
{
    const std::lock_guard lock(marksMutex);
    marks.append(QDir::cleanPath(hostPath));
}

void files::ClearReadOnlyMarks()
{
    const std::lock_guard lock(marksMutex);
    marks.clear();
}

bool files::host::IsMarkedReadOnly(const QString &path)
{
    const std::lock_guard lock(marksMutex);
    if (marks.isEmpty())
        return false;
    const QString clean = QDir::cleanPath(path);
    for (const QString &mark : marks)
        if (clean == mark || clean.startsWith(mark + u'/'))
            return true;
    return false;
}
