#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

namespace sample
{

/// The texts of all entries of a dictd dictionary in the order of the file, each once, without those
/// about the dictionary itself. `base` is the host path without `.index` and `.dict.dz`. Raises 53
/// when a file is missing and 57 when one is damaged.
QList<QByteArray> ReadDictd(const QString &base);

/// The value of a number in the index: digits of 64, the most significant first; -1 where it is none.
qint64 DictdNumber(const QByteArray &digits);

} // namespace sample
