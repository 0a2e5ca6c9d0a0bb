#pragma once

#include "platform/controls/controls.h"
#include "platform/controls/form.h"
#include "platform/controls/list_box.h"
#include "platform/controls/twips.h"

#include <QHash>
#include <array>
#include <cstdint>

class QAction;
class QMenu;
class QMenuBar;
class QPushButton;
namespace ADODB
{
class Recordset;
}
namespace agent
{
class Agent;
}
namespace browser
{
class WebBrowser;
}

/// The main window. It is a hub on purpose: its members are defined in the folder of the subsystem
/// that owns them, and every dialog reaches into it.
class frmFind : public controls::Form
{
    Q_OBJECT
public:
    frmFind();
    ~frmFind() override;

    // Controls
    controls::ComboBox *Combo1 = nullptr;
    controls::ClickLabel *Label1 = nullptr;
    controls::TextBox *txtFind = nullptr;
    controls::AddressBox *Combo2 = nullptr;
    controls::ListBox *List1 = nullptr;
    browser::WebBrowser *WebBrowser1 = nullptr;
    controls::StatusBar *StatusBar1 = nullptr;
    /// The service of the speaking character.
    agent::Agent *Agent1 = nullptr;
    /// Hidden: speaks the selection without any checks.
    QPushButton *Command1 = nullptr;
    /// Picture0 (start) and Picture00 (stop); the others by their number, 1 to 28.
    controls::Picture *Picture0 = nullptr;
    controls::Picture *Picture00 = nullptr;
    controls::Picture *PictureOf(int number) const;
    /// A menu entry by its name; nullptr for none.
    QAction *Menu(const QString &name) const;

    // The incremental search's place in the table
    QString TableFirstWord;
    std::int32_t TableFirstAutoID = 0;
    QString TableLastWord;
    QString PageFirstWord;
    std::int32_t PageFirstAutoID = 0;
    QString PageLastWord;
    std::int32_t PageLastAutoID = 0;
    std::uint8_t ListClickActive = 0;
    std::int32_t ListClickIndex = 0;
    std::int32_t ListClickAutoID = 0;
    std::uint8_t ListIsFresh = 0;

    // search/
    /// Shows list and page from the place of the text in the table; with an autoID other than 0,
    /// from that record. The table's first headword sets autoID to TableFirstAutoID.
    void ListWordsDescriptions(const QString &text, std::int32_t &autoID);
    /// The same for words or phrases alone, by a statement.
    void ListWordsDescriptions2(const QString &text);
    /// Shows the entries from a row of the list on.
    void ListWordsDescriptions3(std::int32_t index);
    /// Shows the page of entries before (direction 1) or behind (2) the one that begins with the
    /// record, which becomes the new page's first.
    void ListWordsDescriptions5(QString &word, std::int32_t &autoID, int direction);
    void txtFind_Change();
    void txtFind_KeyPress(int character, bool *swallow);
    void List1_Click();
    void List1_KeyPress(int character);
    void List1_MouseMove(const QPoint &point);
    void Picture19_MouseDown();
    void Picture20_MouseDown();
    /// Runs the search of the entry box, writes its hits to `ListData.dat` and shows the first ones.
    /// 1 when the dictionary file does not exist, else 0.
    std::uint8_t RunListSearch(std::uint8_t &target);
    /// Fills the list with the hits from position `first` to `last`, counted from 1.
    void FillHeadwordList(std::int32_t first, std::int32_t last);
    /// Gives up a search that is running, without a trace in list and status bar.
    void AbandonSearch();
    void List1_DblClick();
    void Picture0_MouseDown();
    void Picture00_Click();
    void Picture14_MouseDown();
    void Picture15_MouseDown();
    void Picture17_MouseDown();
    void Picture18_MouseDown();

