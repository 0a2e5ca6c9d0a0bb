#include "platform/host/host.h"

#include "input.h"
#include "platform/host/looks.h"

#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>
#include <csignal>
#include <gtest/gtest.h>
#include <memory>
#include <sys/stat.h>

namespace
{

TEST(EndSignal, IsTakenByTheEventLoop)
{
    const auto context = std::make_unique<QObject>();
    int ends = 0;
    host::OnEndSignal(context.get(), [&] { ++ends; });
    std::raise(SIGHUP);
    EXPECT_EQ(ends, 0);
    EXPECT_TRUE(input::Until([&] { return ends == 1; }));
    std::raise(SIGTERM);
    EXPECT_TRUE(input::Until([&] { return ends == 2; }));
    // Another of the same kind ends the process at once.
    EXPECT_EXIT(std::raise(SIGTERM), testing::KilledBySignal(SIGTERM), "");
    std::signal(SIGINT, SIG_DFL);
}

TEST(Turns, HooksRunAtEveryYieldButTurnsAreSkipped)
{
    int yields = 0, turns = 0, delivered = 0;
    host::SetYieldHook([&] { ++yields; });
    host::SetBeforeTurnHook([&] { ++turns; });
    host::DoEvents();
    EXPECT_EQ(yields, 1);
    EXPECT_EQ(turns, 1);
    QTimer::singleShot(0, [&] { ++delivered; });
    for (int i = 0; i < 10; ++i)
        host::YieldRow();
    EXPECT_EQ(yields, 11);
    EXPECT_LT(turns, 11);
    QThread::msleep(6);
    host::YieldRow();
    EXPECT_EQ(delivered, 1);
    const int before = turns;
    host::Sleep(10);
    EXPECT_EQ(turns, before + 1);
    EXPECT_EQ(yields, 12);
    host::SetYieldHook(nullptr);
    host::SetBeforeTurnHook(nullptr);
    host::DoEvents();
    EXPECT_EQ(yields, 12);
}

TEST(Turns, HookMayTakeItselfAway)
{
    int yields = 0;
    host::SetYieldHook([&] {
        ++yields;
        host::SetYieldHook(nullptr);
    });
    host::DoEvents();
    host::DoEvents();
    EXPECT_EQ(yields, 1);
}

TEST(Turns, SleepLetsEventsThrough)
{
    bool delivered = false;
    QTimer::singleShot(5, [&] { delivered = true; });
    QElapsedTimer timer;
    timer.start();
    host::Sleep(40);
    EXPECT_TRUE(delivered);
    EXPECT_GE(timer.elapsed(), 38);
}

TEST(Beep, IsRememberedOnce)
{
    host::TakePendingBeep();
    host::MessageBeep(host::BeepExclamation);
    host::MessageBeep(host::BeepCritical);
    EXPECT_EQ(host::TakePendingBeep(), 16);
    EXPECT_EQ(host::TakePendingBeep(), 0);
}

TEST(Pointer, IsOverriddenOnceAndSetAside)
{
    host::SetMousePointer(host::PointerHourglass);
    host::SetMousePointer(host::PointerHourglass);
    ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    {
        const host::PointerAside aside;
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
        EXPECT_EQ(host::MousePointer(), 11);
    }
    EXPECT_NE(QGuiApplication::overrideCursor(), nullptr);
    host::SetMousePointer(host::PointerDefault);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_EQ(host::MousePointer(), 0);
}

TEST(Clipboard, TellsTextFromOtherThings)
{
    host::SetClipboardText(QStringLiteral("見出し語"));
    EXPECT_TRUE(host::ClipboardHasText());
    EXPECT_EQ(host::ClipboardText(), QStringLiteral("見出し語"));
    QImage image(2, 2, QImage::Format_RGB32);
    image.fill(Qt::red);
    QGuiApplication::clipboard()->setImage(image);
    EXPECT_FALSE(host::ClipboardHasText());
    EXPECT_EQ(host::ClipboardText(), QString());
    host::SetClipboardText(QString());
}

TEST(Screen, WidthCanBeStoodInFor)
{
    EXPECT_GT(host::ScreenWidth(), 0);
    EXPECT_GT(host::ScreenHeight(), 0);
    host::SetScreenWidth(640);
    EXPECT_EQ(host::ScreenWidth(), 640);
    host::SetScreenWidth(0);
    EXPECT_NE(host::ScreenWidth(), 640);
}

TEST(InstanceLock, IsHeldByOneOfAFolder)
{
    const QTemporaryDir folder, other;
    {
        const host::InstanceLock first(folder.path());
        EXPECT_FALSE(first.HeldElsewhere());
        const host::InstanceLock second(folder.path() + QStringLiteral("/."));
        EXPECT_TRUE(second.HeldElsewhere());
        const host::InstanceLock elsewhere(other.path());
        EXPECT_FALSE(elsewhere.HeldElsewhere());
    }
    const host::InstanceLock third(folder.path());
    EXPECT_FALSE(third.HeldElsewhere());
}

TEST(InstanceLock, IsTheSameBeforeTheFolderIsThere)
{
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("real")));
    ASSERT_TRUE(
        QFile::link(folder.filePath(QStringLiteral("real")), folder.filePath(QStringLiteral("link"))));
    const QString there = folder.filePath(QStringLiteral("link/not/yet"));
    const host::InstanceLock first(there);
    EXPECT_FALSE(first.HeldElsewhere());
    EXPECT_TRUE(host::InstanceLock(folder.filePath(QStringLiteral("real/not/yet"))).HeldElsewhere());
    ASSERT_TRUE(QDir().mkpath(there));
    EXPECT_TRUE(host::InstanceLock(there).HeldElsewhere());
}

