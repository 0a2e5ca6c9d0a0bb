#include "management/frmMstmnt.h"

#include "core/shared_state.h"
#include "management/questions.h"
#include "platform/controls/handler.h"
#include "platform/host/plain_texts.h"
#include "platform/text/trim.h"
#include "presentation/frmFind.h"
#include "search/view.h"
#include "ui_frmMstmnt.h"

#include <utility>

using controls::RunHandler;

frmMstmnt::frmMstmnt() : Form(QStringLiteral("frmMstmnt")), ui(std::make_unique<Ui::frmMstmnt>())
{
    ui->setupUi(this);
    ConnectHandlers();
}

frmMstmnt::~frmMstmnt() = default;

void frmMstmnt::ConnectHandlers()
{
    const auto onClick = [this](QPushButton *button, auto handler) {
        connect(button, &QPushButton::clicked, this, [handler] { RunHandler(handler); });
    };
    onClick(ui->Command1, [this] { MoveTo(Step::First); });
    onClick(ui->Command2, [this] { MoveTo(Step::Previous); });
    onClick(ui->Command3, [this] { MoveTo(Step::Next); });
    onClick(ui->Command4, [this] { MoveTo(Step::Last); });
    onClick(ui->Command5, [this] { Command5_Click(); });
    onClick(ui->Command6, [this] { Command6_Click(); });
    onClick(ui->Command7, [this] { Command7_Click(); });
    onClick(ui->Command8, [this] { Command8_Click(); });
    onClick(ui->Command9, [this] { Command9_Click(); });
    onClick(ui->Command10, [this] { Command10_Click(); });
    for (auto *box : {ui->Text1, ui->Text2})
        connect(box, &controls::TextBox::Change, this, [this] { RunHandler([this] { Text_Change(); }); });
    for (auto *box : {ui->Text3, ui->Text4})
        connect(box, &controls::MultiLineBox::Change, this,
                [this] { RunHandler([this] { Text_Change(); }); });
}

void frmMstmnt::Form_Load()
{
    CloseHandled = 0;
    MainWindow()->SetTakesInput(false);
    MainListChanged = 0;
    if (Shared.EditOpenMode == 0) {
        ADODB::Recordset &table = OpenViewTable();
        if (table.Eof()) {
            CloseView();
            EnterAddState();
            return;
        }
        const RecordKey first = KeyOfRow(table);
        Shared.CurrentWord = first.word;
        Shared.CurrentAutoID = first.autoID;
    }
    ShowCurrent();
    if (Shared.EditOpenMode == 1)
        ui->Text3->setFocus();
    EditState = 0;
    host::SetTitle(*this, Caption(QStringLiteral("編集")));
}

QString frmMstmnt::Caption(const QString &state) const
{
    return QStringLiteral("辞書データベース メンテナンス （") + Shared.CurrentDicName +
           QStringLiteral("） - ") + state;
}

void frmMstmnt::Text_Change()
{
    ui->Command6->setEnabled(true);
    ui->Command7->setEnabled(true);
}

void frmMstmnt::OpenAtCurrent(const QString &word, std::int32_t autoID)
{
    OpenViewTable().Seek(word, autoID, ADODB::adSeekFirstEQ);
}

void frmMstmnt::ShowRecord()
{
    // All is read before anything is shown, so that a failure leaves the form as it was.
    const RecordKey key = KeyOfRow(*Shared.ViewRecordset);
    const RecordValues stored = ValuesOfRow(*Shared.ViewRecordset);
    if (stored.wordPhrase == 1)
        ui->Option1->setChecked(true);
    else if (stored.wordPhrase == 2)
        ui->Option2->setChecked(true);
    FillBoxes({stored.word.toString(), stored.pronunciation.toString(), stored.description.toString(),
               stored.example.toString()});
    TakeSnapshot(stored);
    Shared.CurrentWord = key.word;
    Shared.CurrentAutoID = key.autoID;
    // The toolkit would hand the focus of a button that is disabled on to the one that deletes.
    if (ui->Command6->hasFocus() || ui->Command7->hasFocus())
        ui->Text3->setFocus();
    ui->Command6->setEnabled(false);
    ui->Command7->setEnabled(false);
}

void frmMstmnt::FillBoxes(const RecordText &text)
{
    ui->Text1->SetText(text.word);
    ui->Text2->SetText(text.pronunciation);
    ui->Text3->SetText(text.description);
    ui->Text4->SetText(text.example);
}

void frmMstmnt::TakeSnapshot(const RecordValues &stored)
{
    const RecordText text = Typed();
    OrigWord = text.word;
    OrigPronunciation = text.pronunciation;
    OrigDescription = text.description;
    OrigExample = text.example;
    OrigWordPhrase =
        std::in_range<std::uint8_t>(stored.wordPhrase) ? static_cast<std::uint8_t>(stored.wordPhrase) : 0;
    m_stored = stored;
}

void frmMstmnt::ShowCurrent()
{
    OpenAtCurrent(Shared.CurrentWord, Shared.CurrentAutoID);
    ShowRecord();
    CloseView();
}

int frmMstmnt::ChosenWordPhrase() const { return ui->Option1->isChecked() ? 1 : 2; }

RecordText frmMstmnt::Typed() const
{
    return {.word = ui->Text1->Text(),
            .pronunciation = ui->Text2->Text(),
            .description = ui->Text3->Text(),
            .example = ui->Text4->Text(),
            .wordPhrase = static_cast<std::uint8_t>(ChosenWordPhrase())};
}

RecordText frmMstmnt::Shown() const
{
    return {OrigWord, OrigPronunciation, OrigDescription, OrigExample, OrigWordPhrase};
}

