#include "presentation/pure/dialog_checks.h"

#include "core/pure/search_modes.h"

std::optional<Notice> DictionaryNotice(DictionaryDialog dialog, const QString &path, bool exists)
{
    if (path.isEmpty()) {
        const QString missing =
            dialog == DictionaryDialog::Editor
                ? QStringLiteral("辞書が一件も設定されていないため、どのデータベースを開くか判断できません！")
                : QStringLiteral("辞書が一件も設定されていないため最適化するファイルを判断できません！");
        return Notice{QStringLiteral("辞書の未設定"),
                      missing + QStringLiteral("\r\n\r\nメニューバーから [ツール] ＞ [辞書設定] を選択して"
                                               "辞書の設定をおこなってください。")};
    }
    if (!exists)
        return Notice{
            QStringLiteral("データベースファイルパスの誤り"),
            QStringLiteral("現在選択されている辞書のデータベースのファイルパス見つかりません！\r\n\r\n"
                           "辞書の設定後にファイルまたはパスを削除あるいは変更した可能性があります。\r\n"
                           "メニューバーから [ツール] ＞ [辞書設定] を選択してデータベースのファイルパス\r\n"
                           "を確認してください")};
    return std::nullopt;
}

std::optional<Notice> CompositeNotice(std::uint8_t mode)
{
    QString name;
    switch (mode) {
    case ModeIncremental: name = QStringLiteral("インクリメンタル検索"); break;
    case ModeMeaning: name = QStringLiteral("訳語項目中の文字列検索"); break;
    case ModeExample: name = QStringLiteral("用例項目中の文字列検索"); break;
    default: return std::nullopt;
    }
    return Notice{
        QStringLiteral("複合検索使用不可検索モード"),
        QStringLiteral("複合検索は現在選択中の") + name +
            QStringLiteral("モードでは使用できません！\r\n"
                           "前方・中間・後方一致検索ならびにワイルドカード検索時にのみ使用可能です。")};
}

std::optional<Notice> SpeechNotice(bool available)
{
    if (available)
        return std::nullopt;
    return Notice{
        QStringLiteral("英文発音機能未設定"),
        QStringLiteral("「英文発音機能を使用しない」を選択、またはキャラクタ ファイルが未設定です！\r\n"
                       "メニューバーから [ツール] ＞ [キャラクタの設定] を選択して"
                       "設定をおこなってください。")};
}