TEST(InstanceLock, WritesNothingIntoTheFolder)
{
    const QTemporaryDir folder;
    const QByteArray path = folder.path().toLocal8Bit();
    chmod(path.constData(), 0500);
    const host::InstanceLock first(folder.path()), second(folder.path());
    EXPECT_FALSE(first.HeldElsewhere());
    EXPECT_TRUE(second.HeldElsewhere());
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
    chmod(path.constData(), 0700);
}

TEST(Facts, AreTheMachinesOrStandIns)
{
    const host::SystemFacts truth = host::Facts();
    EXPECT_GT(truth.memory, 0);
    EXPECT_GE(truth.load, 0);
    EXPECT_LE(truth.load, 100);
    EXPECT_EQ(truth.version.count(QLatin1Char('.')), 1);
    EXPECT_TRUE(truth.build.startsWith(truth.version));
    EXPECT_FALSE(truth.platform.isEmpty());
    host::SystemFacts standIn;
    standIn.version = QStringLiteral("5.1");
    host::SetFacts(&standIn);
    EXPECT_EQ(host::Facts().version, QStringLiteral("5.1"));
    host::SetFacts(nullptr);
    EXPECT_EQ(host::Facts().version, truth.version);
}

TEST(Help, GoesToTheViewer)
{
    host::WinHelp(QStringLiteral("none"), host::HelpFinder);
    QString file, topic;
    int command = 0;
    host::SetHelpViewer([&](const QString &helpFile, int wanted, const QString &wantedTopic) {
        file = helpFile;
        command = wanted;
        topic = wantedTopic;
    });
    host::WinHelp(QStringLiteral("Z:\\Help.HLP"), host::HelpFinder);
    EXPECT_EQ(file, QStringLiteral("Z:\\Help.HLP"));
    EXPECT_EQ(command, 11);
    EXPECT_EQ(topic, QString());
    host::WinHelp(QStringLiteral("Z:\\Help.HLP"), host::HelpContext, QStringLiteral("frmFind"));
    EXPECT_EQ(command, 1);
    EXPECT_EQ(topic, QStringLiteral("frmFind"));
    host::SetHelpViewer(nullptr);
}

TEST(Looks, ColoursGoThereAndBack)
{
    for (const qint32 bgr : {0x00000000, 0x00FFFFFF, 0x00808040, 0x000000FF})
        EXPECT_EQ(host::BgrOf(host::ColorOf(bgr)), bgr);
}

} // namespace
