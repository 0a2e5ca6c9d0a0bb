#pragma once

#include <QString>
#include <QStringView>

/// The name of a category code of a glossary, capitals or not; "Unknown" for a code that has none.
QString GlossaryCategoryName(QStringView code);
