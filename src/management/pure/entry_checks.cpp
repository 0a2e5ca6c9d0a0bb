#include "management/pure/entry_checks.h"

#include "core/pure/app_files.h"
#include "platform/text/fold.h"

namespace
{

/// What the two texts on a length that is too great have in common. The second limit is not the one that
/// its text tells.
QString TooLong(const QString &what, const QString &subject, qsizetype length)
{
    return QStringLiteral("%1が長すぎます！ (文字長: %2 バイト)\r\n\r\n"
                          "%3の長さは半角文字一文字を１、全角文字一文字を２\r\n"
                          "と計算して、合計が５０文字(バイト)以内にしてください。")
        .arg(what)
        .arg(length)
        .arg(subject);
}

EntryFault NoFile()
{
    return {QStringLiteral("辞書データファイルが選択されていません！\r\n\r\n"
                           "右下のボタンをクリックしてダイアログボックスを表示し、\r\n"
                           "辞書データファイルを選択してください。"),
            QStringLiteral("辞書データファイルの未選択")};
}

EntryFault NoName()
{
    return {
        QStringLiteral("辞書名が入力されていません！\r\n\r\n任意の辞書名を入力してください。"),
        QStringLiteral("辞書名なし"),
    };
}

EntryFault MissingFile(const QString &path)
{
    return {
        QStringLiteral("辞書データベース「") + path +
            QStringLiteral("」は存在しません！\r\n\r\n"
                           "辞書の設定後にデータファイルを削除、またはパス（保存場所）が変更されています。"
                           "\r\n確認後、正しい辞書データファイルを選択してください。"),
        QStringLiteral("辞書データファイルパスの誤り")};
}

} // namespace

std::optional<EntryFault> FindFault(const EntryDraft &draft, const LexiconArray &lexicons,
                                    const std::function<bool(const QString &)> &exists)
{
    if (draft.isEdit && !text::Same(draft.name, draft.savedName) && DicNameExists(lexicons, draft.name) != 0)
        return DuplicateName(draft.name);
    if (draft.path.isEmpty())
        return NoFile();
    const qsizetype nameLength = AnsiByteLen(draft.name);
    if (nameLength == 0)
        return NoName();
    const QString name = QStringLiteral("辞書名");
    if (nameLength > kDicNameLength)
        return EntryFault{TooLong(name, name, nameLength), QStringLiteral("不適切な辞書名")};
    if (const qsizetype pathLength = AnsiByteLen(draft.path); pathLength > kDicPathLength)
        return EntryFault{
            TooLong(QStringLiteral("辞書のファイルパス"), QStringLiteral("ファイルパス"), pathLength),
            QStringLiteral("不適切なファイルパス長")};
    if (!exists(draft.path))
        return MissingFile(draft.path);
    return std::nullopt;
}

EntryFault DuplicateName(const QString &name)
{
    return {QStringLiteral("辞書名「") + name +
                QStringLiteral("」は既に使用されています。\r\n\r\n別の名前をお使い下さい。"),
            QStringLiteral("辞書名の重複"), true};
}
