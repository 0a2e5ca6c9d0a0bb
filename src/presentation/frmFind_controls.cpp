#include "core/shared_state.h"
#include "platform/agent/agent.h"
#include "platform/browser/web_browser.h"
#include "platform/controls/connect_handler.h"
#include "platform/controls/handler.h"
#include "platform/controls/white_base.h"
#include "presentation/frmFind.h"
#include "presentation/pure/main_layout.h"
#include "presentation/pure/menu_table.h"
#include "presentation/surface.h"
#include "presentation/target_caption.h"

#include <QAbstractItemView>
#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QShowEvent>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <numeric>

using controls::RunHandler;

namespace
{

frmFind *theMainWindow = nullptr;

struct Accelerator {
    const char16_t *entry;
    QKeySequence keys;
};

} // namespace

frmFind *MainWindow() { return theMainWindow; }

void frmFind::ForgetMainWindow() { theMainWindow = nullptr; }

frmFind::frmFind() : Form(QStringLiteral("frmFind"))
{
    theMainWindow = this;
    setWindowTitle(QStringLiteral("Wordmere"));
    m_menuBar = new QMenuBar(this);
    m_surface = new Surface(*this);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setMenuBar(m_menuBar);
    layout->addWidget(m_surface);
    MakeMenus();
    MakeControls();
    MakePictures();
    OrderTabs();
    ConnectHandlers();
}

frmFind::~frmFind()
{
    // It goes with the service.
    Shared.Character = nullptr;
    if (theMainWindow == this)
        ForgetMainWindow();
}

QAction *frmFind::Menu(const QString &name) const { return m_menus.value(name); }

controls::Picture *frmFind::PictureOf(int number) const
{
    return m_pictures.at(static_cast<std::size_t>(number));
}

void frmFind::MakeMenus()
{
    QMenu *menu = nullptr;
    for (const MenuRow &row : MenuTable()) {
        QAction *action = nullptr;
        if (row.kind == MenuRow::Kind::Menu) {
            menu = new QMenu(row.caption, this);
            action = menu->menuAction();
            m_menuBar->addAction(action);
        } else if (menu == nullptr) {
            continue; // The table begins with a menu.
        } else if (row.kind == MenuRow::Kind::Separator) {
            action = menu->addSeparator();
        } else {
            action = menu->addAction(row.caption);
            action->setCheckable(row.checkable);
            addAction(action);
        }
        action->setObjectName(row.name);
        m_menus.insert(row.name, action);
    }
    m_popup = menu;
    QAction *popupEntry = Menu(QStringLiteral("mPopup"));
    m_menuBar->removeAction(popupEntry);
    popupEntry->setVisible(false);

    const Accelerator accelerators[] = {
        {u"mnuCopy", QKeySequence::Copy},
        {u"mnuSelectAll", QKeySequence::SelectAll},
        {u"mnuPrint", QKeySequence::Print},
        {u"mnuFind", QKeySequence::Find},
        {u"mnuTopicSearch", QKeySequence(Qt::Key_F1)},
        {u"mnuReflesh", QKeySequence(Qt::Key_F5)},
        {u"mnuGoBack", QKeySequence(Qt::ALT | Qt::Key_Left)},
        {u"mnuGoForward", QKeySequence(Qt::ALT | Qt::Key_Right)},
    };
    for (const Accelerator &accelerator : accelerators)
        Menu(QString::fromUtf16(accelerator.entry))->setShortcut(accelerator.keys);
}

