#pragma once

#include "presentation/pure/dialog_checks.h"

#include <QString>
#include <cstdint>
#include <optional>

/// 1 when the text holds a character that cannot be spoken: one of two bytes in code page 932. Half-width
/// katakana pass. Else 0.
std::uint8_t IsNotEnglishText(const QString &text);

/// What stands in the way of speaking.
enum class SpeakingObstacle { None, NoText, NotSelected, NotEnglish, SpeechOff };

/// The obstacle of a text typed into a box, of which the blanks around it are not judged.
SpeakingObstacle TypedTextObstacle(const QString &text, std::uint8_t speechEnabled);
/// The same for a text selected in the pane.
SpeakingObstacle SelectionObstacle(const QString &text, std::uint8_t speechEnabled);

/// What the user is told of it; nothing for none.
std::optional<Notice> SpeakingNotice(SpeakingObstacle obstacle);
