#include "platform/failure/fault_points.h"

#include "platform/failure/runtime_error.h"

#include <QList>
#include <QPair>
#include <atomic>
#include <mutex>

namespace
{

std::atomic<bool> anyArmed{false};
std::mutex armedMutex;
QList<QPair<QString, qint32>> armed;

} // namespace

void faults::FailNext(const QString &what, qint32 number)
{
    const std::lock_guard lock(armedMutex);
    armed.append({what, number});
    anyArmed.store(true, std::memory_order_release);
}

void faults::Clear()
{
    const std::lock_guard lock(armedMutex);
    armed.clear();
    anyArmed.store(false, std::memory_order_release);
}

void faults::Point(const char *what)
{
    if (!anyArmed.load(std::memory_order_relaxed))
        return;
    const QString name = QString::fromUtf8(what);
    qint32 number = 0;
    {
        const std::lock_guard lock(armedMutex);
        qsizetype i = 0;
        while (i < armed.size() && armed[i].first != name)
            ++i;
        if (i == armed.size())
            return;
        number = armed[i].second;
        armed.removeAt(i);
        anyArmed.store(!armed.isEmpty(), std::memory_order_release);
    }
    throw RuntimeError(number);
}
