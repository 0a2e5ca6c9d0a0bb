#include "platform/dialogs/dialogs.h"

#include "input.h"
#include "platform/dialogs/default_presenter.h"
#include "platform/dialogs/font_box.h"
#include "platform/files/drive_path.h"
#include "platform/host/host.h"

#include <QFile>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <gtest/gtest.h>

using namespace dialogs;

namespace
{

class DialogsTest : public testing::Test
{
protected:
    ~DialogsTest() override
    {
        SetPresenter(nullptr);
        SetBeforeBoxHook(nullptr);
        host::SetMousePointer(host::PointerDefault);
    }

    /// Answers every box with `reply` and keeps the last.
    void Record(const Reply &reply)
    {
        SetPresenter([this, reply](const Box &shown) {
            box = shown;
            return reply;
        });
    }

    /// Does something with the real box of a type once it is open.
    template <typename Dialog> static void WhenOpen(std::function<void(Dialog &)> action)
    {
        auto *timer = new QTimer(qApp);
        QObject::connect(timer, &QTimer::timeout, timer, [timer, action] {
            if (auto *dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget())) {
                timer->deleteLater();
                timer->stop();
                action(*dialog);
            }
        });
        timer->start(5);
    }

    static QPushButton *ButtonOf(const QDialog &dialog, const QString &name)
    {
        const QList<QPushButton *> buttons = dialog.findChildren<QPushButton *>();
        for (QPushButton *button : buttons)
            if (button->accessibleName() == name || button->text() == name)
                return button;
        return nullptr;
    }

    static Reply Accepted(const QString &text)
    {
        Reply reply;
        reply.accepted = true;
        reply.text = text;
        return reply;
    }

    Box box;
};

TEST_F(DialogsTest, MessageBoxHasItsPartsFromTheStyle)
{
    Reply no;
    no.answer = No;
    Record(no);
    host::TakePendingBeep();
    EXPECT_EQ(BeepAndMsgBox(32, QStringLiteral("保存しますか?"), YesNoCancel | Question | DefaultButton2,
                            QStringLiteral("確認")),
              No);
    EXPECT_EQ(box.kind, Box::Kind::Message);
    EXPECT_EQ(box.title, QStringLiteral("確認"));
    EXPECT_EQ(box.icon, 32);
    EXPECT_EQ(box.beep, 32);
    EXPECT_EQ(box.buttons,
              (QStringList{QStringLiteral("はい"), QStringLiteral("いいえ"), QStringLiteral("キャンセル")}));
    EXPECT_EQ(box.defaultButton, QStringLiteral("いいえ"));
    MsgBox(QStringLiteral("x"), OKCancel | Critical);
    EXPECT_EQ(box.title, QStringLiteral("Wordmere"));
    EXPECT_EQ(box.icon, 16);
    EXPECT_EQ(box.beep, 0);
    EXPECT_EQ(box.defaultButton, QStringLiteral("OK"));
}

TEST_F(DialogsTest, AnAnswerThatNoButtonGivesCountsAsCancel)
{
    Record({});
    EXPECT_EQ(MsgBox(QStringLiteral("x"), YesNoCancel), Cancel);
    EXPECT_EQ(MsgBox(QStringLiteral("x"), OKCancel), Cancel);
    EXPECT_EQ(MsgBox(QStringLiteral("x"), OKOnly), OK);
    EXPECT_EQ(MsgBox(QStringLiteral("x"), YesNo), No);
}

TEST_F(DialogsTest, WordsGoThereAndBack)
{
    for (const int answer : {OK, Cancel, Yes, No})
        EXPECT_EQ(AnswerOf(ButtonWord(answer)), answer);
    EXPECT_EQ(AnswerOf(QStringLiteral("?")), 0);
    EXPECT_EQ(ButtonWord(99), QString());
}

