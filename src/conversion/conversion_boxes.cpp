#include "conversion/conversion_boxes.h"

#include "core/pure/path_parts.h"
#include "platform/dialogs/dialogs.h"
#include "platform/host/host.h"
#include "platform/text/trim.h"

namespace
{

using namespace dialogs;
using namespace Qt::StringLiterals;

QString SourceStem(const ConvFiles &files)
{
    constexpr int alone = 2;
    return StemOfPath(files.source, alone);
}

QString KeptIn(const QString &logPath)
{
    return u"変換不可レコードは、"_s + logPath + u" へ保存されました。"_s;
}

QString Count(std::int32_t count) { return text::GroupedNumber(count) + u"件"_s; }

QString IsItReally(const QString &formatName)
{
    return u"変換元のファイルは間違いなく「"_s + formatName + u"」形式の辞書ですか？\r\n\r\n"_s;
}

} // namespace

int Show(const ConversionBox &box)
{
    if (box.beep != host::BeepNone)
        host::MessageBeep(box.beep);
    return MsgBox(box.text, box.style, box.title);
}

bool Agrees(const ConversionBox &box)
{
    const int answer = Show(box);
    return answer == Yes || answer == OK;
}

ConversionBox ConfirmationBox(const QString &formatName)
{
    return {host::BeepQuestion, YesNo + Exclamation, u"変換内容の確認"_s,
            u"変換元の ｢"_s + formatName + u"｣ 形式のテキストファイルを\r\n"_s +
                u"Wordmereで使用するためのデータ形式に変換します。\r\n\r\n"_s +
                u"データ形式、ファイル名等に誤りのないことを再度確認してください。\r\n\r\n"_s +
                u"データ変換処理を開始してよろしいですか？"_s};
}

ConversionBox CheckBox(FileCheck check, const ConvFiles &files)
{
    switch (check) {
    case FileCheck::SourceEmpty:
        return {host::BeepExclamation, OKOnly + Exclamation, u"変換元テキストファイルの未選択"_s,
                u"変換元のテキストファイルが選択されていません！\r\n\r\n"_s +
                    u"ダイアログボックスを表示し、ファイルを指定してください。"_s};
    case FileCheck::TargetEmpty:
        return {host::BeepExclamation, OKOnly + Exclamation, u"辞書データベースファイル名なし"_s,
                u"変換先のWordmere辞書ファイル名がありません！\r\n\r\n"_s +
                    u"ダイアログボックスを表示し、ファイルを指定してください。"_s};
    case FileCheck::NoPeriod:
        return {host::BeepExclamation, OKOnly + Exclamation, u"ピリオドなし"_s,
                u"変換先のWordmere辞書ファイル名とその拡張子を分けるピリオドが\r\n"_s +
                    u"変換先ファイル中にありません！ファイル名を正しく指定してください。"_s};
    case FileCheck::NoBackslash:
        return {host::BeepExclamation, OKOnly + Exclamation, u"円マークなし"_s,
                u"変換先のWordmere辞書ファイルの存在するドライブまたはフォルダとを分ける\r\n\r\n"_s +
                    u"円マーク(\\)がこのファイルパス中ありません！ファイルパスを正しく指定してください。"_s};
    case FileCheck::NoDrive:
        return {
            host::BeepQuestion, OKOnly + Exclamation, u"ドライブ名なし"_s,
            u"変換先のWordmere辞書ファイルのパス中にドライブ名が見つかりません。(例：「C:\\」) \r\n\r\n"_s +
                u"確認後、ドライブならびにパスを正しく指定してください。"_s};
    case FileCheck::NoStem:
        return {host::BeepExclamation, OKOnly + Exclamation, u"辞書データベースファイル名なし"_s,
                u"変換先のWordmere辞書ファイル名が拡張子のみです！\r\n\r\n"_s +
                    u"ファイル名を正しく指定してください。"_s};
    case FileCheck::NoExtension:
        return {host::BeepInformation, YesNo + Information, u"ファイル拡張子なし"_s,
                u"変換先のWordmere辞書ファイル名に拡張子がありません。\r\n\r\n"_s +
                    u"拡張子「mdb」が必要です。ファイル名の後に「mdb」を付けますか？"_s};
    case FileCheck::WrongExtension: {
        const QString ext = UpperExtOfPath(files.target);
        return {host::BeepQuestion, OKCancel + Exclamation, u"ファイル拡張子の誤り"_s,
                u"変換先のWordmere辞書ファイルの拡張子は「mdb」です。\r\n\r\n"_s + u"拡張子が「"_s + ext +
                    u"」ではWordmere形式の辞書に正しく変換出来ません。\r\n\r\n"_s +
                    u"OKボタンをクリックすると拡張子は自動的に「"_s + ext +
                    u"」から「mdb」に置換されます。"_s};
    }
    case FileCheck::TargetExists:
        return {host::BeepQuestion, YesNo + Question, u"データベースファイルあり"_s,
                u"変換先のWordmere辞書ファイル「"_s + files.target + u"」は既に存在します！\r\n\r\n"_s +
                    u"この辞書に変換元のデータが追加されます。追加後の辞書は元の状態には戻りません。\r\n"_s +
                    u"追加する場合は、変換処理前に辞書ファイルのバックアップをお勧めします。\r\n\r\n"_s +
                    u"このまま変換元のデータを追加してよろしいですか？"_s};
    case FileCheck::PdicBinary:
        return {
            host::BeepQuestion, YesNo + Exclamation, u"ＰＤＩＣテキストの確認"_s,
            u"変換元のテキストファイル「"_s + SourceStem(files) + u"」の拡張子は「DIC」です。\r\n\r\n"_s +
                u"拡張子が「DIC」のファイルは多くの場合、ＰＤＩＣ専用のデータ形式で'バイナリ'ファイルです。\r\n\r\n"_s +
                u"現在、Wordmereでは変換元ファイルは'テキスト'ファイルのみ可能であり、ＰＤＩＣ'バイナリ'形式のファイルが"_s +
                u"選択された場合、正しく変換できません。\r\n\r\n"_s +
                u"変換元のファイルは間違いなくＰＤＩＣ'テキスト'ファイルですか？"_s};
    case FileCheck::GlossaryExtension:
        return {
            host::BeepQuestion, YesNo + Exclamation, u"変換元ファイルの確認"_s,
            u"変換元のテキストファイル「"_s + SourceStem(files) + u"」の拡張子は「"_s +
                UpperExtOfPath(files.source) + u"」です。\r\n\r\n"_s +
                u"'MS Glossary'ファイルの拡張子は通常、カンマ区切りデータの「CSV」が使用されています。\r\n\r\n"_s +
                u"変換元ファイルを誤って選択するとデータは正しく変換できません。\r\n\r\n"_s +
                u"変換元のファイルは間違いなく'MS Glossary'ファイルですか？"_s};
    }
    return {};
}

