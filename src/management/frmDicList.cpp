#include "management/frmDicList.h"

#include "core/catalogue.h"
#include "core/pure/app_files.h"
#include "core/shared_state.h"
#include "management/pure/dictionary_dialog_layout.h"
#include "management/pure/entry_checks.h"
#include "management/questions.h"
#include "platform/controls/connect_handler.h"
#include "platform/controls/twips.h"
#include "platform/dialogs/dialogs.h"
#include "platform/failure/runtime_error.h"
#include "platform/files/file_operations.h"
#include "platform/host/host.h"
#include "platform/host/plain_texts.h"
#include "platform/text/fold.h"
#include "platform/text/trim.h"
#include "presentation/frmFind.h"
#include "ui_frmDicList.h"

namespace
{

QString BrowsingCaption() { return QStringLiteral("辞書設定"); }
QString AddingCaption() { return QStringLiteral("新規追加"); }
QString EditingCaption() { return QStringLiteral("編集"); }

/// The length of a file for the user. The format has a place for no digit alone: an empty file shows none.
QString LengthText(qint64 length) { return length == 0 ? QString() : text::GroupedNumber(length); }

void TellNothingSelected(const QString &firstLine)
{
    Tell(firstLine + QStringLiteral("\r\n\r\nリストの中から辞書クリックして選択してください。"),
         QStringLiteral("辞書の未選択"));
}

} // namespace

frmDicList::frmDicList() : Form(QStringLiteral("frmDicList")), m_ui(std::make_unique<Ui::frmDicList>())
{
    m_ui->setupUi(this);
    SetDialogFrame();
    ConnectHandlers();
}

frmDicList::~frmDicList() = default;

void frmDicList::ConnectHandlers()
{
    const auto onClick = [this](QPushButton *button, void (frmDicList::*handler)()) {
        controls::ConnectHandler(button, &QPushButton::clicked, this, handler);
    };
    onClick(m_ui->ButtonAdd, &frmDicList::ButtonAdd_Click);
    onClick(m_ui->ButtonChange, &frmDicList::ButtonChange_Click);
    onClick(m_ui->ButtonDelete, &frmDicList::ButtonDelete_Click);
    onClick(m_ui->ButtonQuit, &frmDicList::ButtonQuit_Click);
    onClick(m_ui->Command1, &frmDicList::Command1_Click);
    onClick(m_ui->ButtonOK, &frmDicList::ButtonOK_Click);
    onClick(m_ui->ButtonCancel, &frmDicList::ButtonCancel_Click);
    using controls::ListBox;
    controls::ConnectHandler(m_ui->DicList, &ListBox::Click, this, &frmDicList::DicList_Click);
    for (const auto signal : {&ListBox::DblClick, &ListBox::DblClickBesideRows})
        controls::ConnectHandler(m_ui->DicList, signal, this, &frmDicList::DicList_DblClick);
}

void frmDicList::Form_Load()
{
    if (frmFind *window = MainWindow())
        window->SetTakesInput(false);
    m_isDicListDirty = 0;
    if (Shared.CatalogueFlag1 != 0)
        FillDicList();
    ReturnToBrowsing();
    if (m_ui->DicList->ListCount() == 0)
        m_ui->ButtonAdd->setFocus();
    Centre();
}

void frmDicList::Form_Unload(controls::UnloadReason)
{
    if (frmFind *window = MainWindow())
        window->SetTakesInput(true);
}

void frmDicList::FillDicList()
{
    m_ui->DicList->Clear();
    for (const QString &name : DicNames(Shared.Lexicons))
        m_ui->DicList->AddItem(name);
}

void frmDicList::EnableFields(bool fields)
{
    for (QWidget *control : std::initializer_list<QWidget *>{m_ui->Text1, m_ui->Text2, m_ui->Command1,
                                                             m_ui->ButtonOK, m_ui->ButtonCancel})
        control->setEnabled(fields);
    for (QWidget *control : std::initializer_list<QWidget *>{
             m_ui->DicList, m_ui->ButtonAdd, m_ui->ButtonChange, m_ui->ButtonDelete, m_ui->ButtonQuit})
        control->setEnabled(!fields);
}

