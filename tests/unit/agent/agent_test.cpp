#include "platform/agent/agent.h"

#include "platform/agent/figure.h"
#include "platform/failure/runtime_error.h"
#include "platform/files/drive_path.h"
#include "recording_sink.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace
{

QString Shipped(const QString &name)
{
    return files::DrivePath(QStringLiteral(WORDMERE_CHARACTERS) + u'/' + name);
}

class AgentTest : public testing::Test
{
protected:
    void SetUp() override
    {
        agent::SetCallHook([this](const QString &call, const QVariantList &arguments) {
            m_calls.append(call);
            m_arguments.append(arguments);
        });
        m_agent.SetConnected(true);
        m_agent.Characters().Load(u"Neko"_s, Shipped(u"Neko.acs"_s));
    }
    void TearDown() override { agent::SetCallHook({}); }

    agent::Character &Cat() { return m_agent.Characters().Item(u"Neko"_s); }

    template <typename T> static T *Window(const QString &name)
    {
        for (QWidget *window : QApplication::topLevelWidgets())
            if (window->objectName() == name)
                return qobject_cast<T *>(window);
        return nullptr;
    }

    const RecordSounds m_sounds;
    agent::Agent m_agent;
    QStringList m_calls;
    QList<QVariantList> m_arguments;
};

int FailureOf(const std::function<void()> &action)
{
    try {
        action();
    } catch (const RuntimeError &failure) {
        return failure.number();
    }
    return 0;
}

TEST_F(AgentTest, ShowsMovesAndSpeaks)
{
    Cat().SetLanguageID(agent::kEnglish);
    EXPECT_FALSE(Cat().IsVisible()) << "loaded, not shown";
    const agent::Request shown = Cat().Show();
    EXPECT_GT(shown.ID, 0);
    EXPECT_TRUE(Cat().IsVisible());
    EXPECT_EQ(Cat().Width(), 140);
    EXPECT_EQ(Cat().Height(), 170);
    Cat().MoveTo(300, 200);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Cat().TheFigure().pos() == QPoint(300, 200); }));
    QStringList words;
    QString last;
    const QString text = u"Hello, small world."_s;
    QObject::connect(&Cat(), &agent::Character::Word, &m_agent, [&](int, qsizetype at, qsizetype length) {
        words.append(text.sliced(at, length));
        last = Cat().ShownText();
    });
    EXPECT_GT(Cat().Speak(text).ID, shown.ID);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !Cat().IsSpeaking(); }, 10000));
    EXPECT_EQ(words, (QStringList{u"Hello"_s, u"small"_s, u"world"_s}));
    EXPECT_EQ(last, u"Hello, small world"_s) << "the balloon holds what has been said";
    EXPECT_EQ(Cat().TheFigure().CurrentMouth(), agent::Mouth::Closed);
    EXPECT_EQ(m_calls,
              (QStringList{u"Connected"_s, u"Load"_s, u"LanguageID"_s, u"Show"_s, u"MoveTo"_s, u"Speak"_s}));
    EXPECT_EQ(m_arguments[4], (QVariantList{300, 200}));
}

TEST_F(AgentTest, StaysWhereItWasDragged)
{
    Cat().Show();
    agent::Figure &figure = Cat().TheFigure();
    figure.move(100, 100);
    QTest::mousePress(&figure, Qt::LeftButton, {}, QPoint(70, 60));
    QTest::mouseMove(&figure, QPoint(90, 75));
    QTest::mouseRelease(&figure, Qt::LeftButton, {}, QPoint(70, 60));
    EXPECT_EQ(figure.pos(), QPoint(120, 115));
    Cat().Hide();
    EXPECT_FALSE(Cat().IsVisible());
    Cat().Show();
    EXPECT_EQ(figure.pos(), QPoint(120, 115));
}

TEST_F(AgentTest, GoesByItsMenu)
{
    Cat().Show();
    Cat().Speak(QString(u"never ending story. "_s).repeated(1000));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !Cat().ShownText().isEmpty(); }, 10000));
    QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, {5, 5});
    QCoreApplication::sendEvent(&Cat().TheFigure(), &event);
    auto *menu = Cat().TheFigure().findChild<QMenu *>(u"AgentMenu"_s);
    ASSERT_TRUE(menu);
    ASSERT_EQ(menu->actions().size(), 2);
    menu->actions().first()->trigger();
    EXPECT_FALSE(Cat().IsSpeaking());
    EXPECT_TRUE(Cat().IsVisible());
    menu->actions().last()->trigger();
    EXPECT_FALSE(Cat().IsVisible());
    menu->close();
}

TEST_F(AgentTest, BlinksWhileItIsShown)
{
    Cat().Show();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !Cat().TheFigure().AreEyesOpen(); }, 7000));
    EXPECT_TRUE(QTest::qWaitFor([&] { return Cat().TheFigure().AreEyesOpen(); }, 2000));
}

TEST_F(AgentTest, DrawsItsMouths)
{
    Cat().Show();
    QList<QImage> pictures;
    for (const agent::Mouth mouth : agent::kMouths) {
        Cat().TheFigure().SetMouth(mouth);
        const QImage picture = Cat().TheFigure().grab().toImage();
        EXPECT_FALSE(pictures.contains(picture)) << static_cast<int>(mouth);
        pictures.append(picture);
    }
}

TEST_F(AgentTest, RefusesWhatItCannotDo)
{
    const QTemporaryDir folder;
    QFile foreign(folder.filePath(u"foreign.acs"_s));
    ASSERT_TRUE(foreign.open(QIODevice::WriteOnly));
    foreign.write("something else");
    foreign.close();
    const auto load = [&](const QString &path) {
        return [=, this] { m_agent.Characters().Load(u"x"_s, path); };
    };
    EXPECT_EQ(FailureOf(load(files::DrivePath(foreign.fileName()))), 321);
    EXPECT_EQ(FailureOf(load(Shipped(u"nobody.acs"_s))), 53);
    EXPECT_EQ(FailureOf([this] { m_agent.Characters().Item(u"x"_s); }), 91);
    EXPECT_EQ(FailureOf([this] { Cat().SetLanguageID(1041); }), 5);
    m_agent.Characters().Unload(u"x"_s);
    EXPECT_TRUE(m_agent.Connected());
}

TEST_F(AgentTest, UnloadsWhileItSpeaks)
{
    Cat().Show();
    Cat().Speak(QString(u"never ending story. "_s).repeated(50000));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !Cat().ShownText().isEmpty(); }, 10000));
    m_agent.Characters().Unload(u"Neko"_s);
    EXPECT_EQ(FailureOf([this] { Cat(); }), 91);
    m_agent.Characters().Load(u"Neko"_s, Shipped(u"Neko.acs"_s));
    Cat().Speak(u"again"_s);
    m_agent.SetConnected(false);
    EXPECT_EQ(FailureOf([this] { Cat(); }), 91);
}

} // namespace
