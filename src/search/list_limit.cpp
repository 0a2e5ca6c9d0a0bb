#include "search/list_limit.h"

#include "core/shared_state.h"
#include "platform/dialogs/dialogs.h"
#include "platform/host/host.h"

void ShowListLimitMessage(std::int16_t &maxListCount)
{
    const QString count = QString::number(maxListCount);
    const QString blankLine = QStringLiteral("\r\n\r\n");
    const bool hasNarrowerModes = Shared.SearchMode <= ModeSuffix;
    dialogs::BeepAndMsgBox(
        host::BeepExclamation,
        QStringLiteral("現在設定されている見出し語の最大リスト数の") + count +
            QStringLiteral("件を超える見出し語を検出ました。") + blankLine +
            QStringLiteral("ここで表示可能な見出し語は昇順で上位") + count +
            QStringLiteral("件迄です。検索条件を変更してさらに絞り込むことをお勧めします。") + blankLine +
            (hasNarrowerModes
                 ? QStringLiteral("見出し語の検索条件をさらに絞り込むためには「ワイルドカード検索」や"
                                  "「複合検索」も利用できます。")
                 : QStringLiteral("見出し語の検索条件をさらに絞り込むためには「複合検索」も利用できます。")) +
            blankLine +
            QStringLiteral(
                "また、リスト件数を変更する場合は、[ツール] ＞ [検索結果のリスト件数設定] を選択して"
                "おこなって下さい。"),
        dialogs::Exclamation, QStringLiteral("条件検索－最大リスト上限件数超過"));
}
