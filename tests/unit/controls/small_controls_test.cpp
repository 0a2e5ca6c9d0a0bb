#include "platform/controls/controls.h"

#include "input.h"

#include <QInputMethodEvent>
#include <QPainter>
#include <QPixmap>
#include <QWheelEvent>
#include <gtest/gtest.h>

using namespace controls;

namespace
{

TEST(TextBox, ChangeComesForDifferentTextOnly)
{
    TextBox box;
    int changes = 0;
    QObject::connect(&box, &TextBox::Change, &box, [&] { ++changes; });
    box.SetText(QStringLiteral("a"));
    box.SetText(QStringLiteral("a"));
    EXPECT_EQ(changes, 1);
    input::Key(box, Qt::Key_B, QStringLiteral("b"));
    EXPECT_EQ(box.Text(), QStringLiteral("ab"));
    EXPECT_EQ(changes, 2);
    box.SetText(QString());
    EXPECT_EQ(changes, 3);
}

TEST(TextBox, NoCharacterIsCutInHalfAtTheGreatestLength)
{
    const QString emoji = QStringLiteral("\U0001F600");
    TextBox box;
    box.setMaxLength(4);
    int changes = 0;
    QObject::connect(&box, &TextBox::Change, &box, [&] { ++changes; });
    box.SetText(QStringLiteral("abc") + emoji);
    EXPECT_EQ(box.Text(), QStringLiteral("abc"));
    EXPECT_EQ(changes, 1);
    box.SetText(QStringLiteral("ab") + emoji);
    EXPECT_EQ(box.Text(), QStringLiteral("ab") + emoji);
    box.SetText(QStringLiteral("abc"));
    box.setCursorPosition(1);
    box.insert(emoji);
    EXPECT_EQ(box.Text(), QStringLiteral("abc"));
    box.setCursorPosition(1);
    box.insert(QStringLiteral("x") + emoji);
    EXPECT_EQ(box.Text(), QStringLiteral("axbc"));
}

TEST(TextBox, JoinsTheLinesThatTheUserPutsIn)
{
    TextBox box;
    int changes = 0;
    QObject::connect(&box, &TextBox::Change, &box, [&] { ++changes; });
    box.insert(QStringLiteral("cat\r\n"));
    EXPECT_EQ(box.Text(), QStringLiteral("cat"));
    EXPECT_EQ(box.cursorPosition(), 3);
    EXPECT_EQ(changes, 1);
    box.setCursorPosition(1);
    box.insert(QStringLiteral("\nx\n\ny"));
    EXPECT_EQ(box.Text(), QStringLiteral("c x yat"));
    EXPECT_EQ(box.cursorPosition(), 5);
    EXPECT_TRUE(box.hasAcceptableInput());
    // What the program shows stays as it is, until somebody types into it.
    box.SetText(QStringLiteral("two\nlines"));
    EXPECT_EQ(box.Text(), QStringLiteral("two\nlines"));
    box.setCursorPosition(2);
    EXPECT_EQ(box.Text(), QStringLiteral("two\nlines"));
    input::Key(box, Qt::Key_B, QStringLiteral("b"));
    EXPECT_EQ(box.Text(), QStringLiteral("twbo lines"));
    EXPECT_EQ(box.cursorPosition(), 3);
}

TEST(EditableBox, TheWheelChangesNothing)
{
    EditableBox box;
    box.addItems({QStringLiteral("1"), QStringLiteral("2")});
    EXPECT_TRUE(box.isEditable());
    QWheelEvent turn({}, {}, {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&box, &turn);
    EXPECT_EQ(box.currentIndex(), 0);
    EXPECT_FALSE(turn.isAccepted());
}

TEST(TextBox, AMnemonicThatNobodyTookTypesNothing)
{
    TextBox box;
    input::Key(box, Qt::Key_V, QStringLiteral("v"), Qt::AltModifier);
    EXPECT_EQ(box.Text(), QString());
    input::Key(box, Qt::Key_V, QStringLiteral("v"));
    EXPECT_EQ(box.Text(), QStringLiteral("v"));
}

TEST(TextBox, ComposedTextIsLeftAlone)
{
    TextBox box;
    int changes = 0;
    QList<int> keys;
    bool down = false;
    QObject::connect(&box, &TextBox::Change, &box, [&] { ++changes; });
    QObject::connect(&box, &TextBox::KeyPress, &box, [&](int key, bool *) { keys.append(key); });
    QObject::connect(&box, &TextBox::DownPressed, &box, [&] { down = true; });
    QInputMethodEvent composing(QStringLiteral("じし"), {});
    QApplication::sendEvent(&box, &composing);
    EXPECT_EQ(changes, 0);
    input::Key(box, Qt::Key_Return, QStringLiteral("\r"));
    input::Key(box, Qt::Key_Escape, QStringLiteral("\x1b"));
    input::Key(box, Qt::Key_Down);
    EXPECT_TRUE(keys.isEmpty());
    EXPECT_FALSE(down);
    QInputMethodEvent committed;
    committed.setCommitString(QStringLiteral("辞書"));
    QApplication::sendEvent(&box, &committed);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(box.Text(), QStringLiteral("辞書"));
    input::Key(box, Qt::Key_Return, QStringLiteral("\r"));
    EXPECT_EQ(keys, QList<int>{13});
}

TEST(TextBox, KeysAreToldAndCanBeSwallowed)
{
    TextBox box;
    QList<int> keys;
    bool down = false;
    QObject::connect(&box, &TextBox::KeyPress, &box, [&](int key, bool *swallow) {
        keys.append(key);
        *swallow = key == 'x';
    });
    QObject::connect(&box, &TextBox::DownPressed, &box, [&] { down = true; });
    input::Key(box, Qt::Key_X, QStringLiteral("x"));
    input::Key(box, Qt::Key_Y, QStringLiteral("y"));
    input::Key(box, Qt::Key_Backspace, QStringLiteral("\b"));
    input::Key(box, Qt::Key_Left);
    input::Key(box, Qt::Key_Down);
    EXPECT_EQ(box.Text(), QString());
    EXPECT_EQ(keys, (QList<int>{'x', 'y', 8}));
    EXPECT_TRUE(down);
}

TEST(TextBox, SelectsItsTextWithTheFocusButNotForTheMouse)
{
    QWidget window;
    TextBox first(&window), second(&window);
    second.move(0, 40);
    first.SetText(QStringLiteral("abc"));
    second.SetText(QStringLiteral("def"));
    window.show();
    window.activateWindow();
    ASSERT_TRUE(input::Until([&] { return window.isActiveWindow(); }));
    second.setFocus();
    first.setFocus();
    EXPECT_EQ(first.selectedText(), QStringLiteral("abc"));
    first.CaretToEnd();
    EXPECT_FALSE(first.hasSelectedText());
    EXPECT_EQ(first.cursorPosition(), 3);
    second.deselect();
    second.setFocus(Qt::MouseFocusReason);
    EXPECT_FALSE(second.hasSelectedText());
}

TEST(ComboBox, NothingIsChosenByItself)
{
    ComboBox box;
    int clicks = 0;
    QObject::connect(&box, &ComboBox::Click, &box, [&] { ++clicks; });
    box.AddItem(QStringLiteral("英和"));
    box.AddItem(QStringLiteral("和英"));
    EXPECT_EQ(box.ListIndex(), -1);
    EXPECT_EQ(box.Text(), QString());
    box.SetText(QStringLiteral("和英"));
    EXPECT_EQ(box.ListIndex(), 1);
    box.SetText(QStringLiteral("国語"));
    EXPECT_EQ(box.ListIndex(), -1);
    EXPECT_EQ(box.Text(), QStringLiteral("国語"));
    box.SetText(QString());
    EXPECT_EQ(box.Text(), QString());
    EXPECT_EQ(clicks, 0);
    box.Choose(0);
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(box.Text(), QStringLiteral("英和"));
    box.Choose(2);
    box.Choose(-1);
    EXPECT_EQ(clicks, 1);
    box.Clear();
    EXPECT_EQ(box.ListCount(), 0);
    EXPECT_EQ(box.Text(), QString());
}

TEST(ComboBox, PaintsItsOwnText)
{
    ComboBox box;
    box.resize(150, 26);
    const QImage empty = box.grab().toImage();
    box.SetText(QStringLiteral("国語"));
    EXPECT_NE(box.grab().toImage(), empty);
}

TEST(ComboBox, WheelAndSwallowedKeysChangeNothing)
{
    ComboBox box;
    QList<int> keys;
    int clicks = 0;
    QObject::connect(&box, &ComboBox::Click, &box, [&] { ++clicks; });
    QObject::connect(&box, &ComboBox::KeyPress, &box, [&](int key, bool *swallow) {
        keys.append(key);
        *swallow = true;
    });
    box.AddItem(QStringLiteral("a"));
    box.AddItem(QStringLiteral("b"));
    QWheelEvent wheel({5, 5}, {5, 5}, {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&box, &wheel);
    EXPECT_EQ(box.ListIndex(), -1);
    input::Key(box, Qt::Key_B, QStringLiteral("b"));
    EXPECT_EQ(box.ListIndex(), -1);
    EXPECT_EQ(keys, QList<int>{'b'});
    input::Key(box, Qt::Key_Down);
    EXPECT_EQ(box.ListIndex(), 0);
    EXPECT_EQ(clicks, 1);
}

TEST(Picture, ActsOnMouseDownAndKeys)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::red);
    Picture picture((QIcon(pixmap)));
    int downs = 0, moves = 0;
    QObject::connect(&picture, &Picture::MouseDown, &picture, [&] { ++downs; });
    QObject::connect(&picture, &Picture::MouseMove, &picture, [&] { ++moves; });
    input::Mouse(picture, QEvent::MouseButtonPress, {5, 5});
    EXPECT_EQ(downs, 1);
    input::Mouse(picture, QEvent::MouseButtonRelease, {5, 5});
    input::Click(picture, {5, 5}, Qt::RightButton);
    EXPECT_EQ(downs, 1);
    input::Key(picture, Qt::Key_Space, QStringLiteral(" "));
    input::Key(picture, Qt::Key_Return, QStringLiteral("\r"));
    EXPECT_EQ(downs, 3);
    input::Mouse(picture, QEvent::MouseMove, {6, 6}, Qt::NoButton);
    EXPECT_EQ(moves, 1);
    picture.setEnabled(false);
    input::Click(picture, {5, 5});
    EXPECT_EQ(downs, 3);
}

TEST(Picture, PaintsItsIconInTheMiddleAndGreyWhenDisabled)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::red);
    Picture picture((QIcon(pixmap)));
    picture.resize(17, 19);
    const QColor normal = picture.grab().toImage().pixelColor(8, 9);
    EXPECT_EQ(normal, QColor(Qt::red));
    picture.setEnabled(false);
    const QColor disabled = picture.grab().toImage().pixelColor(8, 9);
    EXPECT_LT(disabled.saturation(), normal.saturation());
    picture.setToolTip(QStringLiteral("検索開始"));
    EXPECT_EQ(picture.accessibleName(), QStringLiteral("検索開始"));
}

