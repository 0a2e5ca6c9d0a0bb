#include "management/pure/compaction_paths.h"

#include "core/pure/catalogue_record.h"
#include "core/pure/path_parts.h"
#include "platform/text/trim.h"

#include <QList>
#include <algorithm>

namespace
{

// The codes of boxes and beeps, as the forms hand them on.
constexpr int kOK = 0;
constexpr int kOKCancel = 1;
constexpr int kYesNo = 4;
constexpr int kQuestion = 32;
constexpr int kExclamation = 48;
constexpr int kInformation = 64;

CompactionMessage Warning(const QString &text, const QString &title)
{
    return {text, title, kOK | kExclamation, kExclamation};
}

QString NoFileNameTitle() { return QStringLiteral("バックアップ用データベースファイル名なし"); }

/// "###,###,###,##0" and "#,##0" alike.
QString Bytes(qint64 count) { return text::GroupedNumber(count) + QStringLiteral(" バイト"); }

} // namespace

QStringList CompactionPaths(const QList<Lexicon> &lexicons)
{
    QStringList paths;
    for (const Lexicon &lexicon : lexicons.first(std::min(lexicons.size() - 1, kMostCompactionEntries)))
        paths.append(lexicon.DicPath);
    return paths;
}

QString DefaultBackupPath(const QString &dictionaryPath)
{
    const qsizetype name = dictionaryPath.lastIndexOf(u'\\') + 1;
    return dictionaryPath.first(name) + QStringLiteral("BKUP_") + dictionaryPath.sliced(name);
}

std::optional<CompactionMessage> FindBackupPathFault(const QString &backupPath)
{
    if (!backupPath.contains(u'.'))
        return Warning(QStringLiteral("バックアップファイル名とその拡張子を分けるピリオドが\r\n"
                                      "新規ファイル名の中にありません！"
                                      "ファイル名と拡張子を正しく指定してください。"),
                       QStringLiteral("拡張子(またはピリオド)なし"));
    if (!backupPath.contains(u'\\'))
        return Warning(
            QStringLiteral("バックアップファイルが保存されるドライブまたはフォルダとを分ける\r\n\r\n"
                           "円マーク(\\)がこのファイルパス中ありません！"
                           "ファイルパスを正しく指定してください。"),
            QStringLiteral("パスが不正(円マークなし)"));
    if (DriveOfPath(backupPath).isEmpty())
        return Warning(
            QStringLiteral("バックアップファイルのパス中にドライブ名が見つかりません。(例：「C:\\」) \r\n\r\n"
                           "確認後、ドライブならびにパスを正しく指定してください。"),
            QStringLiteral("ドライブ名なし"));
    if (text::Trim(StemOfPath(backupPath, 2)).isEmpty())
        return Warning(QStringLiteral("バックアップファイル名が拡張子のみです！\r\n\r\n"
                                      "ファイル名を正しく指定してください。"),
                       QStringLiteral("バックアップファイル名なし"));
    return std::nullopt;
}

CompactionMessage NoDictionaryChosen()
{
    return Warning(
        QStringLiteral("最適化を行うファイルのファイルパスならびにファイル名が指定されていません！\r\n\r\n"
                       "リストの中からファイルを指定してください。"),
        NoFileNameTitle());
}

CompactionMessage DictionaryMissing(const QString &dictionaryPath)
{
    return {QStringLiteral("「") + dictionaryPath +
                QStringLiteral(
                    "」は存在しません！\r\n\r\n"
                    "このファイルは辞書の設定後に名前が変更されたか別のフォルダに移動、または削除された"
                    "可能性があります。"),
            QStringLiteral("最適化ファイルなし"), kOK | kQuestion, kQuestion};
}

CompactionMessage NoBackupPath()
{
    return Warning(QStringLiteral("ファイルパスならびにファイル名が指定されていません！\r\n\r\n"
                                  "ダイアログボックスを表示し、ファイルを指定してください。"),
                   NoFileNameTitle());
}

