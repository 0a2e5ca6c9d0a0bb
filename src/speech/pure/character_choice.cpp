#include "speech/pure/character_choice.h"

#include "platform/text/trim.h"

QString CharacterFolderOf(const QString &field, const QString &systemFolder)
{
    return field == DefaultAgentSettings().folder ? systemFolder + QStringLiteral("\\msagent\\Chars") : field;
}

QString FolderFieldOf(const QString &folder, const QString &systemFolder)
{
    const QString word = DefaultAgentSettings().folder;
    return folder.toUpper() == CharacterFolderOf(word, systemFolder).toUpper() ? word : folder;
}

AgentSettings ChosenSettings(bool isOff, const QString &folder, const QString &file,
                             const QString &systemFolder)
{
    AgentSettings settings;
    settings.file = text::Trim(file);
    settings.folder = FolderFieldOf(folder, systemFolder);
    settings.enabled = isOff || settings.file.isEmpty() ? 0 : 1;
    return settings;
}
