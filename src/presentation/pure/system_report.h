#pragma once

#include <QString>

/// What the version dialog tells of the machine.
struct MachineFacts {
    QString version;   ///< "major.minor"
    QString build;     ///< build number or release
    QString platform;  ///< a platform id, or the system's own name
    int processor = 0; ///< processor type
    qint64 memory = 0; ///< physical memory in bytes
    int load = 0;      ///< memory in use, percent
};

/// The name of a platform: that of its id, which from version 5.1 on is one and the same; a platform
/// that is no id is a name itself. Empty for an unknown id below that version.
QString PlatformName(const QString &platform, const QString &version);

/// The name of a processor type.
QString ProcessorName(int processor);

/// The four lines of the report, with CR LF between them.
QString SystemReport(const MachineFacts &facts);
