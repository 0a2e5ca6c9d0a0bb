#pragma once

/// Makes the help window answer host::WinHelp and, in every window of the program, the key F1, which
/// shows the topic of the form in front. Once a process, when the application object stands.
void InstallHelpViewer();
