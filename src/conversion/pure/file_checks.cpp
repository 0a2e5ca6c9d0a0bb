#include "conversion/pure/file_checks.h"

#include "conversion/pure/format_table.h"
#include "core/pure/path_parts.h"
#include "platform/text/fold.h"
#include "platform/text/trim.h"

namespace
{

constexpr int kStemWithFolders = 1;
constexpr int kStemAlone = 2;

} // namespace

QString UpperExtOfPath(const QString &path) { return ExtOfPath(path).toUpper(); }

bool Finds(FileCheck check, const ConvFiles &files, const std::function<bool(const QString &)> &exists)
{
    switch (check) {
    case FileCheck::SourceEmpty: return files.source.isEmpty();
    case FileCheck::TargetEmpty: return files.target.isEmpty();
    case FileCheck::NoPeriod: return text::TextFind(files.target, u".") == 0;
    case FileCheck::NoBackslash: return text::TextFind(files.target, u"\\") == 0;
    case FileCheck::NoDrive: return DriveOfPath(files.target).isEmpty();
    case FileCheck::NoStem: return text::Trim(StemOfPath(files.target, kStemAlone)).isEmpty();
    case FileCheck::NoExtension: return UpperExtOfPath(files.target).isEmpty();
    case FileCheck::WrongExtension: return UpperExtOfPath(files.target) != QLatin1String("MDB");
    case FileCheck::TargetExists: return exists(files.target);
    case FileCheck::PdicBinary:
        return files.formatIndex == FormatPdicText && UpperExtOfPath(files.source) == QLatin1String("DIC");
    case FileCheck::GlossaryExtension:
        return files.formatIndex == FormatGlossary && UpperExtOfPath(files.source) != QLatin1String("CSV");
    }
    return false;
}

bool GoesOn(FileCheck check, bool agreed, ConvFiles &files)
{
    switch (check) {
    case FileCheck::SourceEmpty:
    case FileCheck::TargetEmpty:
    case FileCheck::NoPeriod:
    case FileCheck::NoBackslash:
    case FileCheck::NoDrive:
    case FileCheck::NoStem: return false;
    case FileCheck::NoExtension:
        if (agreed)
            files.target += files.target.endsWith(u'.') ? QStringLiteral("mdb") : QStringLiteral(".mdb");
        return true;
    case FileCheck::WrongExtension:
        if (agreed)
            files.target = StemOfPath(files.target, kStemWithFolders) + QStringLiteral(".MDB");
        return agreed;
    case FileCheck::TargetExists:
    case FileCheck::PdicBinary:
    case FileCheck::GlossaryExtension: return agreed;
    }
    return false;
}
