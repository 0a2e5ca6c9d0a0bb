#pragma once

#include "platform/agent/pure/mouth.h"

#include <QList>
#include <QString>

namespace agent
{

/// The text as it is given to the synthesiser: each control character but line ends and each unpaired
/// surrogate is one blank, so that positions stay and nothing commands the voice.
QString SpeakableText(const QString &text);

/// The first position behind a balloon's page that begins at `begin`: a page ends with a sentence, or
/// between two words, and has at most 120 characters.
qsizetype PageEnd(const QString &text, qsizetype begin);

/// Translates positions counted in code points, which only grow, into those of the text.
class CodePointWalk
{
public:
    explicit CodePointWalk(const QString &text) : m_text(text) {}
    /// The position of a code point, counted from 0; the text's length behind its end.
    qsizetype PositionOf(qsizetype codePoint);

private:
    const QString &m_text;
    qsizetype m_codePoint = 0;
    qsizetype m_position = 0;
};

/// A word mouthed without a voice.
struct MouthedWord {
    qsizetype position = 0, length = 0;
    QList<Mouth> mouths; ///< one a letter
};
inline constexpr int kMouthedLetterMilliseconds = 65;
inline constexpr int kMouthedGapMilliseconds = 90;

/// The first word at or behind a position; its length is 0 where there is none.
MouthedWord NextMouthedWord(const QString &text, qsizetype from);

} // namespace agent
