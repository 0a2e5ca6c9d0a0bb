#include "platform/controls/multi_line_box.h"

#include "input.h"

#include <QClipboard>
#include <QInputMethodEvent>
#include <gtest/gtest.h>

using controls::MultiLineBox;
using namespace Qt::StringLiterals;

namespace
{

struct Lines {
    const char *what;
    QString put, got;
};

TEST(MultiLineBox, HandsOutCrLfAndEveryOtherCharacterAsItWas)
{
    const Lines table[] = {
        {"nothing", u""_s, u""_s},
        {"one line", u"a b"_s, u"a b"_s},
        {"CR LF", u"a\r\nb"_s, u"a\r\nb"_s},
        {"LF", u"a\nb"_s, u"a\r\nb"_s},
        {"CR", u"a\rb"_s, u"a\r\nb"_s},
        {"all kinds", u"\r\n\n\ra"_s, u"\r\n\r\n\r\na"_s},
        {"an end behind the last line", u"a\r\n"_s, u"a\r\n"_s},
        {"paragraph separator", u"a\u2029b"_s, u"a\r\nb"_s},
        {"line separator", u"a\u2028b"_s, u"a\u2028b"_s},
        {"hard blank", u"a\u00a0\u00a0b\u3000c\u202fd"_s, u"a\u00a0\u00a0b\u3000c\u202fd"_s},
        {"tab and controls", u"a\tb\x01\x0b\x0c"_s, u"a\tb\x01\x0b\x0c"_s},
        {"replacement of an object", u"a\ufffcb\ufeffc\u200b"_s, u"a\ufffcb\ufeffc\u200b"_s},
        {"beyond the plane", u"\U0001F600é\u0301"_s, u"\U0001F600é\u0301"_s},
        {"markup", u"<b>&amp;</b>"_s, u"<b>&amp;</b>"_s},
    };
    for (const Lines &row : table) {
        MultiLineBox box;
        box.SetText(row.put);
        EXPECT_EQ(box.Text(), row.got) << row.what;
        const QString again = box.Text();
        box.SetText(again);
        EXPECT_EQ(box.Text(), again) << row.what << ", a second time";
    }
}

TEST(MultiLineBox, NulIsKept)
{
    const QString text = u"a"_s + QChar(u'\0') + u"b"_s;
    MultiLineBox box;
    box.SetText(text);
    EXPECT_EQ(box.Text(), text);
}

TEST(MultiLineBox, ChangeComesForDifferentTextOnly)
{
    MultiLineBox box;
    int changes = 0;
    QObject::connect(&box, &MultiLineBox::Change, &box, [&] { ++changes; });
    box.SetText(u"a\r\nb"_s);
    EXPECT_EQ(changes, 1);
    box.SetText(u"a\r\nb"_s);
    EXPECT_EQ(changes, 1);
    input::Key(box, Qt::Key_C, u"c"_s);
    EXPECT_EQ(box.Text(), u"ca\r\nb"_s);
    EXPECT_EQ(changes, 2);
    box.SetText({});
    EXPECT_EQ(changes, 3);
    box.SetText({});
    EXPECT_EQ(changes, 3);
}

TEST(MultiLineBox, ComposedTextRaisesNothing)
{
    MultiLineBox box;
    int changes = 0;
    QObject::connect(&box, &MultiLineBox::Change, &box, [&] { ++changes; });
    QInputMethodEvent composing(u"じし"_s, {});
    QApplication::sendEvent(&box, &composing);
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(box.Text(), QString());
    QInputMethodEvent committed;
    committed.setCommitString(u"辞書"_s);
    QApplication::sendEvent(&box, &committed);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(box.Text(), u"辞書"_s);
}

TEST(MultiLineBox, EnterEndsALineWithShiftToo)
{
    MultiLineBox box;
    input::Key(box, Qt::Key_A, u"a"_s);
    input::Key(box, Qt::Key_Return, u"\r"_s);
    input::Key(box, Qt::Key_Return, u"\r"_s, Qt::ShiftModifier);
    input::Key(box, Qt::Key_B, u"b"_s);
    EXPECT_EQ(box.Text(), u"a\r\n\r\nb"_s);
}

TEST(MultiLineBox, AMnemonicThatNobodyTookTypesNothing)
{
    MultiLineBox box;
    input::Key(box, Qt::Key_V, u"v"_s, Qt::AltModifier);
    EXPECT_EQ(box.Text(), QString());
    input::Key(box, Qt::Key_At, u"@"_s, Qt::AltModifier | Qt::ControlModifier);
    EXPECT_EQ(box.Text(), u"@"_s);
}

TEST(MultiLineBox, CopiesItsCharactersAsTheyAre)
{
    MultiLineBox from, to;
    from.SetText(u"a\u00a0b\r\nc"_s);
    from.selectAll();
    from.copy();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"a\u00a0b\nc"_s);
    to.paste();
    EXPECT_EQ(to.Text(), u"a\u00a0b\r\nc"_s);
}

TEST(MultiLineBox, TakesAMegabyteAtOnce)
{
    MultiLineBox box;
    box.resize(500, 200);
    box.show();
    const QString line = u"訳語 meaning\u00a0/ "_s.repeated(70'000);
    QElapsedTimer timer;
    timer.start();
    QGuiApplication::clipboard()->setText(line);
    box.paste();
    EXPECT_EQ(box.Text(), line);
    box.SetText(QString(line).replace(u'/', u'\n'));
    input::Key(box, Qt::Key_X, u"x"_s);
    QApplication::processEvents();
    EXPECT_TRUE(box.Text().startsWith(u'x'));
    EXPECT_LT(timer.elapsed(), 30'000);
    RecordProperty("milliseconds", static_cast<int>(timer.elapsed()));
}

} // namespace
