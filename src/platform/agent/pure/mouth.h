#pragma once

#include <QString>
#include <array>

namespace agent
{

/// The shapes of a figure's mouth.
enum class Mouth { Closed, Small, Open, Wide, Round };
inline constexpr std::array kMouths{Mouth::Closed, Mouth::Small, Mouth::Open, Mouth::Wide, Mouth::Round};

/// The shape in which a sound is spoken, by the name that the synthesiser gives it ("A:", "tS");
/// closed for a pause.
Mouth MouthOfPhoneme(const QString &name);

/// The same for a letter of a text that is mouthed without a voice.
Mouth MouthOfLetter(QChar letter);

} // namespace agent
