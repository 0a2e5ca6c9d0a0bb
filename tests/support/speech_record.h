#pragma once

#include <QString>
#include <QVariantList>

/// One call to the speaking character.
struct SpeechCall {
    QString call;
    QVariantList arguments;
};

/// What the stand-in of the character reports, and what scripts drain.
void RecordSpeech(const SpeechCall &call);
QList<SpeechCall> TakeSpeech();
