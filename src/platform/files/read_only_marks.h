#pragma once

#include <QString>

namespace files::host
{

/// Whether the host path, or a folder above it, was marked read-only.
bool IsMarkedReadOnly(const QString &path);

} // namespace files::host