void frmFind::MakeControls()
{
    const auto named = [](auto *control, const QString &name) {
        control->setObjectName(name);
        return control;
    };
    Combo1 = named(new controls::ComboBox(m_surface), QStringLiteral("Combo1"));
    Combo1->setAccessibleName(QStringLiteral("辞書"));
    Label1 = named(new controls::ClickLabel(m_surface), QStringLiteral("Label1"));
    Label1->setText(TargetCaption(TargetAll));
    txtFind = named(new controls::TextBox(m_surface), QStringLiteral("txtFind"));
    txtFind->setAccessibleName(QStringLiteral("検索語"));
    Combo2 = named(new controls::AddressBox(m_surface), QStringLiteral("Combo2"));
    Combo2->setEditText(QStringLiteral("http://"));
    Combo2->setAccessibleName(QStringLiteral("アドレス"));
    Combo2->hide();
    List1 = named(new controls::ListBox(m_surface), QStringLiteral("List1"));
    List1->setAccessibleName(QStringLiteral("見出し語"));
    WebBrowser1 = named(new browser::WebBrowser(m_surface), QStringLiteral("WebBrowser1"));
    WebBrowser1->setAccessibleName(QStringLiteral("内容"));
    StatusBar1 = named(new controls::StatusBar(m_surface), QStringLiteral("StatusBar1"));
    StatusBar1->setAccessibleName(QStringLiteral("状態"));
    Agent1 = new agent::Agent(this);
    Command1 = named(new QPushButton(m_surface), QStringLiteral("Command1"));
    Command1->setFocusPolicy(Qt::NoFocus);
    Command1->hide();
}

void frmFind::MakePictures()
{
    const auto make = [this](const QString &name, const QString &icon, const QString &toolTip) {
        auto *picture = new controls::Picture(
            QIcon(QStringLiteral(":/icons/") + icon + QStringLiteral(".svg")), m_surface);
        picture->setObjectName(name);
        picture->setToolTip(toolTip);
        picture->setAccessibleName(toolTip);
        return picture;
    };
    Picture0 = make(QStringLiteral("Picture0"), QStringLiteral("picture_0"), PictureToolTip(0));
    Picture00 = make(QStringLiteral("Picture00"), QStringLiteral("picture_00"), StopToolTip());
    Picture0->hide();
    Picture00->hide();
    // These two stand out from the surface always; the one of a running search is pressed in.
    Picture0->SetFrame(controls::Picture::Frame::Raised);
    Picture00->SetFrame(controls::Picture::Frame::Pressed);
    m_pictures[0] = Picture0;
    for (int number = 1; number < static_cast<int>(m_pictures.size()); ++number)
        m_pictures[static_cast<std::size_t>(number)] =
            make(QStringLiteral("Picture%1").arg(number), QStringLiteral("picture_%1").arg(number),
                 PictureToolTip(number));
    HideHitPaging();
}

void frmFind::OrderTabs()
{
    std::array<int, 28> numbers{};
    std::iota(numbers.begin(), numbers.end(), 1);
    std::ranges::stable_sort(numbers, {}, [](int number) { return PicturePlace(number).left; });
    QList<QWidget *> way{Combo1, Label1, txtFind, Combo2, Picture0, Picture00, List1, WebBrowser1};
    for (const int number : numbers)
        way.append(PictureOf(number));
    for (qsizetype i = 1; i < way.size(); ++i)
        setTabOrder(way[i - 1], way[i]);
}

void frmFind::Command(const QString &menu, void (frmFind::*handler)(), int picture)
{
    const auto run = [this, handler] { RunHandler([this, handler] { (this->*handler)(); }); };
    if (QAction *action = Menu(menu))
        connect(action, &QAction::triggered, this, run);
    if (picture == 0)
        return;
    connect(PictureOf(picture), &controls::Picture::MouseDown, this, [this, run, picture] {
        PressPicture(picture);
        run();
    });
}

