#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

/// The entries of the English-Japanese dictionary that Debian ships in the dictd format.
namespace sample
{

/// One meaning: the translations, and what tells it from the others, in English.
struct Sense {
    QStringList translations;
    QStringList definitions;

    bool operator==(const Sense &) const = default;
};

/// One part of speech of a headword.
struct Entry {
    QString headword;
    QString pronunciation; ///< the first whole one, without its slashes; may be empty
    QString partOfSpeech;  ///< as the dictionary names it ("n", "v"); may be empty
    QList<Sense> senses;   ///< those with a translation
};

/// Reads the text of one entry: a line with the headword, its pronunciations between slashes and the
/// part of speech between angle brackets, then the senses, each a line of translations and lines of
/// definitions.
Entry ParseEntry(const QString &text);

/// A record of the sample dictionary.
struct Record {
    QString word;
    QString pronunciation;
    int wordPhrase = 1; ///< 1 a word, 2 a phrase: one with a blank in it
    QString description;
};

/// The record of all entries of one headword, with lengths that the columns take; nothing when none
/// of them has a translation.
std::optional<Record> MakeRecord(const QList<Entry> &entries);

} // namespace sample
