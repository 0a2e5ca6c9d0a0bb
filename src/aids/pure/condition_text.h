#pragma once

#include <QString>

/// "word/T:meaning/E:example": each part trimmed, a condition that is empty left out with its marker.
QString ComposeSearchText(const QString &word, const QString &meaning, const QString &example);
