#include "core/pure/path_parts.h"

#include "platform/text/fold.h"
#include "platform/text/trim.h"

namespace
{

/// The last position, from 1, of a character in a text; 0 for none.
qsizetype LastPositionOf(char16_t character, const QString &text)
{
    const QStringView wanted(&character, 1);
    qsizetype last = 0;
    while (const qsizetype next = text::TextFind(text, wanted, last + 1))
        last = next;
    return last;
}

} // namespace

QString DriveOfPath(const QString &path)
{
    if (path.indexOf(QStringLiteral(":\\")) != 1)
        return {};
    const char16_t letter = path.front().unicode();
    const bool isLetter = (letter >= u'a' && letter <= u'z') || (letter >= u'A' && letter <= u'Z');
    return isLetter ? path.first(1) : QString();
}

QString StemOfPath(const QString &path, int mode)
{
    const QString trimmed = text::Trim(path);
    const qsizetype period = LastPositionOf(u'.', trimmed);
    if (period == 0)
        return {};
    QString stem = trimmed.first(period - 1);
    if (mode != kStemAlone)
        return stem;
    const qsizetype backslash = LastPositionOf(u'\\', stem);
    return backslash == 0 ? QString() : stem.sliced(backslash);
}

QString ExtOfPath(const QString &path)
{
    const qsizetype period = LastPositionOf(u'.', path);
    return period == 0 ? QString() : path.sliced(period);
}

QString UpperExtOfPath(const QString &path) { return ExtOfPath(path).toUpper(); }

QString WithExtensionAdded(const QString &path)
{
    return path + (path.endsWith(u'.') ? QStringLiteral("mdb") : QStringLiteral(".mdb"));
}

QString WithExtensionReplaced(const QString &path)
{
    return StemOfPath(path, kStemWithFolders) + QStringLiteral(".MDB");
}