CompactionMessage ExtensionMissing()
{
    return {QStringLiteral("バックアップファイル名に拡張子がありません。\r\n\r\n"
                           "拡張子「mdb」が必要です。ファイル名の後に「mdb」を付けますか？"),
            QStringLiteral("ファイル拡張子なし"), kYesNo | kQuestion, kQuestion};
}

CompactionMessage OtherExtension(const QString &extension)
{
    return {QStringLiteral("Wordmere辞書ファイルの拡張子は「mdb」です。"
                           "継続してこの拡張子を使用することをお勧めします。\r\n\r\n拡張子が「") +
                extension +
                QStringLiteral("」では復旧後に正しく使用出来ない可能性があります。\r\n\r\n"
                               "ＯＫボタンをクリックすると拡張子は自動的に「") +
                extension + QStringLiteral("」から「mdb」に置換されます。"),
            QStringLiteral("異なったファイル拡張子"), kOKCancel | kExclamation, kExclamation};
}

CompactionMessage BackupExists(const QString &backupPath)
{
    return {QStringLiteral("バックアップファイル名「") + backupPath +
                QStringLiteral("」は既に存在します！\r\n\r\n"
                               "別の名前に変更するか既存のファイルを別のフォルダに移動、"
                               "または削除してから処理を行ってください。"),
            QStringLiteral("データベースファイル名の重複"), kOK | kExclamation, kQuestion};
}

CompactionMessage BadDrive()
{
    return {QStringLiteral("最適化またはバックアップファイルの指定したパスのドライブ名が不正です！\r\n\r\n"
                           "ドライブがCD-ROMなどの読み取り専用かリムーバブルデスクの可能性があります。"),
            QStringLiteral("ドライブ名の不正"), kOK | kQuestion, kQuestion};
}

CompactionMessage SameFiles()
{
    return Warning(QStringLiteral("最適化ファイルとバックアップファイルが同じです！\r\n\r\n"
                                  "ファイルを正しく選択してください。"),
                   QStringLiteral("同一ファイル"));
}

CompactionMessage WithoutBackup()
{
    return {
        QStringLiteral("「バックアップファイルを作成しない」オプションが選択されています！\r\n\r\n"
                       "本当にバックアップファイルを作成せずに処理を進めてよろしいですか？"),
        QStringLiteral("バックアップファイル作成確認"),
        kOKCancel | kQuestion,
        kQuestion,
    };
}

CompactionMessage TooLittleSpace(qint64 needed, qint64 available)
{
    return Warning(QStringLiteral("最適化を行うためには、バックアップファイルを保存するディスクドライブに"
                                  "最適化するファイルと同じサイズのファイルを保存できる空き領域が必要です。"
                                  "空き容量を確保してからもう一度処理を行ってください。\r\n\r\n"
                                  "最適化するファイルのサイズ： ") +
                       Bytes(needed) + QStringLiteral("\r\n利用可能なドライブの空き容量： ") +
                       Bytes(available),
                   QStringLiteral("ドライブの空き容量不足"));
}

CompactionMessage CompactionDone(qint64 oldLength, qint64 newLength)
{
    return {QStringLiteral("データベースの最適化は無事完了しました。\r\n\r\n最適化前のファイルのサイズ： ") +
                Bytes(oldLength) + QStringLiteral("\r\n最適化後のファイルのサイズ： ") + Bytes(newLength),
            QStringLiteral("最適化完了"), kOK | kExclamation, kInformation};
}

CompactionMessage NotWhileWorking()
{
    return {QStringLiteral("[×]ボタンをクリックして処理をキャンセルできません！\r\n\r\n"
                           "最適化処理が終了するまでしばらくお待ちください。"),
            QStringLiteral("キャンセル不可"), kOK | kExclamation, 0};
}

QString WithExtensionAdded(const QString &path)
{
    return path + (path.endsWith(u'.') ? QStringLiteral("mdb") : QStringLiteral(".mdb"));
}

QString WithExtensionReplaced(const QString &path) { return StemOfPath(path, 1) + QStringLiteral(".MDB"); }
