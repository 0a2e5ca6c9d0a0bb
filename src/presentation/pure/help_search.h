#pragma once

#include "presentation/pure/help_book.h"

#include <QStringList>

/// A topic in which all words of a search stand.
struct HelpHit {
    qsizetype topic = 0;
    /// How often one of the words stands in it, 1 or more.
    qsizetype count = 0;
    bool operator==(const HelpHit &) const = default;
};

/// The words of a search text: what stands between blanks, half or full width.
QStringList SearchWords(const QString &text);

/// The topics that hold all words (case, width and kana type ignored): first those with all of them
/// in the title, then those with most of them, else in the order of the book. None without words.
QList<HelpHit> SearchHelp(const HelpBook &book, const QStringList &words);

/// Where the words stand in a text, in order and without overlap; positions from 1.
QList<text::Match> MatchesOf(const QStringList &words, const text::FoldedText &in);
