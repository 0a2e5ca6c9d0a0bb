#pragma once

#include <QString>
#include <cstdint>
#include <optional>

/// What a box says that comes in the place of a dialog.
struct Notice {
    QString title, text;
    bool operator==(const Notice &) const = default;
};

/// The dialogs that work on the dictionary in use.
enum class DictionaryDialog { Editor, Compaction };

/// What is said instead of opening the dialog, with an exclamation and its beep; nothing when the
/// dictionary is there. An empty path: no dictionary is set.
std::optional<Notice> DictionaryNotice(DictionaryDialog dialog, const QString &path, bool exists);

/// What is said instead of opening the composite builder, with an exclamation; nothing in the modes
/// that search headwords, and in web mode, where there is nothing to compose.
std::optional<Notice> CompositeNotice(std::uint8_t mode);

/// What is said instead of opening the read-aloud dialog, with an exclamation; nothing when speech is
/// available.
std::optional<Notice> SpeechNotice(bool available);
