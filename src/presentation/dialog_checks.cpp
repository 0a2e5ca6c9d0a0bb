#include "presentation/dialog_checks.h"

#include "core/shared_state.h"
#include "platform/dialogs/dialogs.h"
#include "platform/files/file_operations.h"
#include "platform/host/host.h"

bool DictionaryIsThere(const QString &nothingSet)
{
    if (Shared.CurrentDicPath.isEmpty()) {
        dialogs::BeepAndMsgBox(
            host::BeepExclamation,
            nothingSet +
                QStringLiteral("\r\n\r\nメニューバーから [ツール] ＞ [辞書設定] を選択して辞書の設定を"
                               "おこなってください。"),
            dialogs::Exclamation, QStringLiteral("辞書の未設定"));
        return false;
    }
    if (!files::Exists(Shared.CurrentDicPath)) {
        dialogs::BeepAndMsgBox(
            host::BeepExclamation,
            QStringLiteral("現在選択されている辞書のデータベースのファイルパス見つかりません！\r\n\r\n"
                           "辞書の設定後にファイルまたはパスを削除あるいは変更した可能性があります。\r\n"
                           "メニューバーから [ツール] ＞ [辞書設定] を選択してデータベースのファイルパス\r\n"
                           "を確認してください"),
            dialogs::Exclamation, QStringLiteral("データベースファイルパスの誤り"));
        return false;
    }
    return true;
}
