#pragma once

#include <QString>

/// What one list search asks for. Numbers are those of the shared state.
struct ListRequest {
    int mode = 0;          ///< 1 to 6
    int target = 0;        ///< 0 all, 1 words, 2 phrases
    int compositeKind = 0; ///< 1 a condition on meanings, 2 on examples, 3 both
    int maximum = 0;       ///< rows at most
    QString wordPattern, meaningPattern, examplePattern;
};

/// The LIKE pattern of the main condition for a word part as it was typed. Prefix, middle and suffix
/// searches demand at least one further character where the pattern is open.
QString WordPatternFor(int mode, const QString &word);

/// The LIKE pattern of a condition on a text column.
QString ContainsPattern(const QString &typed);

/// 0 no condition, 1 on meanings, 2 on examples, 3 both; always 0 in the modes that search texts.
int CompositeKindFor(int mode, const QString &meaning, const QString &example);

/// The statement of the search. Searches over headwords are sorted, those over texts are not.
QString ListStatement(const ListRequest &request);
