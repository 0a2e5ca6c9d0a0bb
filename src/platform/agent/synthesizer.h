#pragma once

#include "platform/agent/pure/mouth.h"

#include <QString>
#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace agent
{

/// How a character sounds.
struct VoiceSettings {
    QString voice;
    int pitch = 50; ///< 0 to 100
    int rate = 165; ///< words a minute
};

/// Something that happens while a request is spoken, at a sample counted from the request's first.
struct SpeechEvent {
    enum class Kind { Word, Mouth };
    Kind kind = Kind::Word;
    std::int64_t sample = 0;
    qsizetype position = 0, length = 0; ///< of a word in the text
    Mouth mouth = Mouth::Closed;
};

/// A stretch of speech.
struct SpeechPiece {
    int request = 0;
    std::vector<std::int16_t> samples;
    std::vector<SpeechEvent> events;
    bool isLast = false; ///< of its request
};

/// Makes speech of texts, one behind the other, on a thread of its own. Where there is no voice, words
/// and mouths come all the same, over silence. A text of any length takes a few seconds' room.
class Synthesizer
{
public:
    /// `ready` is called on the thread whenever a piece waits to be taken.
    Synthesizer(VoiceSettings settings, std::function<void()> ready);
    ~Synthesizer();
    Synthesizer(const Synthesizer &) = delete;
    Synthesizer &operator=(const Synthesizer &) = delete;

    /// Samples a second.
    static constexpr int kRate = 22050;

    /// Puts a text behind those that wait. Returns at once.
    void Say(int request, const QString &text);
    /// Gives up what is spoken and what waits.
    void Clear();
    /// The next piece; none where it has not been made yet.
    std::optional<SpeechPiece> Take();

private:
    struct Task {
        int request = 0;
        QString text;
    };
    friend class Utterance;

    void Run();
    void Speak(const Task &task, int generation);
    /// Waits for room; false when the piece is not wanted any more.
    bool Put(SpeechPiece piece, int generation);
    bool IsWanted(int generation) const { return m_generation.load() == generation; }

    VoiceSettings m_settings;
    std::function<void()> m_ready;
    bool m_isVoiceBarred = false;
    std::atomic<int> m_generation{0};
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<Task> m_tasks;
    std::deque<SpeechPiece> m_pieces;
    std::size_t m_samples = 0;
    bool m_ends = false;
    std::thread m_thread;
};

} // namespace agent
