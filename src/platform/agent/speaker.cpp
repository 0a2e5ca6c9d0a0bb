#include "platform/agent/speaker.h"

#include <algorithm>
#include <cmath>

namespace
{

constexpr int kPumpMilliseconds = 15;
/// What lies ready besides what the sink has.
constexpr std::size_t kAhead = agent::Synthesizer::kRate;

} // namespace

agent::Speaker::Speaker(VoiceSettings settings, QObject *parent) : QObject(parent)
{
    m_timer.setInterval(kPumpMilliseconds);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &Speaker::Pump);
    m_synthesizer = std::make_unique<Synthesizer>(std::move(settings), [this] {
        QMetaObject::invokeMethod(this, &Speaker::Pump, Qt::QueuedConnection);
    });
}

agent::Speaker::~Speaker() = default;

void agent::Speaker::Say(int request, const QString &text)
{
    ++m_waiting;
    m_synthesizer->Say(request, text);
    // Between two requests a mouth moves no more, nor does anything at rest cost time.
    m_timer.start();
}

void agent::Speaker::Stop()
{
    m_synthesizer->Clear();
    m_timer.stop();
    m_sink.reset();
    m_samples.clear();
    m_firstSample = 0;
    m_due.clear();
    m_taken = m_written = m_sinkBegan = m_requestBegan = 0;
    m_request = m_waiting = 0;
    Q_EMIT MouthShape(Mouth::Closed);
}

void agent::Speaker::OpenSink(bool wantsSilence)
{
    m_sinkBegan = m_written;
    m_sink = wantsSilence ? nullptr : MakeSink();
    if (m_sink && m_sink->Start(Synthesizer::kRate))
        return;
    m_sink = MakeSilentSink();
    m_sink->Start(Synthesizer::kRate);
}

std::int64_t agent::Speaker::Played() const { return m_sink ? m_sinkBegan + m_sink->Played() : m_written; }

void agent::Speaker::ReplaceFailedSink()
{
    if (!m_sink || !m_sink->HasFailed())
        return;
    // What the device had taken and not played is mouthed in silence.
    const std::int64_t lost = m_written - Played();
    m_written -= lost;
    OpenSink(true);
    const std::vector<std::int16_t> silence(static_cast<std::size_t>(std::max<std::int64_t>(lost, 0)));
    m_written += static_cast<std::int64_t>(m_sink->Write(silence));
}

void agent::Speaker::TakePieces()
{
    while (m_samples.size() - m_firstSample < kAhead) {
        const std::optional<SpeechPiece> piece = m_synthesizer->Take();
        if (!piece)
            return;
        if (piece->request != m_request) {
            m_request = piece->request;
            m_requestBegan = m_taken;
            m_due.enqueue({m_taken, Due::Kind::Began, m_request, {}});
        }
        for (const SpeechEvent &event : piece->events)
            m_due.enqueue({m_requestBegan + event.sample, Due::Kind::Event, m_request, event});
        m_samples.insert(m_samples.end(), piece->samples.begin(), piece->samples.end());
        m_taken += static_cast<std::int64_t>(piece->samples.size());
        if (piece->isLast)
            m_due.enqueue({m_taken, Due::Kind::Ended, m_request, {}});
    }
}

void agent::Speaker::Feed()
{
    const std::span<const std::int16_t> waiting = std::span(m_samples).subspan(m_firstSample);
    if (waiting.empty())
        return;
    if (!m_sink)
        OpenSink(false);
    const std::size_t written = m_sink->Write(waiting);
    m_firstSample += written;
    m_written += static_cast<std::int64_t>(written);
    if (m_firstSample < kAhead && m_firstSample < m_samples.size())
        return;
    m_samples.erase(m_samples.begin(), m_samples.begin() + static_cast<std::ptrdiff_t>(m_firstSample));
    m_firstSample = 0;
}

void agent::Speaker::TellWhatIsHeard()
{
    const std::int64_t played = Played();
    while (!m_due.isEmpty()) {
        // Rounding puts an event behind the last sample now and then.
        const bool isHeard = m_due.head().sample <= played || played == m_taken;
        if (!isHeard)
            return;
        const Due due = m_due.dequeue();
        if (due.kind == Due::Kind::Began) {
            Q_EMIT Began(due.request);
        } else if (due.kind == Due::Kind::Ended) {
            --m_waiting;
            Q_EMIT MouthShape(Mouth::Closed);
            Q_EMIT Ended(due.request);
        } else if (due.event.kind == SpeechEvent::Kind::Word) {
            Q_EMIT Word(due.request, due.event.position, due.event.length);
        } else {
            Q_EMIT MouthShape(due.event.mouth);
        }
    }
}

void agent::Speaker::Pump()
{
    ReplaceFailedSink();
    TakePieces();
    Feed();
    TellWhatIsHeard();
    if (m_waiting == 0 && m_due.isEmpty()) {
        m_timer.stop();
        // The next request finds the device that is the desktop's by then.
        m_sink.reset();
        m_sinkBegan = m_written;
    }
}
