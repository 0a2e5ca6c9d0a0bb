#include "core/failure_handling.h"

#include "core/shared_state.h"
#include "platform/dialogs/dialogs.h"
#include "platform/host/host.h"
#include "platform/text/trim.h"
#include "presentation/frmFind.h"

namespace
{

QString ErrorTitle() { return QStringLiteral("エラー"); }

void ShowFailure(const RuntimeError &failure)
{
    dialogs::MsgBox(FailureText(failure), dialogs::OKOnly, ErrorTitle());
}

} // namespace

QString FailureText(const RuntimeError &failure)
{
    return QStringLiteral("エラー番号 ") + text::SignedNumber(failure.number()) + u' ' + failure.source() +
           QStringLiteral(" でエラーが発生しました。\r") + failure.description();
}

void ReleaseView()
{
    Shared.ViewRecordset.reset();
    Shared.ViewConnection.reset();
}

void ReleaseDataObjects()
{
    ReleaseView();
    Shared.SearchRecordset.reset();
    Shared.SearchConnection.reset();
}

void HandleByDefault(const RuntimeError &failure)
{
    host::SetMousePointer(host::PointerDefault);
    ReleaseDataObjects();
    if (frmFind *window = MainWindow()) {
        window->AbandonSearch();
        if (!window->Picture00->isHidden()) {
            window->Picture00->hide();
            window->Picture0->show();
        }
    }
    dialogs::Box box;
    box.title = ErrorTitle();
    box.text = FailureText(failure);
    box.icon = dialogs::Critical;
    box.buttons = {dialogs::ButtonWord(dialogs::OK)};
    box.defaultButton = box.buttons.first();
    box.defaultHandling = true;
    dialogs::Show(box);
}

QString MissingDatabaseHint()
{
    return QStringLiteral("メニューバーの [ツール]から [辞書設定] を選んで確認して下さい。");
}

void ShowMissingDatabase(const QString &lastLine)
{
    dialogs::BeepAndMsgBox(
        host::BeepCritical,
        Shared.CurrentDicPath +
            QStringLiteral(
                "\r\n\r\n上記の辞書データベースが存在しないかレコードが一件も登録されていません。\r\n"
                "また、パスが変更されている可能性もあります。\r\n") +
            lastLine,
        dialogs::Critical,
        QStringLiteral("設定辞書「") + Shared.CurrentDicName + QStringLiteral("」の辞書データベースなし"));
}

void ShowPrintingUnsupported()
{
    dialogs::MsgBox(
        QStringLiteral("ご利用のオペレーティングシステム(OS)ではこの機能はサポートされていません。"),
        dialogs::Exclamation, QStringLiteral("印刷機能未サポート"));
}

void ShowRecords(const std::function<void()> &procedure)
{
    try {
        procedure();
    } catch (const RuntimeError &failure) {
        if (failure.number() == RuntimeError::CannotOpenDatabase ||
            failure.number() == RuntimeError::InvalidCall)
            ShowMissingDatabase(MissingDatabaseHint());
        else
            ShowFailure(failure);
    }
}

void ShowFailures(const std::function<void()> &procedure)
{
    try {
        procedure();
    } catch (const RuntimeError &failure) {
        ShowFailure(failure);
    }
}

void GuardStep(const std::function<void()> &step)
{
    try {
        step();
    } catch (const RuntimeError &failure) {
        HandleByDefault(failure);
    }
}
