#pragma once

#include "platform/data/schema.h"

#include <QStringView>

/// What holds for a record of a dictionary wherever it is made.

/// The most characters of the two short text columns.
inline constexpr qsizetype kWordLength = data::kWordSize;
inline constexpr qsizetype kPronunciationLength = data::kPronunciationSize;
/// The most characters that a record made from another source holds in the two long ones.
inline constexpr qsizetype kDescriptionLength = 1024;
inline constexpr qsizetype kExampleLength = 1024;

/// The kinds of headword that `WordPhrase` holds.
inline constexpr quint8 kWord = 1;
inline constexpr quint8 kPhrase = 2;

/// What a headword, trimmed already, counts as: a phrase where it holds a blank (U+0020), else a word.
/// Full-width blanks and hyphens make no phrase.
inline quint8 WordPhraseRule(QStringView word) { return word.contains(u' ') ? kPhrase : kWord; }
