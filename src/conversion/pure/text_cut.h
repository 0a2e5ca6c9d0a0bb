#pragma once

#include "platform/failure/runtime_error.h"

#include <QStringView>
#include <algorithm>

/// What stands from a position (from 1) on; nothing behind the end.
inline QStringView CutFrom(QStringView text, qsizetype position)
{
    return text.sliced(std::min(position - 1, text.size()));
}

/// The same, `length` characters of it at most; raises 5 for a length below zero.
inline QStringView Cut(QStringView text, qsizetype position, qsizetype length)
{
    if (length < 0)
        throw RuntimeError(RuntimeError::InvalidCall);
    const QStringView rest = CutFrom(text, position);
    return rest.first(std::min(length, rest.size()));
}
