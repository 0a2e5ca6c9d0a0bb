#include "core/pure/search_modes.h"

QString SearchModeName(std::uint8_t mode)
{
    switch (mode) {
    case ModeIncremental: return QStringLiteral("インクリメンタル検索");
    case ModePrefix: return QStringLiteral("前方一致検索");
    case ModeMiddle: return QStringLiteral("中間一致検索");
    case ModeSuffix: return QStringLiteral("後方一致検索");
    case ModeMeaning: return QStringLiteral("訳語項目中の文字列検索");
    case ModeExample: return QStringLiteral("用例項目中の文字列検索");
    case ModeWildcard: return QStringLiteral("ワイルドカード検索");
    default: return {};
    }
}

QString SearchTargetName(std::uint8_t target)
{
    switch (target) {
    case TargetAll: return QStringLiteral("単語と熟語の両方");
    case TargetWords: return QStringLiteral("単語のみ");
    case TargetPhrases: return QStringLiteral("熟語のみ");
    default: return {};
    }
}
