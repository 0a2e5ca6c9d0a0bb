#include "speech_record.h"

#include <utility>

namespace
{

QList<SpeechCall> calls;

} // namespace

void RecordSpeech(const SpeechCall &call) { calls.append(call); }

QList<SpeechCall> TakeSpeech() { return std::exchange(calls, {}); }
