#include "platform/agent/pure/spoken_text.h"

#include <algorithm>

namespace
{

constexpr qsizetype kLongestPage = 120;
/// A page that is cut within a word is at least this long.
constexpr qsizetype kShortestPage = 40;

bool EndsSentence(const QString &text, qsizetype at)
{
    const bool isStop = text[at] == u'.' || text[at] == u'!' || text[at] == u'?';
    return isStop && (at + 1 == text.size() || text[at + 1].isSpace());
}

} // namespace

QString agent::SpeakableText(const QString &text)
{
    QString speakable = text;
    for (qsizetype i = 0; i < speakable.size(); ++i) {
        const QChar unit = speakable[i];
        const bool isPair =
            unit.isHighSurrogate() && i + 1 < speakable.size() && speakable[i + 1].isLowSurrogate();
        const bool isLineEnd = unit == u'\n' || unit == u'\r';
        if (isPair)
            ++i;
        else if (unit.isSurrogate() || (unit.category() == QChar::Other_Control && !isLineEnd))
            speakable[i] = u' ';
    }
    return speakable;
}

qsizetype agent::PageEnd(const QString &text, qsizetype begin)
{
    const qsizetype last = std::min(begin + kLongestPage, text.size());
    for (qsizetype at = begin; at < last; ++at)
        if (EndsSentence(text, at))
            return at + 1;
    if (last == text.size())
        return last;
    for (qsizetype at = last; at > begin + kShortestPage; --at)
        if (text[at].isSpace())
            return at;
    return text[last].isLowSurrogate() ? last - 1 : last;
}

qsizetype agent::CodePointWalk::PositionOf(qsizetype codePoint)
{
    if (codePoint < m_codePoint)
        m_codePoint = m_position = 0;
    for (; m_codePoint < codePoint && m_position < m_text.size(); ++m_codePoint) {
        const bool isPair = m_text[m_position].isHighSurrogate() && m_position + 1 < m_text.size();
        m_position += isPair ? 2 : 1;
    }
    return m_position;
}

agent::MouthedWord agent::NextMouthedWord(const QString &text, qsizetype from)
{
    // What has no end in sight is mouthed in parts.
    constexpr qsizetype longestWord = 40;
    MouthedWord word;
    while (from < text.size() && text[from].isSpace())
        ++from;
    word.position = from;
    for (; from < text.size() && !text[from].isSpace() && word.length < longestWord; ++from, ++word.length)
        word.mouths.append(MouthOfLetter(text[from]));
    return word;
}
