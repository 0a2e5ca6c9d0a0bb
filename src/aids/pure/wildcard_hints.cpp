#include "aids/pure/wildcard_hints.h"

namespace
{

QString FromTheFirstCharacter() { return QStringLiteral("見出し語の最初の文字から"); }
QString ToTheLastCharacter() { return QStringLiteral("最後の文字までの文字数が"); }

QString From(const QString &text)
{
    return QStringLiteral("見出し語中の「") + text + QStringLiteral("」と ");
}
QString To(const QString &text) { return u'「' + text + QStringLiteral("」の間の文字数が"); }
QString ToEnd(const QString &end) { return end.isEmpty() ? ToTheLastCharacter() : To(end); }

} // namespace

QString FirstHintAtLoad() { return QStringLiteral("見出し語の文字数が\r\n"); }

WildcardHints HintsAtLoad()
{
    WildcardHints hints;
    hints.Hint1Head = FromTheFirstCharacter();
    hints.Hint1Tail = ToTheLastCharacter();
    hints.Hint2Tail = ToTheLastCharacter();
    return hints;
}

WildcardHints HintsAfterStart(WildcardHints hints, const HintTexts &texts)
{
    hints.Hint1Head = texts.start.isEmpty() ? FromTheFirstCharacter() : From(texts.start);
    return hints;
}

WildcardHints HintsAfterMiddle(WildcardHints hints, const HintTexts &texts)
{
    hints.secondGapShown = !texts.middle.isEmpty();
    if (hints.secondGapShown) {
        hints.Hint1Tail = To(texts.middle);
        hints.Hint2Head = From(texts.middle);
        hints.Hint2Tail = ToEnd(texts.end);
    } else if (!texts.end.isEmpty()) {
        hints.Hint1Tail = To(texts.end);
    } else {
        hints.Hint1Head = From(texts.start);
        hints.Hint1Tail = ToTheLastCharacter();
        hints.Hint2Tail = ToTheLastCharacter();
    }
    return hints;
}

WildcardHints HintsAfterEnd(WildcardHints hints, const HintTexts &texts)
{
    (texts.middle.isEmpty() ? hints.Hint1Tail : hints.Hint2Tail) = ToEnd(texts.end);
    return hints;
}