RecordValues frmMstmnt::ValuesToStore(int wordPhrase) const
{
    const auto value = [](const QString &now, const QString &shown, const QVariant &stored) {
        return now == shown ? stored : QVariant(text::Trim(now));
    };
    const RecordText typed = Typed();
    return {.word = value(typed.word, OrigWord, m_stored.word),
            .pronunciation = value(typed.pronunciation, OrigPronunciation, m_stored.pronunciation),
            .wordPhrase = wordPhrase,
            .description = value(typed.description, OrigDescription, m_stored.description),
            .example = value(typed.example, OrigExample, m_stored.example)};
}

std::uint8_t frmMstmnt::CheckDirty() { return DirtyKind = DirtyKindOf(Typed(), Shown()); }

std::uint8_t frmMstmnt::HasAnyInput() const { return HoldsText(Typed()) ? 1 : 0; }

std::uint8_t frmMstmnt::IsDictionaryEmpty()
{
    const bool empty = OpenViewTable().Eof();
    CloseView();
    return empty ? 1 : 0;
}

void frmMstmnt::EnableWalking(bool enabled)
{
    for (QPushButton *button : {ui->Command1, ui->Command2, ui->Command3, ui->Command4, ui->Command10})
        button->setEnabled(enabled);
}

void frmMstmnt::EnterAddState()
{
    EditState = 1;
    EnableWalking(false);
    host::SetTitle(*this, Caption(QStringLiteral("新規追加")));
    ui->Command7->setText(QStringLiteral("キャンセル(&U)"));
    FillBoxes({});
    ui->Option1->setChecked(true);
    const QString empty = QStringLiteral("");
    TakeSnapshot({.word = empty, .pronunciation = empty, .description = empty, .example = empty});
    for (QPushButton *button : {ui->Command5, ui->Command6, ui->Command8})
        button->setEnabled(false);
}

void frmMstmnt::EnterEditState()
{
    EditState = 0;
    host::SetTitle(*this, Caption(QStringLiteral("編集")));
    ui->Command5->setEnabled(true);
    ui->Command8->setEnabled(true);
}

void frmMstmnt::MoveTo(Step step)
{
    if (!MayLeave(QStringLiteral("内容が変更されています。保存しますか？")))
        return;
    OpenAtCurrent(Shared.CurrentWord, Shared.CurrentAutoID);
    ADODB::Recordset &table = *Shared.ViewRecordset;
    bool beyond = false;
    switch (step) {
    case Step::First: table.MoveFirst(); break;
    case Step::Last: table.MoveLast(); break;
    case Step::Previous:
        table.MovePrevious();
        beyond = table.Bof();
        if (beyond)
            table.MoveFirst();
        break;
    case Step::Next:
        table.MoveNext();
        beyond = table.Eof();
        if (beyond)
            table.MoveLast();
        break;
    }
    ShowRecord();
    CloseView();
    if (!beyond)
        return;
    if (step == Step::Previous)
        Tell(QStringLiteral("先頭レコードです。これより前に移動できません！"),
             QStringLiteral("先頭レコード"));
    else
        Tell(QStringLiteral("最終レコードです。これより先に移動できません！"),
             QStringLiteral("最終レコード"));
}

void frmMstmnt::Command5_Click()
{
    if (!MayLeave(QStringLiteral("編集作業中です。変更した内容を保存してから追加処理を開始しますか？")))
        return;
    ui->Text1->setFocus();
    EnterAddState();
}

void frmMstmnt::UndoEdits()
{
    if (IsDictionaryEmpty() == 1)
        return;
    OpenAtCurrent(Shared.CurrentWord, Shared.CurrentAutoID);
    // Whoever cancels an adding must come back from it, though his record has gone meanwhile.
    if (EditState == 1 && Shared.ViewRecordset->Eof())
        Shared.ViewRecordset->MoveLast();
    ShowRecord();
    CloseView();
    EnableWalking(true);
    ui->Command7->setText(QStringLiteral("元に戻す(&U)"));
    EnterEditState();
}

void frmMstmnt::Command8_Click()
{
    if (AskYesNo(QStringLiteral("表示中のデータを削除してよろしいですか？"), QStringLiteral("削除確認")) !=
        dialogs::Yes) {
        ui->Text3->setFocus();
        return;
    }
    DeleteRow(OpenViewTable(), {Shared.CurrentWord, Shared.CurrentAutoID});
    CloseView();
    RemoveFromMainList();
    if (IsDictionaryEmpty() == 1) {
        ui->Text1->setFocus();
        EnterAddState();
        return;
    }
    OpenAtCurrent(Shared.CurrentWord, Shared.CurrentAutoID);
    if (Shared.ViewRecordset->Eof())
        Shared.ViewRecordset->MoveLast();
    else
        Shared.ViewRecordset->MoveNext();
    ShowRecord();
    CloseView();
    ui->Text3->setFocus();
}

frmMstmnt::Leave frmMstmnt::SaveOrStay(const QString &question)
{
    if (CheckDirty() == NothingChanged)
        return Leave::Go;
    switch (AskYesNoCancel(question, QStringLiteral("変更確認"))) {
    case dialogs::Yes: return CheckRequiredFields() == 0 && SaveEdits() == 0 ? Leave::Go : Leave::Stay;
    case dialogs::No: return Leave::GivenUp;
    default: ui->Text3->setFocus(); return Leave::Cancelled;
    }
}

bool frmMstmnt::MayLeave(const QString &question)
{
    const Leave leave = SaveOrStay(question);
    return leave == Leave::Go || leave == Leave::GivenUp;
}
