#include "conversion/pure/database_path.h"

#include "core/pure/path_parts.h"
#include "platform/text/fold.h"
#include "platform/text/trim.h"

bool Finds(PathCheck check, const QString &path, const std::function<bool(const QString &)> &exists)
{
    switch (check) {
    case PathCheck::Empty: return path.isEmpty();
    case PathCheck::NoPeriod: return text::TextFind(path, u".") == 0;
    case PathCheck::NoBackslash: return text::TextFind(path, u"\\") == 0;
    case PathCheck::NoDrive: return DriveOfPath(path).isEmpty();
    case PathCheck::NoStem: return text::Trim(StemOfPath(path, kStemAlone)).isEmpty();
    case PathCheck::NoExtension: return UpperExtOfPath(path).isEmpty();
    case PathCheck::WrongExtension: return UpperExtOfPath(path) != QLatin1String("MDB");
    case PathCheck::Exists: return exists(path);
    }
    return false;
}

bool GoesOn(PathCheck check, bool agreed, QString &path)
{
    if (check == PathCheck::NoExtension) {
        if (agreed)
            path += path.endsWith(u'.') ? QStringLiteral("mdb") : QStringLiteral(".mdb");
        return true;
    }
    if (check == PathCheck::WrongExtension && agreed) {
        path = StemOfPath(path, kStemWithFolders) + QStringLiteral(".MDB");
        return true;
    }
    return false;
}

QString UpperExtOfPath(const QString &path) { return ExtOfPath(path).toUpper(); }