TEST_F(DialogsTest, EveryBoxCallsTheHookAndSetsThePointerAside)
{
    int hooks = 0;
    bool hourglass = true;
    SetBeforeBoxHook([&] { ++hooks; });
    SetPresenter([&](const Box &) {
        hourglass = QGuiApplication::overrideCursor() != nullptr;
        return Reply{};
    });
    host::SetMousePointer(host::PointerHourglass);
    MsgBox(QStringLiteral("x"));
    EXPECT_FALSE(hourglass);
    EXPECT_NE(QGuiApplication::overrideCursor(), nullptr);
    InputBox(QStringLiteral("p"), QStringLiteral("t"));
    OpenFile({}, {}, true, false);
    SaveFile({}, {}, false);
    ChooseFolder({}, {});
    ChooseFont({}, {});
    ChooseColor(0);
    EXPECT_EQ(hooks, 7);
}

TEST_F(DialogsTest, OtherBoxesGiveWhatWasChosenOrNothing)
{
    Record(Accepted(QStringLiteral("Z:\\a.mdb")));
    EXPECT_EQ(OpenFile(QStringLiteral("開く"), QStringLiteral("辞書|*.mdb"), true, false),
              QStringLiteral("Z:\\a.mdb"));
    EXPECT_TRUE(box.mustExist);
    EXPECT_FALSE(box.save);
    EXPECT_EQ(box.filter, QStringLiteral("辞書|*.mdb"));
    EXPECT_EQ(SaveFile({}, {}, true), QStringLiteral("Z:\\a.mdb"));
    EXPECT_TRUE(box.save);
    EXPECT_TRUE(box.createPrompt);
    EXPECT_EQ(InputBox(QStringLiteral("語"), QStringLiteral("題"), QStringLiteral("元")),
              QStringLiteral("Z:\\a.mdb"));
    EXPECT_EQ(box.text, QStringLiteral("語"));
    EXPECT_EQ(box.defaultText, QStringLiteral("元"));
    EXPECT_TRUE(ChooseColor(5).has_value());
    Record({});
    EXPECT_EQ(OpenFile({}, {}, true, false), QString());
    EXPECT_EQ(InputBox({}, {}, QStringLiteral("元")), QString());
    EXPECT_EQ(ChooseFolder({}, {}), QString());
    EXPECT_FALSE(ChooseFont({}, {}).has_value());
    EXPECT_FALSE(ChooseColor(5).has_value());
}

TEST_F(DialogsTest, RealMessageBoxShowsPlainLinesAndJapaneseButtons)
{
    QString text;
    QStringList order;
    WhenOpen<QMessageBox>([&](QMessageBox &dialog) {
        text = dialog.text();
        EXPECT_EQ(dialog.textFormat(), Qt::PlainText);
        QList<QPushButton *> buttons = dialog.findChildren<QPushButton *>();
        std::sort(buttons.begin(), buttons.end(), [](auto *a, auto *b) { return a->x() < b->x(); });
        for (const QPushButton *button : buttons)
            order.append(button->accessibleName());
        EXPECT_TRUE(ButtonOf(dialog, QStringLiteral("いいえ"))->isDefault());
        ButtonOf(dialog, QStringLiteral("はい"))->click();
    });
    EXPECT_EQ(MsgBox(QStringLiteral("一\r\n<b>二</b>\r三"), YesNoCancel | Question | DefaultButton2), Yes);
    EXPECT_EQ(text, QStringLiteral("一\n<b>二</b>\n三"));
    EXPECT_EQ(order,
              (QStringList{QStringLiteral("はい"), QStringLiteral("いいえ"), QStringLiteral("キャンセル")}));
}

TEST_F(DialogsTest, EscIsCancelWhereThereIsOne)
{
    const auto pressEsc = [](QMessageBox &dialog) {
        input::Key(dialog, Qt::Key_Escape, QStringLiteral("\x1b"));
    };
    WhenOpen<QMessageBox>(pressEsc);
    EXPECT_EQ(MsgBox(QStringLiteral("x"), YesNoCancel), Cancel);
    WhenOpen<QMessageBox>(pressEsc);
    EXPECT_EQ(MsgBox(QStringLiteral("x"), OKOnly), OK);
    bool stayed = false;
    WhenOpen<QMessageBox>([&](QMessageBox &dialog) {
        pressEsc(dialog);
        stayed = dialog.isVisible();
        ButtonOf(dialog, QStringLiteral("はい"))->click();
    });
    EXPECT_EQ(MsgBox(QStringLiteral("x"), YesNo), Yes);
    EXPECT_TRUE(stayed);
}

