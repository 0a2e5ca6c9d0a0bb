#include "core/shared_state.h"
#include "management/frmMstmnt.h"
#include "management/frmProcessing.h"
#include "management/questions.h"
#include "platform/text/trim.h"
#include "search/pure/like_text.h"
#include "search/view.h"
#include "ui_frmMstmnt.h"

#include <QPointer>
#include <QScopeGuard>

bool frmMstmnt::MaySearch()
{
    if (EditState == 0) {
        const Leave leave =
            SaveOrStay(QStringLiteral("内容が変更されています。検索開始前に変更した内容を保存しますか？"));
        if (leave == Leave::GivenUp)
            UndoEdits();
        return leave == Leave::Go || leave == Leave::GivenUp;
    }
    if (HasAnyInput() == 0)
        return true;
    switch (AskYesNoCancel(QStringLiteral("追加処理中です。検索開始前に変更した内容を保存しますか？"),
                           QStringLiteral("保存確認"))) {
    case dialogs::Yes:
        AddRecord();
        UndoEdits();
        EditState = 0;
        return true;
    case dialogs::No: UndoEdits(); return true;
    default: ui->Text3->setFocus(); return false;
    }
}

void frmMstmnt::Command10_Click()
{
    if (!MaySearch())
        return;
    const QString wanted = dialogs::InputBox(
        QStringLiteral("検索する辞書レコードの見出し語を入力してください..."), QStringLiteral("検索"));
    if (wanted.isEmpty() || !IsLoaded())
        return;
    const QPointer<frmProcessing> processing(new frmProcessing);
    const auto done = qScopeGuard([this, processing] {
        if (processing)
            processing->Unload();
        if (IsLoaded())
            SetTakesInput(true);
    });
    SetTakesInput(false);
    processing->ShowPainted(*this);
    // The form may have been closed in that turn.
    if (IsLoaded() && !FindRecord(EscapeForLike(text::Trim(wanted))))
        Tell(QStringLiteral("指定のレコードは見つかりませんでした。"), QStringLiteral("該当データなし"));
}

bool frmMstmnt::FindRecord(const QString &escaped)
{
    const auto look = [](const QString &statement) {
        Shared.ViewRecordset = Shared.ViewConnection->Execute(statement);
        return !Shared.ViewRecordset->Eof();
    };
    bool found = !OpenViewTable().Eof();
    found = found && (look(WordStatement(escaped)) || look(BeginningStatement(escaped)));
    if (!found) {
        CloseView();
        return false;
    }
    const RecordKey key = KeyOfRow(*Shared.ViewRecordset);
    CloseView();
    OpenAtCurrent(key.word, key.autoID);
    ShowRecord();
    CloseView();
    return true;
}