TEST(ClickLabel, IsClickedByMouseAndKeys)
{
    ClickLabel label;
    label.setText(QStringLiteral("単熟語："));
    int clicks = 0;
    QObject::connect(&label, &ClickLabel::Click, &label, [&] { ++clicks; });
    input::Click(label, {3, 3});
    input::Key(label, Qt::Key_Space, QStringLiteral(" "));
    EXPECT_EQ(clicks, 2);
    input::Click(label, {3, 3}, Qt::RightButton);
    EXPECT_EQ(clicks, 2);
}

TEST(LightGround, LiesUnderPicturesAndLabelsOnADarkThemeAlone)
{
    struct Case {
        QColor window;
        QColor ground;
    };
    for (const auto &[window, ground] :
         {Case{QColor(0x35, 0x35, 0x35), QColor(0xEF, 0xEF, 0xEF)}, Case{QColor(0xFA, 0xE0, 0xC8), {}}}) {
        QPalette palette;
        palette.setColor(QPalette::Window, window);
        Picture picture{QIcon()};
        ClickLabel label;
        for (QWidget *control : {static_cast<QWidget *>(&picture), static_cast<QWidget *>(&label)}) {
            control->setPalette(palette);
            control->resize(40, 20);
            EXPECT_EQ(control->grab().toImage().pixelColor(2, 2), ground.isValid() ? ground : window);
        }
    }
}

