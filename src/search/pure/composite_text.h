#pragma once

#include <QString>
#include <array>

/// A search text taken apart at its markers.
struct CompositeText {
    QString word, meaning, example;
    /// The marker of the examples stands before that of the meanings: nothing is taken apart.
    bool wrongOrder = false;

    bool operator==(const CompositeText &) const = default;
};

/// Takes "word/T:meaning/E:example" apart; both markers may be missing, their case and width do not
/// count. No part is trimmed. A meaning without an example behind it comes out in capitals.
CompositeText TakeApart(const QString &typed);
