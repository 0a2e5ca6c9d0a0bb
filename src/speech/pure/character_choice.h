#pragma once

#include "core/pure/settings_formats.h"

/// The folder of the characters by the folder field of the settings: the word "default" stands for
/// `msagent\Chars` in the folder of the system.
QString CharacterFolderOf(const QString &field, const QString &systemFolder);

/// The folder field for a folder as it was typed: "default" for the default one in any case of letters.
QString FolderFieldOf(const QString &folder, const QString &systemFolder);

/// The settings that a user made. Without a file, speech is off.
AgentSettings ChosenSettings(bool isOff, const QString &folder, const QString &file,
                             const QString &systemFolder);
