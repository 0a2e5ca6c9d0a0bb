#include "conversion/pure/source_format.h"
#include "conversion/pure/text_cut.h"
#include "platform/text/needle.h"
#include "platform/text/trim.h"

namespace
{

constexpr QStringView kSeparator = u" /// ";

class OneLineParser : public LineParser
{
public:
    std::optional<SourceEntry> Parse(const QString &line) override
    {
        const qsizetype separator = m_separator.Find(line);
        if (separator == 0)
            return std::nullopt;
        SourceEntry entry;
        entry.Word = text::Trim(Cut(line, 1, separator - 1));
        entry.Description = CutFrom(line, separator + kSeparator.size()).toString();
        entry.Description.replace(QStringLiteral("\\ "), QStringLiteral("●"));
        return entry;
    }

private:
    const text::Needle m_separator{kSeparator};
};

} // namespace

std::unique_ptr<LineParser> MakeOneLineParser() { return std::make_unique<OneLineParser>(); }
