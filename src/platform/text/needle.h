#pragma once

#include "platform/text/fold.h"

#include <QString>
#include <QStringView>
#include <array>
#include <string>

namespace text
{

/// A text compiled for many searches. It finds exactly what text::FindMatch finds, but looks for one
/// character of it in all its forms before it folds anything.
class Needle
{
public:
    explicit Needle(QStringView text);

    /// As text::FindMatch of the text.
    Match FindMatch(QStringView haystack, qsizetype from = 1) const;
    /// The position of FindMatch.
    qsizetype Find(QStringView haystack, qsizetype from = 1) const
    {
        return FindMatch(haystack, from).position;
    }

private:
    static constexpr size_t kMostForms = 4;
    using Forms = std::array<char16_t, kMostForms>;

    static bool HasForms(char32_t foldedCodePoint, Forms &forms);

    QString m_text;
    std::u32string m_folded;
    /// How many characters before its anchor a match begins; -1 where there is no anchor.
    qsizetype m_anchorOffset = -1;
    Forms m_anchor{};
};

} // namespace text
