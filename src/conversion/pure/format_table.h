#pragma once

#include <QStringList>
#include <cstdint>

/// The places of the source formats in the list of the dialog.
enum FormatPlace : std::int16_t {
    FormatEijiro = 0,
    FormatOneLine = 1,
    FormatPdicText = 2,
    FormatCsv = 3,
    FormatGlossary = 4,
};

/// Names and descriptions of the formats, by their places.
QStringList SourceFormatNames();
QStringList SourceFormatDescriptions();
