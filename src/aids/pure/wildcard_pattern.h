#pragma once

#include <QString>

/// What the wildcard builder asks for, as it stands in its fields.
struct WildcardFields {
    QString start, middle, end;
    /// Numbers of characters between start and middle, and between middle and end; empty for any.
    QString firstGap, secondGap;

    bool operator==(const WildcardFields &) const = default;
};

/// The LIKE pattern of a headword so described. A gap that is open at either end stands for at least
/// one character. Raises 6 where the pattern has more than 255 characters before its open gaps are
/// joined.
QString WildcardPattern(const WildcardFields &fields);
