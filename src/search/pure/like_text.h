#pragma once

#include <QString>

/// A typed text made literal for a LIKE pattern between quotes: "%" and "_" in brackets, "'"
/// doubled. A "[" stays active as the beginning of a class.
QString EscapeForLike(const QString &typed);

/// The statement of the incremental search limited to words (target 1) or phrases (2): the first
/// `count` headwords that begin with the typed text.
QString LimitedIncrementalStatement(int target, const QString &typed, int count);
