#include "speech/pure/speaking_checks.h"

#include "platform/text/shift_jis.h"
#include "platform/text/trim.h"

namespace
{

SpeakingObstacle Obstacle(const QString &text, std::uint8_t speechEnabled)
{
    if (IsNotEnglishText(text) == 1)
        return SpeakingObstacle::NotEnglish;
    return speechEnabled == 1 ? SpeakingObstacle::None : SpeakingObstacle::SpeechOff;
}

QString MessageOf(SpeakingObstacle obstacle)
{
    switch (obstacle) {
    case SpeakingObstacle::NoText: return QStringLiteral("発音する英文がありません！");
    case SpeakingObstacle::NotSelected: return QStringLiteral("発音する文字が選択されていません！");
    case SpeakingObstacle::NotEnglish: return QStringLiteral("英文以外の文字(全角文字)が含まれています！");
    default: return SpeechNotice(false)->text;
    }
}

} // namespace

std::uint8_t IsNotEnglishText(const QString &text)
{
    constexpr std::int16_t greatestSpoken = 225;
    for (const QChar character : text) {
        // What the code page lacks, accented letters among it, counts as the question mark there.
        const int code = text::CodeOf(character.unicode());
        const auto asSigned = static_cast<std::int16_t>(code < 0 ? u'?' : code);
        if (asSigned < 0 || asSigned > greatestSpoken)
            return 1;
    }
    return 0;
}

SpeakingObstacle TypedTextObstacle(const QString &text, std::uint8_t speechEnabled)
{
    const QString trimmed = text::Trim(text);
    return trimmed.isEmpty() ? SpeakingObstacle::NoText : Obstacle(trimmed, speechEnabled);
}

SpeakingObstacle SelectionObstacle(const QString &text, std::uint8_t speechEnabled)
{
    return text::Trim(text).isEmpty() ? SpeakingObstacle::NotSelected : Obstacle(text, speechEnabled);
}

std::optional<Notice> SpeakingNotice(SpeakingObstacle obstacle)
{
    if (obstacle == SpeakingObstacle::None)
        return std::nullopt;
    return Notice{QStringLiteral("英文発音不可"), MessageOf(obstacle)};
}
