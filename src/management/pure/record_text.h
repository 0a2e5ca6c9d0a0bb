#pragma once

#include <QString>
#include <cstdint>

/// What the boxes of the record editor hold.
struct RecordText {
    QString word, pronunciation, description, example;
    std::uint8_t wordPhrase = 1; ///< 1 a word, 2 a phrase

    bool operator==(const RecordText &) const = default;
};

/// How a record in the boxes differs from what was shown.
enum DirtyKindNumber : std::uint8_t { NothingChanged = 0, FieldChanged = 1, WordChanged = 2 };

/// Blanks around a text do not count, case does; a changed word wins over the other fields.
std::uint8_t DirtyKindOf(const RecordText &now, const RecordText &shown);

/// Whether any of the four texts holds more than blanks.
bool HoldsText(const RecordText &now);

/// 2, a phrase, for a word with a half-width blank within it, else 1.
int WordPhraseOfWord(const QString &word);

/// The statement that looks for a word as it stands between the quotes.
QString WordStatement(const QString &word);
/// The statement that looks for a word's beginning, escaped for a pattern: the first one in the order
/// of words; for a single character any.
QString BeginningStatement(const QString &escaped);
