#pragma once

#include <QString>

/// The name of a category code of a glossary, capitals or not; "Unknown" for a code that has none.
QString GlossaryCategoryName(const QString &code);
