#pragma once

#include "platform/controls/form.h"
#include "presentation/pure/help_index.h"
#include "presentation/pure/help_search.h"

#include <QHash>
#include <memory>

class QTreeWidgetItem;
namespace Ui
{
class frmHelp;
}

/// The help window: contents, index and search beside the topic that is shown. It is not modal, and
/// takes input while modal forms and boxes are open, also those that open later.
class frmHelp : public controls::Form
{
    Q_OBJECT
public:
    explicit frmHelp(const HelpBook &book);
    ~frmHelp() override;

    /// Shows the window with a topic, the one of that id, or the first where there is none.
    void ShowTopic(const QString &id);
    /// Shows the window with its contents in front.
    void ShowContents();

protected:
    void Form_Load() override;
    void Form_Unload(controls::UnloadReason reason) override;
    bool OwnsModalForms() const override { return false; }
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void FillContents();
    void FillIndex();
    void ConnectHandlers();
    void AddShortcuts();
    void ContentsTree_Select(const QTreeWidgetItem *item);
    void IndexText_Change();
    void IndexList_Click();
    void SearchText_Change();
    void SearchList_Click();
    void ButtonPrint_Click();
    void TopicView_TopicShown();
    void Zoom(int percent);
    void ShowTab(QWidget *page);
    /// Gives the focus to what the user works with on the tab in front.
    void EnterTab();
    void Come();
    /// Lets the window take input beside the modal window that is in front, if there is one.
    void StandBesideModal();

    std::unique_ptr<Ui::frmHelp> m_ui;
    HelpBook m_book;
    QList<HelpIndexEntry> m_index;
    QList<HelpHit> m_hits;
    QHash<qsizetype, QTreeWidgetItem *> m_contents;
    QMetaObject::Connection m_modalGone;
    bool m_follows = false;
};