    // presentation/
    /// Writes and shows the page of the hits from position `first` to `last`, counted from 1, but of
    /// no more than a page holds.
    void WriteEntryPage(std::int32_t first, std::int32_t last);
    /// Writes the blank page, or one with a message; does not show it.
    void WriteMessagePage(const QString &message);
    /// Writes the blank page and shows it.
    void ShowBlankPage();
    /// Shows `home.html`.
    void NavigateHome();
    /// Writes the default look to `sscDefi.dat`.
    void CreateHTMLHeader();
    /// The default look into the nine font slots.
    void SetDefaultFonts();
    void SetIncrementalMode();
    void SetPrefixMode();
    void SetMiddleMode();
    void SetSuffixMode();
    void SetWildcardMode();
    void SetMeaningMode();
    void SetExampleMode();
    void ToggleHeadwordList();
    void RestorePaneLayout();
    /// Kind 0: the entry box takes the room of the search button; kind 1: the button stands.
    void ChangeWordEntryBoxSize(int kind);
    /// Follows the user's drag of the list's right edge; the other edges snap back.
    void FitPaneToList();
    /// Sets the search target with its checks; the caption's colon is that of the caller.
    void SetTarget(std::uint8_t target, const QString &caption);
    /// The same, and searches the text of the entry box again.
    void ChooseTarget(std::uint8_t target, const QString &caption);
    /// Checks the menu of a search mode and clears the others'.
    void CheckModeMenu(std::uint8_t mode);
    /// Takes over a search mode of the dictionaries: check mark, number and the window's caption.
    void TakeMode(std::uint8_t mode);
    /// Moves the focus into the list, to its first row when none is selected.
    void EnterList();
    void Combo1_Click();
    void Combo1_KeyPress(int character, bool *swallow);
    void Label1_Click();
    void mnuSrchFromAll_Click();
    void mnuSrchFromWord_Click();
    void mnuSrchFromPhrase_Click();
    void mnuIncSrch_Click();
    void mnuPreSrch_Click();
    void mnuMidSrch_Click();
    void mnuPostSrch_Click();
    void mnuWildCard_Click();
    void mnuTxtInMeaning_Click();
    void mnuTxtInExample_Click();
    void mnuDicAdd_Click();
    void mnuCompress_Click();
    void mnuHideListBox_Click();
    void mnuOpen_Click();
    /// Opens the record editor as `EditOpenMode` says.
    void ShowRecordEditor();
    void mnuExit_Click();
    void mnuCopy_Click();
    void mnuSelectAll_Click();
    void mnuFind_Click();
    void mnuPrint_Click();
    void mnuPrintView_Click();
    void mnuPageSettings_Click();
    void mnuWildCardBuilder_Click();
    void mnuAddSearchCondition_Click();
    void mnuHistory_Click();
    void mnuColorSel_Click();
    void mnuFileCreate_Click();
    void mnuCnv_Click();
    void mnuListSettings_Click();
    /// Opens the menu of reading aloud below its picture.
    void Picture10_MouseDown();
    void mnuSpeakingSetting_Click();
    void mnuTopicSearch_Click();
    void mnuAbout_Click();
    void Picture12_MouseDown();
    void Picture27_MouseDown();
    void Picture28_MouseDown();
    void RaisePicture(int number);
    void PressPicture(int number);
    void FlatPicture(int number);
    /// Empties the entry box, the list and the page, and puts the focus back: what Esc does.
    void ClearSearch();
    /// Puts away what the list sizes or the dictionary have made invalid: the list with its store and
    /// its paging, the page and the entry box. The pane goes to the empty page only where it `showsPage`.
    void ResetMainView(bool showsPage);

    // speech/
    /// Loads a character, which becomes that of the shared state. Raises what loading it raises; then
    /// none is.
    void Open_Character(const QString &id, const QString &path);
    void Close_Character(const QString &id);
    /// Moves the character into the bottom right corner of the screen.
    void MoveToCharactor2();
    /// Says the text of the entry box; tells what stands in the way.
    void SpeakHeadword();
    /// Says what is selected in the pane; tells what stands in the way. The clipboard gets back its text,
    /// but where speech is off.
    void SpeakSelection();
    void Command1_Click();

    // web/
    /// Sets the window for web pages, to the end of the run.
    void SetWebMode();
    /// Sets the window for the dictionaries.
    void SetDictionaryView();
    /// Tells the pane: 1 back, 2 forward, 3 home, 4 stop, 5 refresh. What it cannot do changes nothing.
    void BrowserCommand(int number);
    void mnuSrchWebSite_Click();
    void mnuGoBack_Click();
    void mnuGoForward_Click();
    void mnuGoHome_Click();
    void mnuCancel_Click();
    void mnuReflesh_Click();
    void Combo2_KeyPress(int character, bool *swallow);
    void Combo2_Click();
    void WebBrowser1_TitleChange();

