#include "platform/controls/list_box.h"

#include "input.h"

#include <QElapsedTimer>
#include <QHelpEvent>
#include <QScrollBar>
#include <QToolTip>
#include <gtest/gtest.h>

using controls::ListBox;

namespace
{

class ListBoxTest : public testing::Test
{
protected:
    ListBoxTest()
    {
        list.setParent(&window);
        window.resize(400, 300);
        list.setGeometry(10, 10, 200, 200);
        window.show();
        QObject::connect(&list, &ListBox::Click, &list, [this] { ++clicks; });
        QObject::connect(&list, &ListBox::DblClick, &list, [this] { ++doubleClicks; });
        QObject::connect(&list, &ListBox::KeyPress, &list, [this](int key) { keys.append(key); });
    }

    void Fill(const QStringList &rows)
    {
        list.BeginFill();
        list.Clear();
        for (const QString &row : rows)
            list.AddItem(row);
        list.EndFill();
    }

    static QStringList Numbers(int count)
    {
        QStringList rows;
        for (int i = 0; i < count; ++i)
            rows.append(QStringLiteral("row %1").arg(i));
        return rows;
    }

    QPointF Middle(int row) const { return list.visualRect(list.model()->index(row, 0)).center(); }

    QWidget window;
    ListBox list{nullptr};
    int clicks = 0, doubleClicks = 0;
    QList<int> keys;
};

TEST_F(ListBoxTest, FillsWithoutSelectionAndAtTheTop)
{
    Fill(Numbers(100));
    list.SetListIndex(90);
    EXPECT_GT(list.verticalScrollBar()->value(), 0);
    clicks = 0;
    Fill(Numbers(60));
    EXPECT_EQ(list.ListCount(), 60);
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(list.Text(), QString());
    EXPECT_EQ(list.verticalScrollBar()->value(), 0);
    EXPECT_EQ(clicks, 0);
    EXPECT_EQ(list.List(59), QStringLiteral("row 59"));
    EXPECT_EQ(list.List(60), QString());
    EXPECT_EQ(list.List(-1), QString());
}

TEST_F(ListBoxTest, ViewKeepsOldRowsUntilTheFillEnds)
{
    Fill({QStringLiteral("old")});
    int resets = 0, insertions = 0;
    QObject::connect(list.model(), &QAbstractItemModel::modelReset, &list, [&] { ++resets; });
    QObject::connect(list.model(), &QAbstractItemModel::rowsInserted, &list, [&] { ++insertions; });
    list.BeginFill();
    list.Clear();
    list.AddItem(QStringLiteral("new 1"));
    list.AddItem(QStringLiteral("new 2"));
    EXPECT_EQ(list.ListCount(), 2);
    EXPECT_EQ(list.List(1), QStringLiteral("new 2"));
    EXPECT_EQ(list.model()->rowCount(), 1);
    EXPECT_EQ(list.ListIndex(), -1);
    input::Click(*list.viewport(), {5, 5});
    EXPECT_EQ(clicks, 0);
    EXPECT_FALSE(list.updatesEnabled());
    list.EndFill();
    EXPECT_TRUE(list.updatesEnabled());
    EXPECT_EQ(list.model()->rowCount(), 2);
    EXPECT_EQ(resets, 1);
    EXPECT_EQ(insertions, 0);
}

TEST_F(ListBoxTest, MouseClicksAlsoTheSelectedRow)
{
    Fill(Numbers(5));
    input::Click(*list.viewport(), Middle(2));
    EXPECT_EQ(list.ListIndex(), 2);
    EXPECT_EQ(clicks, 1);
    input::Click(*list.viewport(), Middle(2));
    EXPECT_EQ(clicks, 2);
    input::Click(*list.viewport(), {5, 180});
    EXPECT_EQ(clicks, 2);
    EXPECT_EQ(list.ListIndex(), 2);
    input::Click(*list.viewport(), Middle(1), Qt::RightButton);
    EXPECT_EQ(list.ListIndex(), 2);
    input::Mouse(*list.viewport(), QEvent::MouseButtonDblClick, Middle(2));
    EXPECT_EQ(doubleClicks, 1);
    int beside = 0;
    QObject::connect(&list, &ListBox::DblClickBesideRows, &list, [&beside] { ++beside; });
    input::Mouse(*list.viewport(), QEvent::MouseButtonDblClick, {5, 180});
    EXPECT_EQ(beside, 1);
    EXPECT_EQ(doubleClicks, 1);
}

TEST_F(ListBoxTest, KeysMoveTheSelection)
{
    Fill({QStringLiteral("apple"), QStringLiteral("berry"), QStringLiteral("cherry")});
    input::Key(list, Qt::Key_Down);
    EXPECT_EQ(list.ListIndex(), 0);
    input::Key(list, Qt::Key_Down);
    EXPECT_EQ(list.ListIndex(), 1);
    input::Key(list, Qt::Key_End);
    EXPECT_EQ(list.ListIndex(), 2);
    EXPECT_EQ(clicks, 3);
    input::Key(list, Qt::Key_End);
    EXPECT_EQ(clicks, 3);
    input::Key(list, Qt::Key_Home);
    EXPECT_EQ(list.ListIndex(), 0);
    input::Key(list, Qt::Key_C, QStringLiteral("c"));
    EXPECT_EQ(list.ListIndex(), 2);
    EXPECT_EQ(clicks, 5);
    EXPECT_EQ(keys, QList<int>{'c'});
}

TEST_F(ListBoxTest, KeysBeginAtAnEndWhereNoneIsSelected)
{
    Fill(Numbers(5));
    input::Key(list, Qt::Key_End);
    EXPECT_EQ(list.ListIndex(), 4);
    list.SetListIndex(-1);
    input::Key(list, Qt::Key_Up);
    EXPECT_EQ(list.ListIndex(), 0);
    EXPECT_EQ(clicks, 2);
}

TEST_F(ListBoxTest, TellsCharactersOfKeys)
{
    Fill(Numbers(3));
    input::Key(list, Qt::Key_Escape, QStringLiteral("\x1b"));
    input::Key(list, Qt::Key_Return, QStringLiteral("\r"));
    EXPECT_EQ(keys, (QList<int>{27, 13}));
    EXPECT_EQ(clicks, 0);
}

TEST_F(ListBoxTest, ProgramSelectsWithAClickOnceAndNeverForNone)
{
    Fill(Numbers(3));
    list.SetListIndex(1);
    EXPECT_EQ(clicks, 1);
    list.SetListIndex(1);
    EXPECT_EQ(clicks, 1);
    list.SetListIndex(-1);
    EXPECT_EQ(list.ListIndex(), -1);
    list.SetListIndex(3);
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(clicks, 1);
}

TEST_F(ListBoxTest, RemovingTheSelectedRowLeavesNoneSelected)
{
    Fill(Numbers(4));
    list.SetListIndex(2);
    list.RemoveItem(2);
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(list.Items(),
              (QStringList{QStringLiteral("row 0"), QStringLiteral("row 1"), QStringLiteral("row 3")}));
    list.SetListIndex(2);
    list.RemoveItem(0);
    EXPECT_EQ(list.ListIndex(), 1);
    list.RemoveItem(7);
    list.RemoveItem(-1);
    EXPECT_EQ(list.ListCount(), 2);
    list.Clear();
    EXPECT_EQ(list.ListCount(), 0);
    EXPECT_EQ(clicks, 2);
}

TEST_F(ListBoxTest, FindsWholeRowsIgnoringCaseRoundTheEnd)
{
    Fill({QStringLiteral("Abc"), QStringLiteral("ab"), QStringLiteral("ABC")});
    EXPECT_EQ(list.FindStringExact(QStringLiteral("abc")), 0);
    EXPECT_EQ(list.FindStringExact(QStringLiteral("abc"), 0), 2);
    EXPECT_EQ(list.FindStringExact(QStringLiteral("abc"), 2), 0);
    EXPECT_EQ(list.FindStringExact(QStringLiteral("abcd")), -1);
    EXPECT_EQ(list.FindStringExact(QStringLiteral("abc"), 99), 0);
}

TEST_F(ListBoxTest, TellsTheRowAtAPoint)
{
    EXPECT_EQ(list.ItemFromPoint({5, 5}), 0x1FFFFU);
    Fill(Numbers(3));
    list.SetItemHeight(20);
    QApplication::processEvents();
    EXPECT_EQ(list.ItemFromPoint({5, 5}), 0U);
    EXPECT_EQ(list.ItemFromPoint({5, 20}), 1U);
    EXPECT_EQ(list.ItemFromPoint({5, 59}), 2U);
    EXPECT_EQ(list.ItemFromPoint({5, 60}), 0x10002U);
    EXPECT_EQ(list.ItemFromPoint({5, -1}), 0x10000U);
    EXPECT_EQ(list.ItemFromPoint({-1, 25}), 0x10001U);
    Fill(Numbers(100));
    QApplication::processEvents();
    list.verticalScrollBar()->setValue(10);
    EXPECT_EQ(list.ItemFromPoint({5, 5}), 10U);
}

TEST_F(ListBoxTest, HasAnItemHeightAndAnExtent)
{
    Fill(Numbers(3));
    EXPECT_GT(list.ItemHeight(), 8);
    list.SetItemHeight(31);
    EXPECT_EQ(list.ItemHeight(), 31);
    list.SetHorizontalExtent(400);
    EXPECT_EQ(list.HorizontalExtent(), 400);
    QApplication::processEvents();
    EXPECT_EQ(list.visualRect(list.model()->index(1, 0)).height(), 31);
    EXPECT_EQ(list.horizontalScrollBar()->maximum(), 400 - list.viewport()->width());
}

TEST_F(ListBoxTest, RowsStayScrolledSideways)
{
    Fill(Numbers(100));
    list.SetHorizontalExtent(600);
    QApplication::processEvents();
    list.horizontalScrollBar()->setValue(150);
    list.SetListIndex(90);
    EXPECT_EQ(list.horizontalScrollBar()->value(), 150);
    EXPECT_TRUE(list.viewport()->rect().intersects(list.visualRect(list.model()->index(90, 0))));
    input::Key(list, Qt::Key_Home);
    EXPECT_EQ(list.ListIndex(), 0);
    EXPECT_EQ(list.horizontalScrollBar()->value(), 150);
    // The keys alone reach the end of a long row too.
    input::Key(list, Qt::Key_Right);
    EXPECT_GT(list.horizontalScrollBar()->value(), 150);
    input::Key(list, Qt::Key_Left);
    EXPECT_EQ(list.horizontalScrollBar()->value(), 150);
    EXPECT_EQ(list.ListIndex(), 0);
}

TEST_F(ListBoxTest, ToolTipShowsMarkupAsText)
{
    Fill({QStringLiteral("<b>a</b> & b")});
    const auto ask = [this] {
        const QPoint where = Middle(0).toPoint();
        QHelpEvent event(QEvent::ToolTip, where, list.viewport()->mapToGlobal(where));
        QApplication::sendEvent(list.viewport(), &event);
    };
    list.setToolTip(list.List(0));
    ask();
    EXPECT_TRUE(QToolTip::isVisible());
    EXPECT_TRUE(QToolTip::text().contains(QStringLiteral("&lt;b&gt;a&lt;/b&gt; &amp; b")))
        << QToolTip::text();
    list.setToolTip(QString());
    ask();
    EXPECT_TRUE(input::Until([] { return !QToolTip::isVisible(); }));
}

TEST_F(ListBoxTest, RightEdgeIsDraggedWithinItsParent)
{
    list.SetSizingFrame(true);
    QList<int> widths;
    QObject::connect(&list, &ListBox::EdgeDragged, &list, [&](int width) { widths.append(width); });
    QWidget *grip = list.childAt(list.width() - 1, 100);
    ASSERT_NE(grip, nullptr);
    EXPECT_EQ(grip->cursor().shape(), Qt::SplitHCursor);
    input::Mouse(*grip, QEvent::MouseButtonPress, {2, 100});
    input::Mouse(list, QEvent::MouseMove, {248, 100});
    EXPECT_EQ(list.width(), 250);
    input::Mouse(list, QEvent::MouseMove, {900, 100});
    EXPECT_EQ(list.width(), 390);
    input::Mouse(list, QEvent::MouseMove, {1, 100});
    EXPECT_EQ(list.width(), 40);
    input::Mouse(list, QEvent::MouseButtonRelease, {1, 100});
    input::Mouse(list, QEvent::MouseMove, {200, 100});
    EXPECT_EQ(list.width(), 40);
    EXPECT_EQ(widths, (QList<int>{250, 390, 40}));
    EXPECT_EQ(clicks, 0);
}

TEST_F(ListBoxTest, GripLiesOverTheScrollBar)
{
    list.SetSizingFrame(true);
    Fill(Numbers(100));
    QApplication::processEvents();
    ASSERT_TRUE(list.verticalScrollBar()->isVisible());
    list.resize(210, 150);
    QApplication::processEvents();
    const QWidget *grip = list.childAt(list.width() - 4, 75);
    ASSERT_NE(grip, nullptr);
    EXPECT_EQ(grip->cursor().shape(), Qt::SplitHCursor);
    EXPECT_EQ(grip->geometry(), QRect(206, 0, 4, 150));
    EXPECT_NE(list.childAt(list.width() - 5, 75), grip);
}

TEST_F(ListBoxTest, WithoutSizingFrameTheEdgeStays)
{
    input::Mouse(list, QEvent::MouseButtonPress, {198, 100});
    input::Mouse(list, QEvent::MouseMove, {248, 100});
    EXPECT_EQ(list.width(), 200);
}

TEST_F(ListBoxTest, PointerMovesAreTold)
{
    Fill(Numbers(3));
    QPoint last;
    QObject::connect(&list, &ListBox::MouseMove, &list, [&](const QPoint &point) { last = point; });
    input::Mouse(*list.viewport(), QEvent::MouseMove, {7, 9}, Qt::NoButton);
    EXPECT_EQ(last, QPoint(7, 9));
}

TEST_F(ListBoxTest, RefillsFastAndHoldsManyRows)
{
    const QStringList page = Numbers(50), many = Numbers(100'000);
    Fill(many);
    QElapsedTimer timer;
    timer.start();
    constexpr int rounds = 200;
    for (int i = 0; i < rounds; ++i)
        Fill(page);
    // A bound for the slowest of machines; a notification for each row takes many times as long.
    EXPECT_LT(static_cast<double>(timer.nsecsElapsed()) / rounds / 1e6, 3.0);
    timer.start();
    Fill(many);
    list.SetListIndex(99'999);
    EXPECT_EQ(list.Text(), QStringLiteral("row 99999"));
    EXPECT_LT(timer.elapsed(), 3000);
    RecordProperty("many_ms", static_cast<int>(timer.elapsed()));
}

TEST_F(ListBoxTest, ClickHandlerMayEmptyTheList)
{
    Fill(Numbers(5));
    QObject::connect(&list, &ListBox::Click, &list, [this] { list.Clear(); });
    input::Click(*list.viewport(), Middle(3));
    EXPECT_EQ(list.ListCount(), 0);
    Fill(Numbers(5));
    input::Key(list, Qt::Key_Down);
    EXPECT_EQ(list.ListCount(), 0);
    EXPECT_EQ(clicks, 2);
}

} // namespace
