#include "conversion/pure/file_checks.h"

#include "conversion/pure/database_path.h"
#include "conversion/pure/format_table.h"
#include "core/pure/path_parts.h"

#include <optional>

namespace
{

/// The check of a dictionary file's path that a check of the target is.
std::optional<PathCheck> TargetCheck(FileCheck check)
{
    switch (check) {
    case FileCheck::TargetEmpty: return PathCheck::Empty;
    case FileCheck::NoPeriod: return PathCheck::NoPeriod;
    case FileCheck::NoBackslash: return PathCheck::NoBackslash;
    case FileCheck::NoDrive: return PathCheck::NoDrive;
    case FileCheck::NoStem: return PathCheck::NoStem;
    case FileCheck::NoExtension: return PathCheck::NoExtension;
    case FileCheck::WrongExtension: return PathCheck::WrongExtension;
    case FileCheck::TargetExists: return PathCheck::Exists;
    case FileCheck::SourceEmpty:
    case FileCheck::PdicBinary:
    case FileCheck::GlossaryExtension: break;
    }
    return std::nullopt;
}

} // namespace

bool Finds(FileCheck check, const ConvFiles &files, const std::function<bool(const QString &)> &exists)
{
    if (const std::optional<PathCheck> target = TargetCheck(check))
        return Finds(*target, files.target, exists);
    if (check == FileCheck::PdicBinary)
        return files.formatIndex == FormatPdicText && UpperExtOfPath(files.source) == QLatin1String("DIC");
    if (check == FileCheck::GlossaryExtension)
        return files.formatIndex == FormatGlossary && UpperExtOfPath(files.source) != QLatin1String("CSV");
    return files.source.isEmpty();
}

bool GoesOn(FileCheck check, bool agreed, ConvFiles &files)
{
    // A target that exists is added to, which a new dictionary must not be.
    if (check == FileCheck::TargetExists || check == FileCheck::PdicBinary ||
        check == FileCheck::GlossaryExtension)
        return agreed;
    const std::optional<PathCheck> target = TargetCheck(check);
    return target && GoesOn(*target, agreed, files.target);
}
