#include "conversion/pure/source_format.h"
#include "conversion/pure/text_cut.h"
#include "platform/text/needle.h"
#include "platform/text/trim.h"

namespace
{

constexpr QChar kQuote = u'"';
constexpr QStringView kSeparator = u"\",\"";
/// From the beginning of a separator to its closing quote mark.
constexpr qsizetype kToQuote = 2;
constexpr quint8 kLeastQuotes = 8;

class CsvParser : public LineParser
{
public:
    std::optional<SourceEntry> Parse(const QString &line) override
    {
        const QString trimmed = text::Trim(line);
        if (trimmed.size() < 2) // the second character's code is asked for
            throw RuntimeError(RuntimeError::InvalidCall);
        if (trimmed.front() != kQuote || trimmed.back() != kQuote)
            return std::nullopt;
        if (CheckedTo<quint8>(trimmed.count(kQuote)) < kLeastQuotes)
            return std::nullopt;
        const qsizetype first = m_separator.Find(trimmed);
        if (first == 0)
            return std::nullopt;
        FindBehind(trimmed, first, m_second);
        FindBehind(trimmed, m_second, m_third);
        const auto between = [&trimmed](qsizetype left, qsizetype right) {
            return Cut(trimmed, left + kSeparator.size(), right - left - kSeparator.size()).toString();
        };
        SourceEntry entry;
        entry.Word = text::Trim(Cut(trimmed, 2, first - 2));
        entry.Pronunciation = between(first, m_second);
        entry.Description = between(m_second, m_third);
        entry.Example = between(m_third, trimmed.size());
        return entry;
    }

private:
    /// Moves `position` to the separator behind the one at `before`, where there is one.
    void FindBehind(QStringView line, qsizetype before, qint16 &position) const
    {
        if (const qsizetype found = m_separator.Find(line, before + kToQuote + 1))
            position = CheckedTo<qint16>(found);
    }

    const text::Needle m_separator{kSeparator};
    // Kept from line to line: a line that lacks a separator is cut where an earlier one was.
    qint16 m_second = 0;
    qint16 m_third = 0;
};

} // namespace

std::unique_ptr<LineParser> MakeCsvParser() { return std::make_unique<CsvParser>(); }
