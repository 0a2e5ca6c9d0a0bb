#include "presentation/pure/system_report.h"

#include "platform/text/number_format.h"

#include <cmath>

namespace
{

constexpr int kFirstOfOneName = 51; // ten times version 5.1
constexpr double kBytesPerMegabyte = 1048576;

int VersionTimesTen(const QString &version) { return static_cast<int>(std::lround(version.toDouble() * 10)); }

} // namespace

QString PlatformName(const QString &platform, const QString &version)
{
    bool isId = false;
    const int id = platform.toInt(&isId);
    if (!isId)
        return platform;
    if (VersionTimesTen(version) >= kFirstOfOneName)
        return QStringLiteral("Windows XP");
    switch (id) {
    case 1: return QStringLiteral("Windows 95/98");
    case 2: return QStringLiteral("Windows NT/2000");
    default: return {};
    }
}

QString ProcessorName(int processor)
{
    switch (processor) {
    case 386: return QStringLiteral("Intel 386");
    case 486: return QStringLiteral("Intel 486");
    case 586: return QStringLiteral("Intel Pentium");
    default: return QStringLiteral("Non-Intel");
    }
}

QString SystemReport(const MachineFacts &facts)
{
    const QString lineEnd = QStringLiteral("\r\n");
    return QStringLiteral("Windows バージョン: ") + facts.version + QStringLiteral(" (Build ") + facts.build +
           u')' + lineEnd + QStringLiteral("Windows プラットフォーム: ") +
           PlatformName(facts.platform, facts.version) + lineEnd + QStringLiteral("CPU タイプ: ") +
           ProcessorName(facts.processor) + lineEnd + QStringLiteral("RAM: ") +
           text::FormatNumber(static_cast<double>(facts.memory) / kBytesPerMegabyte, u"##,###.00") +
           QStringLiteral(" MB (") + text::FormatNumber(facts.load, u"###") + QStringLiteral("% 使用)");
}
