#pragma once

#include "platform/failure/fault_points.h"
#include "platform/failure/runtime_error.h"

#include <QString>
#include <utility>

namespace data
{

/// The names that failures of the engine bear as their source.
inline constexpr char kConnectionSource[] = "ADODB.Connection";
inline constexpr char kRecordsetSource[] = "ADODB.Recordset";
inline constexpr char kCatalogSource[] = "ADOX.Catalog";
inline constexpr char kJetEngineSource[] = "JRO.JetEngine";

/// Raised for what a kind of recordset does not offer.
inline constexpr qint32 kNotSupported = 3251;

/// Raises the failure that a result code of SQLite stands for: 61 disk full, 70 not writable, 7 out of
/// memory, -2147217887 for a value that the table refuses, -2147467259 for all that makes the file
/// unusable (locked, damaged, no dictionary).
[[noreturn]] void RaiseCode(int code);

/// Does one operation of the public surface: announces it to the fault points by its name, and gives
/// whatever it raises the source of its object.
template <typename Work> decltype(auto) Operation(const char *source, const char *name, Work &&work)
{
    try {
        faults::Point(name);
        return std::forward<Work>(work)();
    } catch (const RuntimeError &failure) {
        throw RuntimeError(failure.number(), QString::fromLatin1(source), failure.description());
    }
}

} // namespace data
