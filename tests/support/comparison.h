#pragma once

#include <QJSValue>
#include <QStringList>

/// Where two values of a script differ, compared member by member: one line for each place, at most
/// `limit` of them and a line that says that there are more. Empty when they are equal. Types must
/// agree ("1" is not 1, null is not undefined); not-a-number equals itself.
QStringList Differences(const QJSValue &actual, const QJSValue &expected, int limit = 10);

/// A value as a script would write it, on one line; texts show their control characters.
QString Literal(const QJSValue &value);