TEST(StatusBar, ElidesAndTellsTheWholeText)
{
    StatusBar bar;
    bar.resize(80, 20);
    const QString longText =
        QStringLiteral("検索条件に該当する見出し語を表示中．．．検索条件に該当する見出し語");
    const int height = bar.height();
    bar.SetSimpleText(longText);
    EXPECT_EQ(bar.SimpleText(), longText);
    EXPECT_NE(bar.text(), longText);
    EXPECT_EQ(bar.toolTip(), longText);
    EXPECT_EQ(bar.height(), height);
    bar.resize(2000, height);
    bar.grab();
    EXPECT_EQ(bar.text(), longText);
    EXPECT_EQ(bar.toolTip(), QString());
    bar.SetSimpleText(QString());
    EXPECT_EQ(bar.text(), QString());
}

TEST(Looks, FontsAndColoursAreTaken)
{
    const QFont font = MakeFont(QStringLiteral("ＭＳ Ｐゴシック"), 11, true, false, true, false);
    EXPECT_EQ(font.families().constFirst(), QStringLiteral("ＭＳ Ｐゴシック"));
    EXPECT_TRUE(font.families().contains(QStringLiteral("IPAPGothic")));
    EXPECT_EQ(font.pointSize(), 11);
    EXPECT_TRUE(font.bold());
    EXPECT_FALSE(font.italic());
    EXPECT_TRUE(font.strikeOut());
    EXPECT_FALSE(font.underline());
    EXPECT_EQ(MakeColor(0x00112233), QColor(0x33, 0x22, 0x11));
}

} // namespace