ConversionBox CountFailedBox(const QString &formatName)
{
    return {host::BeepNone, OKOnly + Critical, u"データ変換異常終了"_s,
            u"レコード変換中にエラーが発生しました。処理を中断します\r\n\r\n"_s + IsItReally(formatName) +
                u"変換元のファイルならびに変換ファイルのデータ形式を確認してください。"_s};
}

ConversionBox CountCancelledBox()
{
    return {host::BeepNone, OKOnly, {}, u"レコード件数確認はキャンセルされました。"_s};
}

ConversionBox NoDataBox(const QString &sourcePath)
{
    return {host::BeepNone, OKOnly + Exclamation, u"変換元ファイルにデータなし"_s,
            u"変換元のファイル「"_s + sourcePath + u"」にはデータが存在しません！\r\n\r\n"_s +
                u"ファイルの内容を確認後、もう一度処理をおこなってください。"_s};
}

ConversionBox OddLinesBox(const QString &formatName)
{
    return {
        host::BeepQuestion, OKCancel + Exclamation, u"変換元レコードの行数誤り"_s,
        u"変換元のレコード行数が奇数です。\r\n"_s +
            u"このデータ形式は奇数行が見出し語、偶数数行が訳語の２行一組の形式から成るテキストファイルです。\r\n\r\n"_s +
            IsItReally(formatName) +
            u"このまま継続しますと最後のレコードは処理されず、データ形式誤りのエラーメッセージが表示されます。\r\n\r\n"_s +
            u"[OKボタン]をクリックするとこのまま処理を続けます。"_s};
}

ConversionBox ManyBadRecordsBox(const QString &formatName)
{
    return {host::BeepQuestion, OKCancel + Exclamation, u"変換不可レコードの多数検出"_s,
            u"正しく変換されないレコードが現時点で１００件を超えました。\r\n\r\n"_s +
                u"変換を開始した直後にこのメッセージが現れた場合、指定した変換元辞書のファイル形式と\r\n"_s +
                u"実際に選択したファイルの形式が異なっている可能性があります。\r\n\r\n"_s +
                IsItReally(formatName) + u"[OKボタン]をクリックするとこのまま処理を続けます。"_s};
}

ConversionBox RunFailedBox(const RuntimeError &failure)
{
    return {host::BeepNone, OKOnly + Critical, u"変換処理エラー"_s,
            u"変換元のファイルを確認してください。\r\n\r\n"_s + u"エラー番号: "_s +
                QString::number(failure.number()) + u"\r\nエラーソース: "_s + failure.source() +
                u"\r\nエラー内容: "_s + failure.description()};
}

ConversionBox NoPairBox()
{
    return {host::BeepNone, OKOnly + Exclamation, u"変換元のファイルの誤り"_s,
            u"変換元のファイルがＰＤＩＣテキスト形式とは異なるか\r\n"_s +
                u"またはバイナリ形式のファイルである可能性があります。\r\n"_s +
                u"変換元のファイルが「テキスト」形式であることを\r\n"_s +
                u"再度確認してからもう一度処理を行ってください。"_s};
}

ConversionBox CloseRefusedBox()
{
    return {host::BeepNone, OKOnly + Exclamation, u"[×]ボタン使用不可"_s,
            u"[×]ボタンをクリックして処理をキャンセルできません！\r\n\r\n"_s +
                u"[キャンセル]ボタンをクリックしてキャンセルしてください。"_s};
}

ConversionBox UnfinishedBox(std::int32_t badCount, const QString &logPath)
{
    QString words = u"変換処理は完了を待たずにキャンセルされました。"_s;
    if (!logPath.isEmpty())
        words += u"\r\n\r\n処理中に変換できないレコードが"_s + Count(badCount) + u"ありました。\r\n\r\n"_s +
                 KeptIn(logPath);
    return {host::BeepNone, OKOnly + Information, u"変換処理未完了"_s, words};
}

ConversionBox FinishedBox(std::int32_t recordNo, std::int32_t badCount, const QString &logPath)
{
    QString words = u"変換元レコード数: "_s + Count(recordNo) + u"\r\n\r\n変換不可レコード数: "_s +
                    Count(badCount) + u"\r\n\r\n最終変換レコード数: "_s + Count(recordNo - badCount);
    if (!logPath.isEmpty())
        words += u"\r\n\r\n\r\n"_s + KeptIn(logPath);
    return {host::BeepNone, OKOnly + Information, u"変換処理終了"_s, words};
}

ConversionBox PlainlyFinishedBox() { return {host::BeepNone, OKOnly, {}, u"無事変換されました。"_s}; }
