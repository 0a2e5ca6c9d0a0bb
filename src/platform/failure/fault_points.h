#pragma once

#include <QString>

/// Places where a test makes an operation fail. An operation that can fail announces itself by its
/// name ("Open", "Seek", "write", ...) before it touches anything; without a test in progress this
/// costs one relaxed load.
namespace faults
{

/// The next operation of the name `what` raises the failure `number`. Several may be armed; those
/// of one name fail one after the other.
void FailNext(const QString &what, qint32 number);

/// Forgets everything armed.
void Clear();

/// Raises the failure armed for `what`, if any.
void Point(const char *what);

} // namespace faults
