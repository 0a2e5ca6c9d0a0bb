#include "platform/agent/sound_sink.h"

#include <QAudioDevice>
#include <QAudioFormat>
#include <QAudioSink>
#include <QElapsedTimer>
#include <QMediaDevices>
#include <algorithm>

namespace
{

constexpr int kMillisecondsPerSecond = 1000;
constexpr int kMicrosecondsPerSecond = 1000000;

agent::SinkMaker sinkMaker;

class SilentSink : public agent::SoundSink
{
public:
    bool Start(int rate) override
    {
        m_rate = rate;
        m_clock.start();
        return true;
    }

    std::size_t Write(std::span<const std::int16_t> samples) override
    {
        // Time in which there was nothing to play does not count.
        if (const std::int64_t behind = Clock() - m_taken; behind > 0)
            m_idle += behind;
        const std::int64_t room = m_rate - (m_taken - Played());
        const std::int64_t taken =
            std::clamp<std::int64_t>(std::ssize(samples), 0, std::max<std::int64_t>(room, 0));
        m_taken += taken;
        return static_cast<std::size_t>(taken);
    }

    std::int64_t Played() const override { return std::min(Clock(), m_taken); }

private:
    std::int64_t Clock() const { return m_clock.elapsed() * m_rate / kMillisecondsPerSecond - m_idle; }

    QElapsedTimer m_clock;
    std::int64_t m_rate = 0;
    std::int64_t m_taken = 0;
    std::int64_t m_idle = 0;
};

class DeviceSink : public agent::SoundSink
{
public:
    explicit DeviceSink(const QAudioDevice &device) : m_device(device) {}

    bool Start(int rate) override
    {
        QAudioFormat format;
        format.setSampleRate(rate);
        format.setChannelCount(1);
        format.setSampleFormat(QAudioFormat::Int16);
        if (!m_device.isFormatSupported(format))
            return false;
        m_rate = rate;
        m_sink = std::make_unique<QAudioSink>(m_device, format);
        // Enough for a window that is busy for a while.
        constexpr int partOfSecond = 2;
        m_sink->setBufferSize(static_cast<qsizetype>(sizeof(std::int16_t)) * (rate / partOfSecond));
        m_channel = m_sink->start();
        m_sinceProgress.start();
        return m_channel != nullptr && m_sink->error() == QAudio::NoError;
    }

    std::size_t Write(std::span<const std::int16_t> samples) override
    {
        const auto room = static_cast<std::size_t>(std::max<qsizetype>(m_sink->bytesFree(), 0));
        const std::span fitting = samples.first(std::min(samples.size(), room / sizeof(std::int16_t)));
        const qint64 bytes = m_channel->write(reinterpret_cast<const char *>(fitting.data()),
                                              static_cast<qint64>(fitting.size_bytes()));
        const std::size_t taken = bytes > 0 ? static_cast<std::size_t>(bytes) / sizeof(std::int16_t) : 0;
        m_taken += static_cast<std::int64_t>(taken);
        return taken;
    }

    std::int64_t Played() const override
    {
        // To the nearest sample, for the device's own rounding must not keep the last one back; and what was
        // heard stays heard, though a device that has gone tells of nothing.
        const std::int64_t heard =
            (m_sink->processedUSecs() * m_rate + kMicrosecondsPerSecond / 2) / kMicrosecondsPerSecond;
        const std::int64_t played = std::max(std::min(heard, m_taken), m_lastPlayed);
        if (played > m_lastPlayed || played == m_taken)
            m_sinceProgress.start();
        m_lastPlayed = played;
        return played;
    }

    bool HasFailed() const override
    {
        // A device that has been pulled out may fail, or just take nothing any more.
        constexpr int patience = 2000;
        // A window that was busy for longer than that has not asked meanwhile.
        Played();
        const bool isStopped = m_sink->state() == QAudio::StoppedState ||
                               m_sink->error() == QAudio::FatalError || m_sink->error() == QAudio::IOError;
        return isStopped || m_sinceProgress.elapsed() > patience;
    }

private:
    QAudioDevice m_device;
    std::unique_ptr<QAudioSink> m_sink;
    QIODevice *m_channel = nullptr;
    std::int64_t m_rate = 0;
    std::int64_t m_taken = 0;
    mutable std::int64_t m_lastPlayed = 0;
    mutable QElapsedTimer m_sinceProgress;
};

} // namespace

std::unique_ptr<agent::SoundSink> agent::MakeDeviceSink()
{
    const QAudioDevice device = QMediaDevices::defaultAudioOutput();
    if (device.isNull())
        return MakeSilentSink();
    return std::make_unique<DeviceSink>(device);
}

std::unique_ptr<agent::SoundSink> agent::MakeSilentSink() { return std::make_unique<SilentSink>(); }

void agent::SetSinkMaker(SinkMaker maker) { sinkMaker = std::move(maker); }

std::unique_ptr<agent::SoundSink> agent::MakeSink() { return sinkMaker ? sinkMaker() : MakeDeviceSink(); }
