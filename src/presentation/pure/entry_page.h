#pragma once

#include "core/pure/settings_formats.h"

#include <QString>
#include <QStringList>
#include <array>

/// The generated pages. Record text goes into them as it stands: markup in a record is live.

/// What an entry shows of a record; the texts are trimmed where they are used.
struct EntryFields {
    QString word, pronunciation, description, example;
};

/// The plain line of one entry, as the incremental search shows it.
QString PlainEntryLine(const EntryFields &record);

/// The text that closes a page of entries.
QString PageEnd();

/// The two lines of the blank page, or of one with a message.
QStringList MessagePageLines(const QString &message);

inline constexpr int kPageStyles = 6;
/// The fonts of the page's six styles, `#sty1` to `#sty6`.
using PageFonts = std::array<FontRow, kPageStyles>;
/// The fonts that the styles have when nothing was chosen.
PageFonts DefaultPageFonts();
/// The eight lines of the page header that gives the styles these fonts. Strike-through has no part in it.
QStringList PageHeader(const PageFonts &fonts);
/// The name in style rules of one of the sixteen standard colours, 0x00BBGGRR; "Black" for every other.
QString StyleColorName(qint32 color);

/// The pronunciation in its brackets with a blank in front; empty when there is none.
QString PronunciationText(const QString &pronunciation);
/// The label in front of examples; empty when the (trimmed) example is empty.
QString ExampleLabel(const QString &example);
