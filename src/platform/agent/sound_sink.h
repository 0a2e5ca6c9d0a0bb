#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>

namespace agent
{

/// Where speech is played: samples of 16 bits, one channel.
class SoundSink
{
public:
    virtual ~SoundSink() = default;
    /// Begins to play at so many samples a second; false where that cannot be done.
    virtual bool Start(int rate) = 0;
    /// Takes as many samples from the front as there is room for; how many it took.
    virtual std::size_t Write(std::span<const std::int16_t> samples) = 0;
    /// How many of the samples taken have been heard.
    virtual std::int64_t Played() const = 0;
    /// Whether it will play no more: the device has gone.
    virtual bool HasFailed() const { return false; }
};

/// The desktop's present device for sound; a silent sink where there is none.
std::unique_ptr<SoundSink> MakeDeviceSink();
/// A sink that nobody hears, in step with the clock.
std::unique_ptr<SoundSink> MakeSilentSink();

/// What makes the sinks of speech from now on. Empty: MakeDeviceSink.
using SinkMaker = std::function<std::unique_ptr<SoundSink>()>;
void SetSinkMaker(SinkMaker maker);
std::unique_ptr<SoundSink> MakeSink();

} // namespace agent