void frmDicList::ShowLayout(bool isEditing)
{
    for (QWidget *control : std::initializer_list<QWidget *>{
             m_ui->DicList, m_ui->ButtonAdd, m_ui->ButtonChange, m_ui->ButtonDelete, m_ui->ButtonQuit})
        control->setVisible(!isEditing);
    const DictionaryDialogLayout layout = LayoutDictionaryDialog(isEditing);
    controls::Place(m_ui->DicList, layout.list);
    controls::Place(m_ui->ButtonAdd, layout.addButton);
    controls::Place(m_ui->ButtonChange, layout.changeButton);
    controls::Place(m_ui->ButtonDelete, layout.deleteButton);
    controls::Place(m_ui->ButtonQuit, layout.quitButton);
    controls::Place(m_ui->Frame1, layout.nameFrame);
    controls::Place(m_ui->Frame2, layout.fileFrame);
    controls::Place(m_ui->hintLabel, layout.hint);
    controls::Place(m_ui->ButtonOK, layout.okButton);
    controls::Place(m_ui->ButtonCancel, layout.cancelButton);
    setFixedSize(controls::Pixels(layout.width), controls::Pixels(layout.height));
}

void frmDicList::BeginEditing(const QString &caption)
{
    host::SetTitle(*this, caption);
    EnableFields(true);
    ShowLayout(true);
    SetKeyButtons(m_ui->ButtonOK, m_ui->ButtonCancel);
    FocusName();
}

void frmDicList::ReturnToBrowsing()
{
    host::SetTitle(*this, BrowsingCaption());
    EnableFields(false);
    ShowLayout(false);
    SetKeyButtons(m_ui->ButtonChange, m_ui->ButtonQuit);
    m_ui->DicList->setFocus();
}

void frmDicList::FocusName()
{
    m_ui->Text1->setFocus();
    m_ui->Text1->selectAll();
}

void frmDicList::ShowPath(const QString &path)
{
    m_ui->Text2->SetText(path);
    m_ui->Text2->setCursorPosition(0);
    m_ui->Text2->setToolTip(path);
}

void frmDicList::ClearFields()
{
    ShowPath(QString());
    m_ui->Label1->clear();
    m_ui->Label2->clear();
}

void frmDicList::ShowSelectedDictionary()
{
    const QString name = m_ui->DicList->Text();
    if (const qsizetype slot = FindDicName(Shared.Lexicons, name); slot >= 0) {
        const Lexicon &entry = Shared.Lexicons->at(slot);
        m_ui->Text1->SetText(text::Trim(entry.DicName));
        ShowPath(text::Trim(entry.DicPath));
        ShowFileDetails(text::Trim(entry.DicPath));
    }
    m_savedDicName = name;
}

void frmDicList::ShowFileDetails(const QString &path)
{
    try {
        const QString length = LengthText(files::Length(path));
        const QString time = files::Modified(path).toString(QStringLiteral("yyyy/MM/dd H:mm:ss"));
        m_ui->Label1->setText(QStringLiteral("ファイルサイズ： ") + length + QStringLiteral(" バイト"));
        m_ui->Label2->setText(QStringLiteral("更新日時： ") + time);
    } catch (const RuntimeError &) {
        m_ui->Label1->setText(QStringLiteral("上記ファイルを開けませんでした。"));
        m_ui->Label2->clear();
    }
}

void frmDicList::DicList_Click() { ShowSelectedDictionary(); }

void frmDicList::DicList_DblClick()
{
    ShowSelectedDictionary();
    BeginEditing(EditingCaption() + QStringLiteral(" - ") + m_ui->DicList->Text());
}

void frmDicList::ButtonAdd_Click()
{
    m_ui->Text1->SetText(MakeNewDicName(Shared.Lexicons));
    ClearFields();
    BeginEditing(AddingCaption());
}

void frmDicList::ButtonChange_Click()
{
    if (m_ui->DicList->ListIndex() < 0)
        TellNothingSelected(QStringLiteral("編集する辞書名が選択されていません！"));
    else
        DicList_DblClick();
}

