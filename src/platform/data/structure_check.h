#pragma once

#include <QString>
#include <future>

namespace data
{

/// The engine's check of a file's structure, done on a thread and a connection of its own, for it is one
/// step that nothing can interrupt. The file must stay as it is meanwhile. The destructor waits.
class StructureCheck
{
public:
    /// Begins the check of the file at a host path.
    explicit StructureCheck(const QString &hostPath);

    bool IsDone() const;
    /// Waits for the end; whether the file is sound.
    bool Passed() { return m_result.get(); }

private:
    std::future<bool> m_result;
};

} // namespace data
