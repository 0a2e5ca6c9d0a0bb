#include "platform/agent/synthesizer.h"

#include "platform/agent/pure/spoken_text.h"
#include "platform/failure/fault_points.h"
#include "platform/failure/runtime_error.h"

#include <chrono>
#include <espeak-ng/speak_lib.h>

namespace
{

constexpr int kMillisecondsPerSecond = 1000;
/// What is made ahead of the playing.
constexpr std::size_t kMostSamples = std::size_t(10) * agent::Synthesizer::kRate;

/// The library is one for the whole process: its state, and its way of saying where it reports.
std::timed_mutex libraryMutex;

/// Takes the library, unless that is no longer wanted before somebody else gives it back: whoever speaks may
/// hold it for as long as his words are not heard.
template <typename Wanted> std::unique_lock<std::timed_mutex> TakeLibrary(Wanted isWanted)
{
    constexpr std::chrono::milliseconds look{10};
    std::unique_lock lock(libraryMutex, std::defer_lock);
    while (isWanted() && !lock.try_lock_for(look))
        continue;
    return lock;
}

std::int64_t SamplesOf(std::int64_t milliseconds)
{
    return milliseconds * agent::Synthesizer::kRate / kMillisecondsPerSecond;
}

/// Whether there is a voice to speak with; tried once.
bool HasLibrary()
{
    static const bool hasLibrary = [] {
        constexpr int pieceMilliseconds = 100;
        const int rate = espeak_Initialize(AUDIO_OUTPUT_SYNCHRONOUS, pieceMilliseconds, nullptr,
                                           espeakINITIALIZE_PHONEME_EVENTS | espeakINITIALIZE_DONT_EXIT);
        return rate == agent::Synthesizer::kRate;
    }();
    return hasLibrary;
}

bool TakeVoice(const agent::VoiceSettings &settings)
{
    if (!HasLibrary())
        return false;
    if (espeak_SetVoiceByName(settings.voice.toUtf8().constData()) != EE_OK &&
        espeak_SetVoiceByName("en-us") != EE_OK && espeak_SetVoiceByName("en") != EE_OK)
        return false;
    espeak_SetParameter(espeakPITCH, settings.pitch, 0);
    espeak_SetParameter(espeakRATE, settings.rate, 0);
    return true;
}

QString PhonemeName(const espeak_EVENT &event)
{
    return QString::fromUtf8(event.id.string,
                             static_cast<qsizetype>(qstrnlen(event.id.string, sizeof event.id.string)));
}

} // namespace

namespace agent
{

/// One text while the library speaks it.
class Utterance
{
public:
    Utterance(Synthesizer &synthesizer, const QString &text, int request, int generation)
        : m_synthesizer(synthesizer), m_request(request), m_generation(generation), m_text(text),
          m_walk(m_text)
    {
    }

    /// False when it has been given up.
    bool Speak()
    {
        current = this;
        espeak_SetSynthCallback(&Utterance::Receive);
        const QByteArray utf8 = m_text.toUtf8();
        espeak_Synth(utf8.constData(), static_cast<std::size_t>(utf8.size()) + 1, 0, POS_CHARACTER, 0,
                     espeakCHARS_UTF8 | espeakENDPAUSE, nullptr, nullptr);
        current = nullptr;
        return m_synthesizer.IsWanted(m_generation);
    }

private:
    static int Receive(short *samples, int count, espeak_EVENT *events)
    {
        return current->Take(samples, count, events) ? 0 : 1;
    }

    bool Take(const short *samples, int count, const espeak_EVENT *events)
    {
        SpeechPiece piece;
        piece.request = m_request;
        if (samples && count > 0)
            piece.samples.assign(samples, samples + count);
        for (; events && events->type != espeakEVENT_LIST_TERMINATED; ++events)
            Add(*events, piece);
        return m_synthesizer.Put(std::move(piece), m_generation);
    }

    void Add(const espeak_EVENT &event, SpeechPiece &piece)
    {
        SpeechEvent made;
        made.sample = SamplesOf(event.audio_position);
        if (event.type == espeakEVENT_WORD && event.text_position > 0) {
            made.position = m_walk.PositionOf(event.text_position - 1);
            made.length = m_walk.PositionOf(event.text_position - 1 + event.length) - made.position;
        } else if (event.type == espeakEVENT_PHONEME) {
            made.kind = SpeechEvent::Kind::Mouth;
            made.mouth = MouthOfPhoneme(PhonemeName(event));
        } else {
            return;
        }
        piece.events.push_back(made);
    }

