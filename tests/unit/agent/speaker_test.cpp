#include "platform/agent/speaker.h"

#include "platform/failure/fault_points.h"
#include "recording_sink.h"

#include <QEventLoop>
#include <QStringList>
#include <QTest>
#include <cmath>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using agent::Mouth;

namespace
{

const agent::VoiceSettings kVoice{u"en-us"_s, 50, 165};
constexpr int kPatience = 20000;

/// A speaker with all that it told, in order.
struct Told {
    explicit Told(const agent::VoiceSettings &voice = kVoice) : speaker(voice)
    {
        QObject::connect(&speaker, &agent::Speaker::Began, &speaker,
                         [this](int request) { events.append(u"began %1"_s.arg(request)); });
        QObject::connect(&speaker, &agent::Speaker::Word, &speaker,
                         [this](int, qsizetype at, qsizetype length) {
                             events.append(u"word %1 %2"_s.arg(at).arg(length));
                         });
        QObject::connect(&speaker, &agent::Speaker::MouthShape, &speaker, [this](Mouth mouth) {
            events.append(mouth == Mouth::Closed ? u"closed"_s : u"mouth"_s);
        });
        QObject::connect(&speaker, &agent::Speaker::Ended, &speaker,
                         [this](int request) { events.append(u"ended %1"_s.arg(request)); });
    }

    bool WaitForEnd()
    {
        return QTest::qWaitFor([this] { return !speaker.IsSpeaking(); }, kPatience);
    }

    QStringList Words() const { return events.filter(u"word"_s); }

    QStringList events;
    agent::Speaker speaker;
};

double Loudness()
{
    double sum = 0;
    for (const std::int16_t sample : recording.samples)
        sum += static_cast<double>(sample) * sample;
    return recording.samples.empty() ? 0 : std::sqrt(sum / static_cast<double>(recording.samples.size()));
}

double Seconds() { return static_cast<double>(recording.samples.size()) / agent::Synthesizer::kRate; }

TEST(Speaker, SpeaksASentence)
{
    const RecordSounds sounds;
    Told told;
    told.speaker.Say(1, u"The owl reads a book."_s);
    ASSERT_TRUE(told.WaitForEnd());
    EXPECT_EQ(recording.rate, 22050);
    EXPECT_GT(Seconds(), 0.8);
    EXPECT_LT(Seconds(), 4);
    EXPECT_GT(Loudness(), 500);
    EXPECT_EQ(told.Words(),
              (QStringList{u"word 0 3"_s, u"word 4 3"_s, u"word 8 5"_s, u"word 14 1"_s, u"word 16 4"_s}));
}

TEST(Speaker, MouthMovesWithinEachWordAndClosesInTheEnd)
{
    const RecordSounds sounds;
    Told told;
    told.speaker.Say(1, u"open window"_s);
    ASSERT_TRUE(told.WaitForEnd());
    EXPECT_EQ(told.events.first(), u"began 1"_s);
    EXPECT_EQ(told.events.last(), u"ended 1"_s);
    EXPECT_EQ(told.events[told.events.size() - 2], u"closed"_s);
    const qsizetype first = told.events.indexOf(u"word 0 4"_s), second = told.events.indexOf(u"word 5 6"_s);
    ASSERT_TRUE(first >= 0 && second > first);
    EXPECT_GE(told.events.sliced(first, second - first).count(u"mouth"_s), 2);
    EXPECT_GE(told.events.sliced(second).count(u"mouth"_s), 2);
}

TEST(Speaker, SecondRequestWaitsForTheFirst)
{
    const RecordSounds sounds;
    Told told;
    told.speaker.Say(7, u"one"_s);
    told.speaker.Say(8, u"two three"_s);
    ASSERT_TRUE(told.WaitForEnd());
    const QStringList order = told.events.filter(QRegularExpression(u"began|ended|word"_s));
    EXPECT_EQ(order, (QStringList{u"began 7"_s, u"word 0 3"_s, u"ended 7"_s, u"began 8"_s, u"word 0 3"_s,
                                  u"word 4 5"_s, u"ended 8"_s}));
}

TEST(Speaker, AnswersAtOnceAndSoundsSoon)
{
    const RecordSounds sounds;
    Told told;
    told.speaker.Say(1, u"warm"_s);
    ASSERT_TRUE(told.WaitForEnd());
    recording = {};
    recording.clock.start();
    told.speaker.Say(2, QString(u"a long text "_s).repeated(1000));
    EXPECT_LE(recording.clock.elapsed(), 5);
    EXPECT_TRUE(QTest::qWaitFor([] { return recording.firstSound >= 0; }, kPatience));
    // A busy machine is given its time: the benchmark measures.
    EXPECT_LE(recording.firstSound, 1000);
}

TEST(Speaker, StopsInTheMiddleOfALongText)
{
    const RecordSounds sounds;
    Told told;
    told.speaker.Say(1, QString(u"never ending story. "_s).repeated(50000));
    told.speaker.Say(2, u"after it"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return told.Words().size() > 20; }, kPatience));
    told.speaker.Stop();
    EXPECT_FALSE(told.speaker.IsSpeaking());
    EXPECT_EQ(told.events.last(), u"closed"_s);
    const qsizetype before = told.events.size();
    QTest::qWait(50);
    EXPECT_EQ(told.events.size(), before) << "nothing is told of what was given up";
    told.speaker.Say(3, u"again"_s);
    ASSERT_TRUE(told.WaitForEnd());
    EXPECT_EQ(told.events.last(), u"ended 3"_s);
}

