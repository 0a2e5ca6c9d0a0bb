#pragma once

#include "core/pure/settings_formats.h"

#include <QString>
#include <optional>

/// The most entries that a page may show.
inline constexpr int kMostEntries = 30;

/// The fields of the dialog on list sizes, by the names of its controls.
enum class SizeField { Text1, Combo1, Text4, Text2, Combo2, Text3 };

/// The texts of the six number fields, and the chosen target.
struct SizeTexts {
    QString Text1, Combo1, Text4, Text2, Combo2, Text3;
    quint8 target = 0;
};

/// A value that is not allowed: what is said about it, and where the focus goes.
struct SizeFault {
    QString message, title;
    SizeField focus = SizeField::Text1;
};

/// The first value that is not allowed. Raises 13 for an empty field and 6 for a number that its
/// 16 bits (Text2: 32 bits) do not hold, where the tests come to it.
std::optional<SizeFault> FirstSizeFault(const SizeTexts &texts);

/// The values of the fields; raises 13 for an empty field, 6 for a number beyond 16 bits.
ListSettings SizesOf(const SizeTexts &texts);

/// The texts that show the values.
SizeTexts TextsOf(const ListSettings &settings);

/// What a character typed into a number field comes to: digits are themselves, full-width digits
/// become half-width ones; none for the others, which are discarded.
std::optional<QChar> FilteredKey(QChar typed);

/// The same for a whole text, blanks around it left out; none where a character is to be discarded.
std::optional<QString> FilteredText(const QString &text);
