#include "search/composite_text.h"

#include "platform/dialogs/dialogs.h"
#include "platform/host/host.h"

CompositeText SplitCompositeText(const QString &typed)
{
    CompositeText parts = TakeApart(typed);
    if (parts.wrongOrder)
        dialogs::BeepAndMsgBox(
            host::BeepExclamation,
            QStringLiteral("複合検索の「/E:」と「/T:」の使い方の順番が正しくありません！\r\n\r\n"
                           "検索する見出し語に続いて「/E:」、「/T:」の順番で\r\n"
                           "訳語、用例中の文字列の設定をおこなってください。"),
            dialogs::Exclamation, QStringLiteral("順序指定の誤り"));
    return parts;
}
