#include "core/failure_handling.h"
#include "core/pure/app_files.h"
#include "core/shared_state.h"
#include "platform/browser/web_browser.h"
#include "platform/files/file_operations.h"
#include "platform/text/fold.h"
#include "platform/text/trim.h"
#include "presentation/frmFind.h"
#include "presentation/target_caption.h"

#include <QAction>
#include <array>

namespace
{

/// The menus of the search modes by their numbers.
constexpr std::array kModeMenus{u"mnuIncSrch",      u"mnuPreSrch",      u"mnuMidSrch", u"mnuPostSrch",
                                u"mnuTxtInMeaning", u"mnuTxtInExample", u"mnuWildCard"};

constexpr std::array kTargetMenus{u"mnuSrchFromAll", u"mnuSrchFromWord", u"mnuSrchFromPhrase"};

/// What the window's caption says behind the name of the program, by the modes' numbers.
constexpr std::array kModeCaptions{u"",
                                   u"- 前方一致検索",
                                   u"- 中間一致検索",
                                   u"- 後方一致検索",
                                   u"- 訳語項目中の文字列検索",
                                   u"- 用例項目中の文字列検索",
                                   u"- ワイルドカード検索"};

} // namespace

void frmFind::CheckModeMenu(std::uint8_t mode)
{
    for (std::size_t i = 0; i < kModeMenus.size(); ++i)
        Menu(QString::fromUtf16(kModeMenus[i]))->setChecked(i == mode);
}

void frmFind::TakeMode(std::uint8_t mode)
{
    CheckModeMenu(mode);
    Shared.SearchMode = mode;
    setWindowTitle(QStringLiteral("Wordmere") + QString::fromUtf16(kModeCaptions.at(mode)));
}

void frmFind::EnterMode(std::uint8_t mode)
{
    AbandonSearch();
    TakeMode(mode);
    if (mode != ModeIncremental)
        for (const char16_t *entry : kTargetMenus)
            Menu(QString::fromUtf16(entry))->setEnabled(true);
    ChangeWordEntryBoxSize(mode == ModeIncremental ? 0 : 1);
    List1->Clear();
    ShowBlankPage();
}

void frmFind::SetListMode(std::uint8_t mode)
{
    ShowFailures([=, this] {
        EnterMode(mode);
        txtFind->setFocus();
    });
}

void frmFind::SetPrefixMode() { SetListMode(ModePrefix); }
void frmFind::SetMiddleMode() { SetListMode(ModeMiddle); }
void frmFind::SetSuffixMode() { SetListMode(ModeSuffix); }
void frmFind::SetWildcardMode() { SetListMode(ModeWildcard); }
void frmFind::SetMeaningMode() { SetListMode(ModeMeaning); }
void frmFind::SetExampleMode() { SetListMode(ModeExample); }

void frmFind::ClearForModeChange()
{
    for (const int number : {14, 15, 17, 18, 19, 20})
        PictureOf(number)->hide();
    StatusBar1->SetSimpleText(QString());
}

void frmFind::mnuPreSrch_Click()
{
    ClearForModeChange();
    SetPrefixMode();
}

void frmFind::mnuMidSrch_Click()
{
    ClearForModeChange();
    SetMiddleMode();
}

void frmFind::mnuPostSrch_Click()
{
    ClearForModeChange();
    SetSuffixMode();
}

void frmFind::mnuWildCard_Click()
{
    ClearForModeChange();
    SetWildcardMode();
}

void frmFind::mnuTxtInMeaning_Click()
{
    ClearForModeChange();
    SetMeaningMode();
}

void frmFind::mnuTxtInExample_Click()
{
    ClearForModeChange();
    SetExampleMode();
}

void frmFind::SetIncrementalMode()
{
    ShowFailures([this] {
        EnterMode(ModeIncremental);
        const QString word = text::Trim(txtFind->Text());
        txtFind->SetText(QString());
        txtFind->SetText(word);
        txtFind->setFocus();
    });
}

void frmFind::mnuIncSrch_Click()
{
    ClearForModeChange();
    for (const int number : {19, 20})
        PictureOf(number)->setVisible(Shared.SearchTarget == TargetAll);
    AbandonSearch();
    files::DeleteIfThere(ResultStorePath());
    txtFind->SetText(QString());
    txtFind->setFocus();
    SetIncrementalMode();
}

void frmFind::SetTarget(std::uint8_t target, const QString &caption)
{
    Shared.SearchTarget = target;
    Label1->setText(caption);
    for (std::size_t i = 0; i < kTargetMenus.size(); ++i) {
        QAction *entry = Menu(QString::fromUtf16(kTargetMenus[i]));
        entry->setChecked(i == target);
        entry->setEnabled(true);
    }
    for (const int number : {19, 20})
        PictureOf(number)->setVisible(target == TargetAll && Shared.SearchMode == ModeIncremental);
}

void frmFind::ChooseTarget(std::uint8_t target, const QString &caption)
{
    SetTarget(target, caption);
    const QString word = text::Trim(txtFind->Text());
    txtFind->SetText(QString());
    txtFind->SetText(word);
    txtFind->setFocus();
    txtFind->CaretToEnd();
}

void frmFind::mnuSrchFromAll_Click() { ChooseTarget(TargetAll, TargetCaption(TargetAll)); }

// The menu's captions have a half-width colon, the label's own cycle a full-width one.
void frmFind::mnuSrchFromWord_Click() { ChooseTarget(TargetWords, QStringLiteral("単語:")); }
void frmFind::mnuSrchFromPhrase_Click() { ChooseTarget(TargetPhrases, QStringLiteral("熟語:")); }

void frmFind::Label1_Click()
{
    const std::uint8_t next = Shared.SearchTarget == TargetAll     ? TargetWords
                              : Shared.SearchTarget == TargetWords ? TargetPhrases
                                                                   : TargetAll;
    ChooseTarget(next, TargetCaption(next));
}

void frmFind::Combo1_Click()
{
    AbandonSearch();
    if (Shared.Lexicons) {
        QList<Lexicon> &lexicons = *Shared.Lexicons;
        for (Lexicon &lexicon : lexicons)
            lexicon.IsSelected = 0;
        if (const qsizetype slot = SlotNamed(lexicons, Combo1->Text()); slot >= 0) {
            Lexicon &lexicon = lexicons[slot];
            lexicon.IsSelected = -1;
            Shared.CurrentDicName = lexicon.DicName;
            Shared.CurrentDicPath = lexicon.DicPath;
        }
    }
    HideHitPaging();
    if (Shared.SearchMode != ModeIncremental)
        files::DeleteIfThere(ResultStorePath());
    TakeMode(ModeIncremental);
    ChangeWordEntryBoxSize(0);
    SetTarget(TargetAll, TargetCaption(TargetAll));
    txtFind->SetText(QString());
    StatusBar1->SetSimpleText(QString());
    List1->Clear();
    ShowBlankPage();
}

void frmFind::Combo1_KeyPress(int character, bool *swallow)
{
    *swallow = true;
    constexpr int escape = 27;
    if (character == escape)
        ClearSearch();
}

void frmFind::ClearSearch()
{
    AbandonSearch();
    txtFind->SetText(QString());
    List1->Clear();
    ShowBlankPage();
    StatusBar1->SetSimpleText(QStringLiteral("Ready"));
    txtFind->setFocus();
    if (Shared.SearchMode == ModeIncremental)
        return;
    // Without the results there is nothing to page through.
    HideHitPaging();
    files::DeleteIfThere(ResultStorePath());
}
