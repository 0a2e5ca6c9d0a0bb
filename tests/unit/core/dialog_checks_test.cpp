#include "presentation/pure/dialog_checks.h"

#include "core/pure/search_modes.h"

#include <gtest/gtest.h>

TEST(DialogChecks, WithoutADictionaryTheDialogsSayWhatTheyMiss)
{
    const QString rest = QStringLiteral("\r\n\r\nメニューバーから [ツール] ＞ [辞書設定] を選択して"
                                        "辞書の設定をおこなってください。");
    const Notice editor{
        QStringLiteral("辞書の未設定"),
        QStringLiteral("辞書が一件も設定されていないため、どのデータベースを開くか判断できません！") + rest};
    const Notice compaction{
        QStringLiteral("辞書の未設定"),
        QStringLiteral("辞書が一件も設定されていないため最適化するファイルを判断できません！") + rest};
    for (const bool exists : {false, true}) {
        EXPECT_EQ(DictionaryNotice(DictionaryDialog::Editor, QString(), exists), editor);
        EXPECT_EQ(DictionaryNotice(DictionaryDialog::Compaction, QString(), exists), compaction);
    }
}

TEST(DialogChecks, AFileThatIsGoneIsToldTheSameWayByBoth)
{
    const QString path = QStringLiteral("C:\\dic\\gone.mdb");
    const Notice gone{
        QStringLiteral("データベースファイルパスの誤り"),
        QStringLiteral("現在選択されている辞書のデータベースのファイルパス見つかりません！\r\n\r\n"
                       "辞書の設定後にファイルまたはパスを削除あるいは変更した可能性があります。\r\n"
                       "メニューバーから [ツール] ＞ [辞書設定] を選択してデータベースのファイルパス\r\n"
                       "を確認してください")};
    for (const DictionaryDialog dialog : {DictionaryDialog::Editor, DictionaryDialog::Compaction}) {
        EXPECT_EQ(DictionaryNotice(dialog, path, false), gone);
        EXPECT_EQ(DictionaryNotice(dialog, path, true), std::nullopt);
    }
}

TEST(DialogChecks, CompositeSearchIsRefusedByTheModesThatCannotHaveIt)
{
    const auto text = [](const QString &mode) {
        return QStringLiteral("複合検索は現在選択中の") + mode +
               QStringLiteral("モードでは使用できません！\r\n"
                              "前方・中間・後方一致検索ならびにワイルドカード検索時にのみ使用可能です。");
    };
    struct Case {
        std::uint8_t mode;
        QString name;
    };
    const Case refused[] = {{ModeIncremental, QStringLiteral("インクリメンタル検索")},
                            {ModeMeaning, QStringLiteral("訳語項目中の文字列検索")},
                            {ModeExample, QStringLiteral("用例項目中の文字列検索")}};
    for (const Case &each : refused)
        EXPECT_EQ(CompositeNotice(each.mode),
                  (Notice{QStringLiteral("複合検索使用不可検索モード"), text(each.name)}))
            << int{each.mode};
    for (const std::uint8_t mode : {ModePrefix, ModeMiddle, ModeSuffix, ModeWildcard, ModeWeb})
        EXPECT_EQ(CompositeNotice(mode), std::nullopt) << int{mode};
}

TEST(DialogChecks, SpeechThatIsNotThereIsTold)
{
    EXPECT_EQ(SpeechNotice(true), std::nullopt);
    EXPECT_EQ(SpeechNotice(false),
              (Notice{QStringLiteral("英文発音機能未設定"),
                      QStringLiteral(
                          "「英文発音機能を使用しない」を選択、またはキャラクタ ファイルが未設定です！\r\n"
                          "メニューバーから [ツール] ＞ [キャラクタの設定] を選択して"
                          "設定をおこなってください。")}));
}
