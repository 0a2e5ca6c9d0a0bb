#include "core/shared_state.h"
#include "platform/browser/web_browser.h"
#include "presentation/frmFind.h"
#include "presentation/pure/main_layout.h"

#include <QAction>
#include <QLayout>
#include <algorithm>

using controls::Place;
using controls::PlaceOf;
using controls::TwipRect;

int frmFind::InnerWidth() const { return controls::Twips(m_surface->width()); }
int frmFind::InnerHeight() const { return controls::Twips(m_surface->height()); }

QRect frmFind::PaneFrame() const
{
    // The frame reaches from the list's upper to its lower edge, so that the two stand in line.
    const QRect pane = WebBrowser1->geometry();
    const QRect list = List1->geometry();
    const int above = controls::Pixels(kPaneTop - kListTop);
    return {pane.left() - 1, pane.top() - above, pane.width() + 2, list.height()};
}

void frmFind::PlaceFixedControls()
{
    layout()->activate();
    for (int number = 1; number <= 28; ++number)
        Place(PictureOf(number), PicturePlace(number));
    Place(Combo1, kDictionaryBox);
    Place(Label1, kTargetLabel);
    RestorePaneLayout();
}

void frmFind::LimitListWidth()
{
    using controls::Pixels;
    const int beside = Pixels(kMargin) + Pixels(kListToPane) + Pixels(kLeastPane);
    List1->setMaximumWidth(std::max(0, m_surface->width() - beside));
}

void frmFind::RestorePaneLayout()
{
    LimitListWidth();
    Place(List1, ListPlace(InnerHeight()));
    Place(WebBrowser1, PanePlace(InnerWidth(), InnerHeight()));
    RememberLayout();
    PlaceEntryRow();
}

void frmFind::RememberLayout()
{
    m_rememberedList = PlaceOf(List1);
    m_rememberedPane = PlaceOf(WebBrowser1);
    m_rememberedWindow = size();
}

void frmFind::PlaceEntryRow()
{
    const EntryRow row = PlaceEntry(PlaceOf(WebBrowser1).Right(), m_entryBoxKind);
    Place(txtFind, row.entryBox);
    Place(Combo2, row.entryBox);
    Place(Picture0, row.startButton);
    Place(Picture00, row.startButton);
    Place(StatusBar1, StatusPlace(InnerWidth(), InnerHeight()));
    m_surface->update();
}

void frmFind::ChangeWordEntryBoxSize(int kind)
{
    m_entryBoxKind = kind;
    PlaceEntryRow();
    Picture0->setVisible(kind == 1);
    if (kind == 0)
        Picture00->hide();
}

void frmFind::ToggleHeadwordList()
{
    QAction *entry = Menu(QStringLiteral("mnuHideListBox"));
    if (Shared.ListHidden == 0) {
        Shared.ListHidden = 1;
        entry->setChecked(true);
        if (List1->hasFocus())
            txtFind->setFocus();
        List1->hide();
        PictureOf(14)->setEnabled(false);
        PictureOf(15)->setEnabled(false);
        TwipRect pane = PlaceOf(WebBrowser1);
        pane.top = kListTop;
        pane.left = kMargin;
        pane.width = InnerWidth() - 2 * kMargin;
        Place(WebBrowser1, pane);
        RememberLayout();
        PlaceEntryRow();
        return;
    }
    // With the list hidden, the window may have become too narrow for it.
    const int narrowest = controls::Pixels(kPaneLeft + kLeastPane);
    if (width() < narrowest)
        resize(narrowest, height());
    Shared.ListHidden = 0;
    List1->show();
    RestorePaneLayout();
    entry->setChecked(false);
    PictureOf(14)->setEnabled(true);
    PictureOf(15)->setEnabled(true);
    TwipRect pane = PlaceOf(WebBrowser1);
    pane.height = PlaceOf(List1).height - kPaneShorterOnShow;
    Place(WebBrowser1, pane);
    RememberLayout();
}

void frmFind::FitPaneToList()
{
    const Panes now{PlaceOf(List1), PlaceOf(WebBrowser1)};
    const Panes fitted = FitPane(now, m_rememberedList, InnerWidth());
    m_rememberedList.width = now.list.width;
    if (fitted.pane != now.pane) {
        Place(WebBrowser1, fitted.pane);
        m_rememberedPane = fitted.pane;
        m_surface->update();
    }
    if (fitted.list != now.list)
        Place(List1, fitted.list);
}

void frmFind::Form_Resize()
{
    if (m_rememberedWindow.isEmpty())
        return;
    QSize allowed = size();
    const int chrome = height() - m_surface->height();
    if (width() < controls::Pixels(m_rememberedPane.left + kLeastPane))
        allowed.setWidth(m_rememberedWindow.width());
    if (height() - chrome < controls::Pixels(m_rememberedPane.top + kLeastPane))
        allowed.setHeight(m_rememberedWindow.height());
    if (allowed != size()) {
        resize(allowed);
        return;
    }
    layout()->activate();
    LimitListWidth();
    TwipRect list = PlaceOf(List1);
    list.height = InnerHeight() - list.top - kBelowList;
    Place(List1, list);
    TwipRect pane = PlaceOf(WebBrowser1);
    pane.height = list.height - kPaneShorterOnResize;
    pane.width = InnerWidth() - kMargin - pane.left;
    Place(WebBrowser1, pane);
    RememberLayout();
    PlaceEntryRow();
}

void frmFind::RaisePicture(int number) { PictureOf(number)->SetFrame(controls::Picture::Frame::Raised); }

void frmFind::PressPicture(int number) { PictureOf(number)->SetFrame(controls::Picture::Frame::Pressed); }

void frmFind::FlatPicture(int number) { PictureOf(number)->SetFrame(controls::Picture::Frame::Flat); }
