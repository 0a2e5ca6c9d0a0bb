#pragma once

#include <QString>
#include <future>
#include <optional>

namespace data
{

// Steps of the engine that nothing can interrupt, each on a thread and a connection of its own. What they
// give back waits for their end when it is destroyed.

/// Checks the structure of the file at a host path, which must stay as it is meanwhile; whether it is sound.
std::future<bool> CheckStructure(const QString &hostPath);

/// Counts the rows of the dictionary file at a host path; none where it could not be read.
std::future<std::optional<qint64>> CountRows(const QString &hostPath);

} // namespace data
