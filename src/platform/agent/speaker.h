#pragma once

#include "platform/agent/sound_sink.h"
#include "platform/agent/synthesizer.h"

#include <QObject>
#include <QQueue>
#include <QTimer>
#include <memory>

namespace agent
{

/// Speaks requests in their order, and tells what is being heard at present.
class Speaker : public QObject
{
    Q_OBJECT
public:
    explicit Speaker(VoiceSettings settings, QObject *parent = nullptr);
    ~Speaker() override;

    /// Puts a request behind those that wait, and returns at once.
    void Say(int request, const QString &text);
    /// Falls silent, and forgets what waits.
    void Stop();
    bool IsSpeaking() const { return m_waiting > 0; }

Q_SIGNALS:
    void Began(int request);
    void Word(int request, qsizetype position, qsizetype length);
    void MouthShape(agent::Mouth mouth);
    void Ended(int request);

private:
    /// An event by the sample at which it is heard, counted from the first ever.
    struct Due {
        std::int64_t sample = 0;
        enum class Kind { Began, Event, Ended } kind = Kind::Event;
        int request = 0;
        SpeechEvent event;
    };

    /// Moves speech to the sink and tells what has been heard. Called as often as a mouth moves.
    void Pump();
    void TakePieces();
    void Feed();
    void TellWhatIsHeard();
    void OpenSink(bool wantsSilence);
    void ReplaceFailedSink();
    std::int64_t Played() const;

    QTimer m_timer;
    std::unique_ptr<SoundSink> m_sink;
    std::vector<std::int16_t> m_samples; ///< taken, not yet written
    std::size_t m_firstSample = 0;       ///< of m_samples, not yet written
    QQueue<Due> m_due;
    std::int64_t m_taken = 0;        ///< samples since the first ever
    std::int64_t m_written = 0;      ///< the same, given to sinks
    std::int64_t m_sinkBegan = 0;    ///< what the present sink's first sample is
    std::int64_t m_requestBegan = 0; ///< first sample of the request that is taken at present
    int m_request = 0;
    int m_waiting = 0;
    std::unique_ptr<Synthesizer> m_synthesizer;
};

} // namespace agent