TEST_F(DialogsTest, BoxSurvivesItsParent)
{
    auto *parent = new QWidget;
    parent->show();
    parent->activateWindow();
    ASSERT_TRUE(input::Until([&] { return parent->isActiveWindow(); }));
    WhenOpen<QMessageBox>([&](QMessageBox &) { delete parent; });
    EXPECT_EQ(MsgBox(QStringLiteral("x"), OKCancel), Cancel);
}

TEST_F(DialogsTest, RealInputBoxIsPlainAndGivesItsText)
{
    WhenOpen<QInputDialog>([](QInputDialog &dialog) {
        EXPECT_EQ(dialog.textValue(), QStringLiteral("元"));
        EXPECT_EQ(dialog.findChild<QLabel *>()->textFormat(), Qt::PlainText);
        EXPECT_NE(ButtonOf(dialog, QStringLiteral("キャンセル")), nullptr);
        dialog.setTextValue(QStringLiteral("新"));
        ButtonOf(dialog, QStringLiteral("OK"))->click();
    });
    EXPECT_EQ(InputBox(QStringLiteral("<i>名前</i>"), QStringLiteral("題"), QStringLiteral("元")),
              QStringLiteral("新"));
}

TEST_F(DialogsTest, FiltersAreTakenOver)
{
    EXPECT_EQ(NameFilters(QStringLiteral("辞書 (*.mdb)|*.mdb|すべて|*.*|表|*.csv;*.txt")),
              (QStringList{QStringLiteral("辞書 (*.mdb) (*.mdb)"), QStringLiteral("すべて (*)"),
                           QStringLiteral("表 (*.csv *.txt)")}));
    EXPECT_TRUE(NameFilters(QString()).isEmpty());
    EXPECT_TRUE(NameFilters(QStringLiteral("lonely")).isEmpty());
}

TEST_F(DialogsTest, RealFileBoxGivesADrivePathAndRefusesBackslashes)
{
    const QTemporaryDir folder;
    const auto make = [&](const QString &name) {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        return file.fileName();
    };
    const QString good = make(QStringLiteral("good.MDB")), bad = make(QStringLiteral("b\\ad.mdb"));
    QString warning;
    WhenOpen<QFileDialog>([&](QFileDialog &dialog) {
        EXPECT_EQ(dialog.labelText(QFileDialog::Reject), QStringLiteral("キャンセル"));
        for (const QLabel *label : dialog.findChildren<QLabel *>())
            EXPECT_TRUE(!label->text().contains(QLatin1Char('&')) || label->buddy())
                << label->text().toStdString();
        EXPECT_EQ(dialog.iconProvider()->type(QFileInfo(folder.path())), QStringLiteral("フォルダ"));
        EXPECT_EQ(dialog.iconProvider()->type(QFileInfo(good)), QStringLiteral("MDB ファイル"));
        dialog.setDirectory(folder.path());
        dialog.findChild<QLineEdit *>()->setText(bad);
        WhenOpen<QMessageBox>([&](QMessageBox &refusal) {
            warning = refusal.text();
            WhenOpen<QFileDialog>([&](QFileDialog &again) {
                again.findChild<QLineEdit *>()->setText(good);
                QMetaObject::invokeMethod(&again, "accept");
            });
            refusal.accept();
        });
        QMetaObject::invokeMethod(&dialog, "accept");
    });
    EXPECT_EQ(OpenFile(QStringLiteral("開く"), QStringLiteral("辞書|*.mdb"), true, false),
              files::DrivePath(good));
    EXPECT_TRUE(warning.contains(QStringLiteral("\\")));
}

TEST_F(DialogsTest, FontBoxKeepsWhatIsLeftAlone)
{
    FontChoice start;
    start.name = QStringLiteral("No Such Family");
    start.size = 14;
    start.color = 0x00112233;
    start.bold = start.underline = true;
    const FontBox fonts(QStringLiteral("題"), start, nullptr);
    const FontChoice choice = fonts.Choice();
    EXPECT_EQ(choice.name, start.name);
    EXPECT_EQ(choice.size, 14);
    EXPECT_EQ(choice.color, 0x00112233);
    EXPECT_TRUE(choice.bold);
    EXPECT_TRUE(choice.underline);
    EXPECT_FALSE(choice.strikeout);
}

} // namespace
