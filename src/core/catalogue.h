#pragma once

#include <QString>
#include <cstdint>

/// Reads the catalogue file of the application folder (created empty when it is missing) into
/// `Lexicons` and the dictionary box. -1 when it held a record, else 0: then the dictionary box and
/// the entry box are disabled.
std::int16_t LoadLexicons(const QString &fileName);

/// Writes the entries that are not deleted as the whole file. -1 when there was one, else 0.
std::int16_t SaveLexicons(const QString &fileName);

/// "-1" when the catalogue has ever held an entry in this run, else "0".
QString LexiconsAllocated();