    // core/
    void ReadFontFile(const QString &name);
    void WriteFontFile(const QString &name);

Q_SIGNALS:
    /// The window has been unloaded.
    void Gone();

protected:
    void Form_Load() override;
    bool Form_QueryUnload(controls::UnloadReason reason) override;
    void Form_Unload(controls::UnloadReason reason) override;
    void Form_Resize() override;
    /// A form that took the input away is to be closed first. Where it left it so, the frame is the way out.
    bool AcceptsFrameClose() const override { return !IsHeld(); }
    void showEvent(QShowEvent *event) override;

private:
    /// MainWindow() gives nullptr from here on.
    static void ForgetMainWindow();

    // search/incremental_search.cpp
    /// Writes list and page from the table's current row on; the list only when no click is active.
    void FillFrom(ADODB::Recordset &table);
    /// Writes list and arrays from a statement's rows; returns their number.
    qsizetype FillFromStatement(ADODB::Recordset &rows);

    // search/list_search.cpp
    /// The steps that start button and Enter key share, with the key's or the button's last line of the
    /// message on a missing dictionary.
    void StartListSearch(const QString &missingHint);
    void EnterListSearch();
    void HideHitPaging();
    /// Writes the hits to the store; their number.
    std::int32_t StoreHits();
    /// Tells in the status bar how the search ended, and before that when it found as many as it keeps.
    void TellOutcome(std::int32_t rows);
    /// Puts away what a search that was given up has left.
    void DropSearch();
    void PrepareHitPaging();
    void ShowFirstHits();
    /// Shows a page of the list that begins with the hit at `first`.
    void ShowListPage(std::int32_t page, std::int32_t first);
    void ShowListPosition();
    void ShowHitsFromRow(int row);

    // presentation/modes.cpp
    void EnterMode(std::uint8_t mode);
    void SetListMode(std::uint8_t mode);
    void ClearForModeChange();

    // web/browsing.cpp
    /// The entries, boxes and pictures of the web, or of the dictionaries.
    void ShowWebControls(bool onTheWeb);
    /// Shows the page at the address in the box.
    void GoToAddress();
    /// Keeps an address in the list of the address box, unless it is there.
    void RecordAddress(const QString &address);

    // core/frmFind_load.cpp: the numbered steps of the load
    void LoadFonts();
    void LoadListSettings();
    void LoadCatalogue();
    void SizeWindow();
    void ApplyFonts();
    void ApplySearchTarget();
    void CheckHelpFile();
    void PrepareEntryPaging();
    void LoadPageHeader();
    // speech/speaking.cpp: one more of them
    void LoadCharacter();

    // presentation/frmFind_controls.cpp
    void MakeControls();
    void MakeMenus();
    void MakePictures();
    /// The keyboard's way: the row of the entry box, list, pane, then the pictures as they stand.
    void OrderTabs();
    void ConnectHandlers();

    // presentation/layout.cpp
    void PlaceFixedControls();
    int InnerWidth() const;
    int InnerHeight() const;
    /// Lets the list's edge be dragged no farther than the pane can give way.
    void LimitListWidth();
    void PlaceEntryRow();
    /// The framed area of the pane, in pixels of the surface.
    QRect PaneFrame() const;
    void RememberLayout();
    void Command(const QString &menu, void (frmFind::*handler)(), int picture = 0);
    void ExecPrinting(int command);

    QMenuBar *m_menuBar = nullptr;
    QWidget *m_surface = nullptr;
    QMenu *m_popup = nullptr;
    QHash<QString, QAction *> m_menus;
    std::array<controls::Picture *, 29> m_pictures{};
    controls::TwipRect m_rememberedList, m_rememberedPane;
    QSize m_rememberedWindow;
    int m_entryBoxKind = 0;
    bool m_hasReadCatalogue = false;
    bool m_viewMade = false;
    bool m_searching = false;
    bool m_searchAbandoned = false;
    bool m_closeAfterSearch = false;
    friend class Surface;
};

/// The main window while it is loaded, else nullptr.
frmFind *MainWindow();