TEST(Speaker, EndsWhileItSpeaks)
{
    const RecordSounds sounds;
    {
        Told told;
        told.speaker.Say(1, QString(u"never ending story. "_s).repeated(50000));
        ASSERT_TRUE(QTest::qWaitFor([&] { return !told.Words().isEmpty(); }, kPatience));
    }
    const std::size_t before = recording.samples.size();
    QTest::qWait(50);
    EXPECT_EQ(recording.samples.size(), before);
}

TEST(Speaker, TextsThatHoldNoWordsEnd)
{
    const RecordSounds sounds;
    Told told;
    int request = 0;
    for (const QString &text :
         {QString(), u"   "_s, u"\r\n"_s, QString(QChar(0)), QString(QChar(0xD800)), u"..."_s})
        told.speaker.Say(++request, text);
    ASSERT_TRUE(told.WaitForEnd());
    EXPECT_EQ(told.events.filter(u"ended"_s).size(), request);
}

TEST(Speaker, MarkupIsTextAndControlCharactersAreBlanks)
{
    const RecordSounds sounds;
    Told told;
    told.speaker.Say(1, u"<b>bold</b>\u0001100P [[x]] a\u0000b"_s);
    ASSERT_TRUE(told.WaitForEnd());
    EXPECT_GE(told.Words().size(), 3);
    EXPECT_GT(Loudness(), 100);
}

TEST(Speaker, PositionsCountCodeUnits)
{
    const RecordSounds sounds;
    Told told;
    told.speaker.Say(1, u"\U0001F600 caf\u00e9 noir"_s);
    ASSERT_TRUE(told.WaitForEnd());
    EXPECT_TRUE(told.Words().contains(u"word 3 4"_s)) << qPrintable(told.events.join(u' '));
    EXPECT_TRUE(told.Words().contains(u"word 8 4"_s));
}

TEST(Speaker, WithoutAVoiceMouthsTheWords)
{
    const RecordSounds sounds;
    faults::FailNext(u"voice"_s, 53);
    Told told;
    told.speaker.Say(1, u"no voice here"_s);
    ASSERT_TRUE(told.WaitForEnd());
    EXPECT_EQ(told.Words(), (QStringList{u"word 0 2"_s, u"word 3 5"_s, u"word 9 4"_s}));
    EXPECT_EQ(Loudness(), 0);
    EXPECT_GT(Seconds(), 0.5);
    EXPECT_GE(told.events.count(u"mouth"_s), 6);
}

TEST(Speaker, UnknownVoiceGivesWayToTheUsualOne)
{
    const RecordSounds sounds;
    Told told({u"xx-nowhere"_s, 50, 165});
    told.speaker.Say(1, u"hello"_s);
    ASSERT_TRUE(told.WaitForEnd());
    EXPECT_GT(Loudness(), 300);
}

TEST(Speaker, ADeviceThatRefusesIsReplacedBySilenceInStep)
{
    const RecordSounds sounds;
    recording.refusesToStart = true;
    Told told;
    QElapsedTimer clock;
    clock.start();
    told.speaker.Say(1, u"one two"_s);
    ASSERT_TRUE(told.WaitForEnd());
    EXPECT_EQ(told.Words().size(), 2);
    EXPECT_GT(clock.elapsed(), 400) << "words come as they would be heard";
    EXPECT_TRUE(recording.samples.empty());
}

TEST(Speaker, ADeviceThatVanishesIsReplacedBySilence)
{
    const RecordSounds sounds;
    recording.failsBehind = 8000;
    Told told;
    told.speaker.Say(1, u"one two three four five"_s);
    ASSERT_TRUE(told.WaitForEnd());
    EXPECT_EQ(told.Words().size(), 5);
    EXPECT_EQ(told.events.last(), u"ended 1"_s);
}

} // namespace