void frmFind::ConnectHandlers()
{
    connect(txtFind, &controls::TextBox::Change, this, [this] { RunHandler([this] { txtFind_Change(); }); });
    connect(txtFind, &controls::TextBox::KeyPress, this, [this](int character, bool *swallow) {
        RunHandler([=, this] { txtFind_KeyPress(character, swallow); });
    });
    connect(txtFind, &controls::TextBox::DownPressed, this, [this] { RunHandler([this] { EnterList(); }); });
    connect(List1, &controls::ListBox::Click, this, [this] { RunHandler([this] { List1_Click(); }); });
    connect(List1, &controls::ListBox::DblClick, this, [this] { RunHandler([this] { List1_DblClick(); }); });
    connect(List1, &controls::ListBox::KeyPress, this,
            [this](int character) { RunHandler([=, this] { List1_KeyPress(character); }); });
    connect(List1, &controls::ListBox::MouseMove, this,
            [this](const QPoint &point) { RunHandler([=, this] { List1_MouseMove(point); }); });
    connect(List1, &controls::ListBox::EdgeDragged, this,
            [this] { RunHandler([this] { FitPaneToList(); }); });
    connect(Combo1, &controls::ComboBox::Click, this, [this] { RunHandler([this] { Combo1_Click(); }); });
    connect(Combo1, &controls::ComboBox::KeyPress, this, [this](int character, bool *swallow) {
        RunHandler([=, this] { Combo1_KeyPress(character, swallow); });
    });
    connect(Label1, &controls::ClickLabel::Click, this, [this] { RunHandler([this] { Label1_Click(); }); });
    connect(WebBrowser1, &browser::WebBrowser::StatusTextChange, this, [this] {
        RunHandler([this] {
            if (Shared.ListHidden == 0)
                FitPaneToList();
        });
    });
    connect(WebBrowser1, &browser::WebBrowser::TitleChange, this,
            [this] { RunHandler([this] { WebBrowser1_TitleChange(); }); });
    connect(Combo2, &controls::AddressBox::Click, this, [this] { RunHandler([this] { Combo2_Click(); }); });
    connect(Combo2, &controls::AddressBox::KeyPress, this, [this](int character, bool *swallow) {
        RunHandler([=, this] { Combo2_KeyPress(character, swallow); });
    });

    Command(QStringLiteral("mnuSrchFromAll"), &frmFind::mnuSrchFromAll_Click);
    Command(QStringLiteral("mnuSrchFromWord"), &frmFind::mnuSrchFromWord_Click);
    Command(QStringLiteral("mnuSrchFromPhrase"), &frmFind::mnuSrchFromPhrase_Click);
    Command(QStringLiteral("mnuIncSrch"), &frmFind::mnuIncSrch_Click, 1);
    Command(QStringLiteral("mnuPreSrch"), &frmFind::mnuPreSrch_Click, 2);
    Command(QStringLiteral("mnuMidSrch"), &frmFind::mnuMidSrch_Click, 3);
    Command(QStringLiteral("mnuPostSrch"), &frmFind::mnuPostSrch_Click, 4);
    Command(QStringLiteral("mnuWildCard"), &frmFind::mnuWildCard_Click, 5);
    Command(QStringLiteral("mnuTxtInMeaning"), &frmFind::mnuTxtInMeaning_Click, 6);
    Command(QStringLiteral("mnuTxtInExample"), &frmFind::mnuTxtInExample_Click, 7);
    Command(QStringLiteral("mnuDicAdd"), &frmFind::mnuDicAdd_Click);
    Command(QStringLiteral("mnuCompress"), &frmFind::mnuCompress_Click);
    Command(QStringLiteral("mnuHideListBox"), &frmFind::mnuHideListBox_Click);
    Command(QStringLiteral("mnuOpen"), &frmFind::mnuOpen_Click);
    Command(QStringLiteral("mnuFileCreate"), &frmFind::mnuFileCreate_Click);
    Command(QStringLiteral("mnuExit"), &frmFind::mnuExit_Click);
    Command(QStringLiteral("mnuCopy"), &frmFind::mnuCopy_Click, 11);
    Command(QStringLiteral("mnuSelectAll"), &frmFind::mnuSelectAll_Click);
    Command(QStringLiteral("mnuFind"), &frmFind::mnuFind_Click, 13);
    Command(QStringLiteral("mnuPrint"), &frmFind::mnuPrint_Click);
    Command(QStringLiteral("mnuPrintView"), &frmFind::mnuPrintView_Click);
    Command(QStringLiteral("mnuPageSettings"), &frmFind::mnuPageSettings_Click);
    Command(QStringLiteral("mnuColorSel"), &frmFind::mnuColorSel_Click);
    Command(QStringLiteral("mnuAddSearchCondition"), &frmFind::mnuAddSearchCondition_Click, 16);
    Command(QStringLiteral("mnuCnv"), &frmFind::mnuCnv_Click);
    Command(QStringLiteral("mnuWildCardBuilder"), &frmFind::mnuWildCardBuilder_Click, 8);
    Command(QStringLiteral("mnuHistory"), &frmFind::mnuHistory_Click, 9);
    Command(QStringLiteral("mnuListSettings"), &frmFind::mnuListSettings_Click);
    Command(QString(), &frmFind::Picture10_MouseDown, 10);
    Command(QStringLiteral("mnuSpeakingSetting"), &frmFind::mnuSpeakingSetting_Click);
    Command(QStringLiteral("mnuSpeakKeyWord"), &frmFind::SpeakHeadword);
    Command(QStringLiteral("mnuSpeakSelectedArea"), &frmFind::SpeakSelection);
    controls::ConnectHandler(Command1, &QPushButton::clicked, this, &frmFind::Command1_Click);
    Command(QStringLiteral("mnuTopicSearch"), &frmFind::mnuTopicSearch_Click);
    Command(QStringLiteral("mnuAbout"), &frmFind::mnuAbout_Click);
    Command(QString(), &frmFind::Picture12_MouseDown, 12);
    Command(QString(), &frmFind::Picture14_MouseDown, 14);
    Command(QString(), &frmFind::Picture15_MouseDown, 15);
    Command(QString(), &frmFind::Picture17_MouseDown, 17);
    Command(QString(), &frmFind::Picture18_MouseDown, 18);
    Command(QString(), &frmFind::Picture19_MouseDown, 19);
    Command(QString(), &frmFind::Picture20_MouseDown, 20);
    Command(QStringLiteral("mnuSrchWebSite"), &frmFind::mnuSrchWebSite_Click);
    Command(QStringLiteral("mnuGoBack"), &frmFind::mnuGoBack_Click, 22);
    Command(QStringLiteral("mnuGoForward"), &frmFind::mnuGoForward_Click, 23);
    Command(QStringLiteral("mnuCancel"), &frmFind::mnuCancel_Click, 24);
    Command(QStringLiteral("mnuReflesh"), &frmFind::mnuReflesh_Click, 25);
    Command(QStringLiteral("mnuGoHome"), &frmFind::mnuGoHome_Click, 26);
    Command(QString(), &frmFind::Picture27_MouseDown, 27);
    Command(QString(), &frmFind::Picture28_MouseDown, 28);

    connect(Picture0, &controls::Picture::MouseDown, this,
            [this] { RunHandler([this] { Picture0_MouseDown(); }); });
    connect(Picture00, &controls::Picture::MouseDown, this,
            [this] { RunHandler([this] { Picture00_Click(); }); });

    for (int number = 1; number < static_cast<int>(m_pictures.size()); ++number) {
        constexpr int ornament = 21;
        if (number == ornament) {
            PictureOf(number)->setFocusPolicy(Qt::NoFocus);
            continue;
        }
        connect(PictureOf(number), &controls::Picture::MouseMove, this, [this, number] {
            FlatPicture(number);
            RaisePicture(number);
        });
    }
}

void frmFind::showEvent(QShowEvent *event)
{
    Form::showEvent(event);
    if (m_viewMade)
        return;
    m_viewMade = true;
    txtFind->setFocus();
    // The view comes once the window has been painted.
    QTimer::singleShot(0, WebBrowser1, [this] { RunHandler([this] { WebBrowser1->CreateView(); }); });
}
