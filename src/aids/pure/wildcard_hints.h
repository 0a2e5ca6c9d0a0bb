#pragma once

#include <QString>

/// What the wildcard builder says about its two gaps: each hint is its head and its tail.
struct WildcardHints {
    QString Hint1Head, Hint1Tail, Hint2Head, Hint2Tail;
    /// The second gap and its hint are shown: there is a text in the middle.
    bool secondGapShown = false;

    bool operator==(const WildcardHints &) const = default;
};

/// The texts of the three fields, trimmed.
struct HintTexts {
    QString start, middle, end;
};

/// What the first hint shows until a field is changed for the first time.
QString FirstHintAtLoad();

/// The hints at load, and after a change of the field for the start, the middle and the end.
WildcardHints HintsAtLoad();
WildcardHints HintsAfterStart(WildcardHints hints, const HintTexts &texts);
WildcardHints HintsAfterMiddle(WildcardHints hints, const HintTexts &texts);
WildcardHints HintsAfterEnd(WildcardHints hints, const HintTexts &texts);
