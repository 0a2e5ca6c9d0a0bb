#pragma once

#include <QString>

/// Whether there is a dictionary in use and its file is there; where not, the user is told. The text
/// about no dictionary begins with the line `nothingSet`.
bool DictionaryIsThere(const QString &nothingSet);
