#pragma once

#include "core/pure/settings_formats.h"

#include <QString>

/// The settings of the character; the file is made where it is missing.
AgentSettings ReadAgentSettings();
void WriteAgentSettings(const AgentSettings &settings);

/// Takes the settings into the shared state: folder, file, path and name of the character, and whether
/// speech is on. It is off where there is no character file.
void UseAgentSettings(const AgentSettings &settings);

/// Opens the character of the shared state. Where that fails, the user is told and speech is off.
void OpenCharacterInUse();

/// Moves the character into the bottom right corner of the screen.
void MoveCharacterToCorner();

/// Shows the character, the first time in its corner, and lets it say the text. Raises 91 where none is
/// loaded.
void SpeakAloud(const QString &text);

/// The same for the text of a box, after its checks; what stands in the way is told, and failures of the
/// character are passed over. Whether the text is being spoken.
bool SpeakTypedText(const QString &text);