    static inline thread_local Utterance *current = nullptr;
    Synthesizer &m_synthesizer;
    int m_request;
    int m_generation;
    QString m_text;
    CodePointWalk m_walk;
};

namespace
{

/// Appends a mouth and the time that it stands.
void AddMouth(SpeechPiece &piece, std::int64_t &sample, Mouth mouth, int milliseconds)
{
    SpeechEvent event;
    event.kind = SpeechEvent::Kind::Mouth;
    event.sample = sample;
    event.mouth = mouth;
    piece.events.push_back(event);
    const std::int64_t length = SamplesOf(milliseconds);
    piece.samples.resize(piece.samples.size() + static_cast<std::size_t>(length));
    sample += length;
}

SpeechPiece SilentPiece(int request, const MouthedWord &word, std::int64_t &sample)
{
    SpeechPiece piece;
    piece.request = request;
    SpeechEvent event;
    event.sample = sample;
    event.position = word.position;
    event.length = word.length;
    piece.events.push_back(event);
    for (const Mouth mouth : word.mouths)
        AddMouth(piece, sample, mouth, kMouthedLetterMilliseconds);
    AddMouth(piece, sample, Mouth::Closed, kMouthedGapMilliseconds);
    return piece;
}

} // namespace

} // namespace agent

agent::Synthesizer::Synthesizer(VoiceSettings settings, std::function<void()> ready)
    : m_settings(std::move(settings)), m_ready(std::move(ready))
{
    try {
        faults::Point("voice");
    } catch (const RuntimeError &) {
        m_isVoiceBarred = true;
    }
    m_thread = std::thread([this] { Run(); });
}

agent::Synthesizer::~Synthesizer()
{
    Clear();
    {
        const std::lock_guard lock(m_mutex);
        m_ends = true;
    }
    m_changed.notify_all();
    m_thread.join();
}

void agent::Synthesizer::Say(int request, const QString &text)
{
    {
        const std::lock_guard lock(m_mutex);
        m_tasks.push_back({request, text});
    }
    m_changed.notify_all();
}

void agent::Synthesizer::Clear()
{
    {
        const std::lock_guard lock(m_mutex);
        ++m_generation;
        m_tasks.clear();
        m_pieces.clear();
        m_samples = 0;
    }
    m_changed.notify_all();
}

std::optional<agent::SpeechPiece> agent::Synthesizer::Take()
{
    std::optional<SpeechPiece> piece;
    {
        const std::lock_guard lock(m_mutex);
        if (m_pieces.empty())
            return std::nullopt;
        piece = std::move(m_pieces.front());
        m_pieces.pop_front();
        m_samples -= piece->samples.size();
    }
    m_changed.notify_all();
    return piece;
}

bool agent::Synthesizer::Put(SpeechPiece piece, int generation)
{
    {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [&] { return !IsWanted(generation) || m_samples < kMostSamples; });
        if (!IsWanted(generation))
            return false;
        m_samples += piece.samples.size();
        m_pieces.push_back(std::move(piece));
    }
    m_ready();
    return true;
}

void agent::Synthesizer::Run()
{
    // The first request need not wait for the library.
    if (!m_isVoiceBarred) {
        if (const auto library = TakeLibrary([this] { return IsWanted(0); }))
            HasLibrary();
    }
    while (true) {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [this] { return m_ends || !m_tasks.empty(); });
        if (m_ends)
            return;
        const Task task = std::move(m_tasks.front());
        m_tasks.pop_front();
        const int generation = m_generation.load();
        lock.unlock();
        Speak(task, generation);
    }
}

void agent::Synthesizer::Speak(const Task &task, int generation)
{
    const QString text = SpeakableText(task.text);
    bool isWanted = true;
    bool hasVoice = false;
    if (!m_isVoiceBarred) {
        const auto library = TakeLibrary([&] { return IsWanted(generation); });
        isWanted = library.owns_lock();
        hasVoice = isWanted && TakeVoice(m_settings);
        if (hasVoice)
            isWanted = Utterance(*this, text, task.request, generation).Speak();
    }
    std::int64_t sample = 0;
    for (MouthedWord word = NextMouthedWord(text, 0); !hasVoice && isWanted && word.length > 0;
         word = NextMouthedWord(text, word.position + word.length))
        isWanted = Put(SilentPiece(task.request, word, sample), generation);
    SpeechPiece last;
    last.request = task.request;
    last.isLast = true;
    if (isWanted)
        Put(std::move(last), generation);
}
