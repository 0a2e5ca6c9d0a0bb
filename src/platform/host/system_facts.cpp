#include "platform/host/host.h"

#include <QFile>
#include <QSysInfo>
#include <optional>

namespace
{

std::optional<host::SystemFacts> standIn;

/// The number of bytes of a line like "MemTotal:  2048 kB".
qint64 BytesOf(const QByteArray &memoryInfo, const QByteArray &name)
{
    const QList<QByteArray> lines = memoryInfo.split('\n');
    for (const QByteArray &line : lines)
        if (line.startsWith(name + ':'))
            return line.mid(name.size() + 1).simplified().split(' ').value(0).toLongLong() * 1024;
    return 0;
}

int ProcessorType(const QString &architecture)
{
    if (architecture == QLatin1String("x86_64"))
        return 8664;
    if (architecture == QLatin1String("i386"))
        return 586;
    return 0;
}

} // namespace

host::SystemFacts host::Facts()
{
    if (standIn)
        return *standIn;
    SystemFacts facts;
    facts.build = QSysInfo::kernelVersion();
    facts.version = facts.build.section(QLatin1Char('.'), 0, 1);
    facts.platform = QSysInfo::prettyProductName();
    facts.processor = ProcessorType(QSysInfo::currentCpuArchitecture());
    QFile file(QStringLiteral("/proc/meminfo"));
    if (file.open(QIODevice::ReadOnly)) {
        const QByteArray info = file.readAll();
        facts.memory = BytesOf(info, "MemTotal");
        const qint64 free = BytesOf(info, "MemAvailable");
        if (facts.memory > 0)
            facts.load = static_cast<int>((facts.memory - free) * 100 / facts.memory);
    }
    return facts;
}

void host::SetFacts(const SystemFacts *facts)
{
    if (facts)
        standIn = *facts;
    else
        standIn.reset();
}
