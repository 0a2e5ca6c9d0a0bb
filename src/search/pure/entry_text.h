#pragma once

#include <QString>

/// A text that came in lines, from the clipboard for one, as the entry box takes it: its lines one
/// behind the other with a blank between, empty ones left out.
QString OneLine(const QString &text);
