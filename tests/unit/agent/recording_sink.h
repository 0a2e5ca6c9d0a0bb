#pragma once

#include "platform/agent/sound_sink.h"

#include <QElapsedTimer>
#include <vector>

/// What sinks of the tests have been given, and how the next ones behave.
struct Recording {
    std::vector<std::int16_t> samples;
    int sinks = 0;
    int rate = 0;
    /// Milliseconds from the start of the clock to the first sample that was no silence; -1 for none.
    qint64 firstSound = -1;
    QElapsedTimer clock;
    bool refusesToStart = false;
    /// Behind so many samples the device has gone; -1 for never.
    std::int64_t failsBehind = -1;
};

inline Recording recording;

/// Keeps what it is given, and has heard it at once.
class RecordingSink : public agent::SoundSink
{
public:
    bool Start(int rate) override
    {
        ++recording.sinks;
        recording.rate = rate;
        return !recording.refusesToStart;
    }

    std::size_t Write(std::span<const std::int16_t> samples) override
    {
        if (HasFailed())
            return 0;
        constexpr int loudness = 64;
        for (const std::int16_t sample : samples)
            if (recording.firstSound < 0 && std::abs(sample) > loudness)
                recording.firstSound = recording.clock.elapsed();
        recording.samples.insert(recording.samples.end(), samples.begin(), samples.end());
        m_played += std::ssize(samples);
        return samples.size();
    }

    std::int64_t Played() const override { return m_played; }
    bool HasFailed() const override { return recording.failsBehind >= 0 && m_played > recording.failsBehind; }

private:
    std::int64_t m_played = 0;
};

/// Records while it lives.
class RecordSounds
{
public:
    RecordSounds()
    {
        recording = {};
        recording.clock.start();
        agent::SetSinkMaker([] { return std::make_unique<RecordingSink>(); });
    }
    ~RecordSounds() { agent::SetSinkMaker({}); }
    RecordSounds(const RecordSounds &) = delete;
    RecordSounds &operator=(const RecordSounds &) = delete;
};