void frmDicList::ButtonCancel_Click()
{
    ReturnToBrowsing();
    m_ui->Text1->setEnabled(true);
}

void frmDicList::ResetMainWindow(frmFind &window)
{
    if (Shared.SearchMode != ModeIncremental)
        files::DeleteIfThere(ResultStorePath());
    window.List1->Clear();
    window.ShowBlankPage();
}

void frmDicList::Command1_Click()
{
    const QString path =
        text::Trim(dialogs::OpenFile(QStringLiteral("辞書データファイルの選択"),
                                     QStringLiteral("Wordmere Files (*.mdb) | *.mdb"), true, false));
    if (path.isEmpty())
        return;
    frmFind *window = MainWindow();
    // Names are the same in any case and width; a path is what the host takes for a file.
    const bool isInUse =
        window && text::Same(text::Trim(m_ui->Text1->Text()), text::Trim(window->Combo1->Text()));
    if (isInUse && path != text::Trim(m_ui->Text2->Text())) {
        window->AbandonSearch();
        ResetMainWindow(*window);
        window->StatusBar1->SetSimpleText(QStringLiteral("Ready"));
    }
    ShowPath(path);
    ShowFileDetails(path);
}

void frmDicList::ButtonOK_Click()
{
    const EntryDraft draft{.isEdit = host::Title(*this).startsWith(EditingCaption()),
                           .savedName = m_savedDicName,
                           .name = text::Trim(m_ui->Text1->Text()),
                           .path = text::Trim(m_ui->Text2->Text())};
    if (const auto fault = FindFault(draft, Shared.Lexicons, files::Exists)) {
        Tell(fault->text, fault->title);
        if (fault->isDuplicate)
            FocusName();
        return;
    }
    EnableFields(false);
    if (!draft.isEdit && DicNameExists(Shared.Lexicons, draft.name) != 0) {
        // The fields are disabled by now, and the list stays hidden: the window frame alone is left.
        const EntryFault fault = DuplicateName(draft.name);
        Tell(fault.text, fault.title);
        FocusName();
        return;
    }
    if (!draft.isEdit) {
        m_ui->DicList->AddItem(draft.name);
        AddLexicon(Shared.Lexicons, draft.name, draft.path);
    } else if (ChangeLexicon(Shared.Lexicons, m_savedDicName, draft.name, draft.path)) {
        m_ui->DicList->RemoveItem(m_ui->DicList->ListIndex());
        m_ui->DicList->AddItem(draft.name);
    }
    m_isDicListDirty = -1;
    ReturnToBrowsing();
    m_ui->DicList->SetListIndex(m_ui->DicList->FindStringExact(draft.name));
}

void frmDicList::ButtonDelete_Click()
{
    if (m_ui->DicList->ListIndex() < 0) {
        TellNothingSelected(QStringLiteral("削除する辞書が選択されていません！"));
        return;
    }
    const QString name = m_ui->DicList->Text();
    if (AskYesNo(QStringLiteral("設定済み辞書「") + name + QStringLiteral("」を削除してもよろしいですか？"),
                 QStringLiteral("削除確認")) != dialogs::Yes)
        return;
    DeleteLexicon(Shared.Lexicons, name);
    m_ui->Text1->SetText(QString());
    ClearFields();
    m_ui->DicList->RemoveItem(m_ui->DicList->ListIndex());
    m_isDicListDirty = -1;
}

void frmDicList::ButtonQuit_Click()
{
    if (m_isDicListDirty != 0)
        SaveAndRefresh();
    Unload();
}

void frmDicList::SaveAndRefresh()
{
    if (SaveLexicons(CatalogueFileName()) == 0)
        files::DeleteIfThere(AppFilePath(CatalogueFileName()));
    const std::int16_t result = LoadLexicons(CatalogueFileName());
    Shared.CatalogueFlag1 = result;
    Shared.CatalogueFlag2 = result;
    if (result != 0)
        FillDicList();
    MainWindow()->ResetMainView(true);
}
