#include "platform/host/host.h"

#include <QGuiApplication>
#include <atomic>
#include <canberra.h>
#include <thread>
#include <utility>

namespace
{

int pendingBeep = host::BeepNone;
std::atomic_flag playing;

const char *SoundOf(int code)
{
    switch (code) {
    case host::BeepCritical: return "dialog-error";
    case host::BeepQuestion: return "dialog-question";
    case host::BeepExclamation: return "dialog-warning";
    case host::BeepInformation: return "dialog-information";
    default: return nullptr;
    }
}

// Reaching the sound server can take long or never end, so it happens on a thread of its own; beeps
// that come meanwhile are dropped. The context lives as long as the process.
void Play(const char *sound)
{
    static ca_context *const context = [] {
        ca_context *made = nullptr;
        if (ca_context_create(&made) != CA_SUCCESS)
            return static_cast<ca_context *>(nullptr);
        ca_context_change_props(made, CA_PROP_APPLICATION_NAME, "Wordmere", nullptr);
        return made;
    }();
    if (context)
        ca_context_play(context, 0, CA_PROP_EVENT_ID, sound, nullptr);
    playing.clear();
}

} // namespace

void host::MessageBeep(int code)
{
    pendingBeep = code;
    const char *sound = SoundOf(code);
    const bool someoneListens = QGuiApplication::platformName() != QLatin1String("offscreen");
    if (!sound || !someoneListens || playing.test_and_set())
        return;
    try {
        std::thread(Play, sound).detach();
    } catch (const std::exception &) {
        playing.clear();
    }
}

int host::TakePendingBeep() { return std::exchange(pendingBeep, static_cast<int>(BeepNone)); }
