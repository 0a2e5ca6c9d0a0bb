#include "conversion/pure/glossary_category.h"
#include "conversion/pure/source_format.h"
#include "conversion/pure/stored_row.h"
#include "core/pure/record_rules.h"
#include "platform/failure/runtime_error.h"
#include "platform/text/needle.h"
#include "platform/text/trim.h"

#include <initializer_list>

namespace
{

constexpr QChar kQuote = u'"';
constexpr QChar kComma = u',';
constexpr QStringView kTerminator = u"\",";
constexpr quint8 kLeastCommas = 4;
constexpr QStringView kNotAvailable = u"N/A";
constexpr QStringView kLineBreak = u"\r\n";

/// Where the term of a line is used.
struct Context {
    QString category;
    QString os;
    QString application;
};

class GlossaryParser : public LineParser
{
public:
    std::optional<SourceEntry> Parse(const QString &line) override
    {
        const QString trimmed = text::Trim(line);
        if (trimmed.isEmpty()) // the first character's code is asked for
            throw RuntimeError(RuntimeError::InvalidCall);
        if (CheckedTo<quint8>(trimmed.count(kComma)) < kLeastCommas)
            return std::nullopt;
        QStringView rest = trimmed;
        const auto term = TakeField(rest);
        if (!term || term->isEmpty() || !SkipField(rest))
            return std::nullopt;
        const auto translation = TakeField(rest);
        if (!translation || !SkipField(rest))
            return std::nullopt;
        return Entry(WithoutQuote(*term), WithoutQuote(*translation), TakeContext(rest));
    }

private:
    /// Takes a field that may be quoted off the rest, its opening quote mark included; none where its
    /// end is not found.
    std::optional<QStringView> TakeField(QStringView &rest) const
    {
        const bool isQuoted = rest.startsWith(kQuote);
        const qsizetype end =
            isQuoted ? m_terminator.Find(rest, rest.startsWith(kTerminator) ? 2 : 1) : m_comma.Find(rest);
        if (end == 0)
            return std::nullopt;
        const QStringView field = rest.first(end - 1);
        rest = rest.sliced(end - 1 + (isQuoted ? kTerminator.size() : 1));
        return field;
    }

    /// Drops a field that is never quoted; false where its comma is missing. Raises 5 where nothing
    /// follows it, for the code of what follows is asked for.
    bool SkipField(QStringView &rest) const
    {
        const qsizetype comma = m_comma.Find(rest);
        if (comma == 0)
            return false;
        rest = rest.sliced(comma);
        if (rest.isEmpty())
            throw RuntimeError(RuntimeError::InvalidCall);
        return true;
    }

    /// What stands before the next comma, taken off the rest; none without a comma.
    std::optional<QStringView> TakeToComma(QStringView &rest) const
    {
        const qsizetype comma = m_comma.Find(rest);
        if (comma == 0)
            return std::nullopt;
        const QStringView taken = rest.first(comma - 1);
        rest = rest.sliced(comma);
        return taken;
    }

    Context TakeContext(QStringView rest)
    {
        const auto category = TakeToComma(rest);
        if (!category) {
            m_os = kNotAvailable.toString();
            return {GlossaryCategoryName(text::Trim(rest)), m_os, kNotAvailable.toString()};
        }
        Context context{GlossaryCategoryName(*category), {}, kNotAvailable.toString()};
        // A system without a comma behind it is lost: that of the line before stands.
        if (const auto os = TakeToComma(rest)) {
            m_os = os->toString();
            const auto application = TakeToComma(rest);
            context.application = application.value_or(rest).toString();
        }
        context.os = m_os;
        return context;
    }

    static QStringView WithoutQuote(QStringView field)
    {
        return field.startsWith(kQuote) ? field.sliced(1) : field;
    }

    /// Appends with one allocation.
    static void Append(QString &text, std::initializer_list<QStringView> pieces)
    {
        qsizetype size = text.size();
        for (const QStringView piece : pieces)
            size += piece.size();
        text.reserve(size);
        for (const QStringView piece : pieces)
            text += piece;
    }

    static SourceEntry Entry(QStringView term, QStringView translation, const Context &context)
    {
        const qsizetype termLength = TakenLength(term, kWordLength);
        const qsizetype translationLength = TakenLength(translation, kDescriptionLength);
        SourceEntry entry;
        entry.Word = text::Trim(term.first(termLength));
        entry.Description = translation.first(translationLength).toString();
        const QStringView termRest = term.sliced(termLength);
        const QStringView translationRest = translation.sliced(translationLength);
        if (!termRest.isEmpty())
            Append(entry.Example, {u"【見出し語続き】", termRest, kLineBreak});
        if (!translationRest.isEmpty())
            Append(entry.Example, {u"【訳語続き】", translationRest});
        if (!translationRest.isEmpty() && termRest.isEmpty()) // with both, the labels follow at once
            entry.Example += kLineBreak;
        Append(entry.Example, {u"【String Category】", context.category, kLineBreak, u"【OS】", context.os,
                               kLineBreak, u"【Application】", context.application});
        return entry;
    }

    const text::Needle m_comma{QStringView(&kComma, 1)};
    const text::Needle m_terminator{kTerminator};
    QString m_os; // kept from line to line
};

} // namespace

std::unique_ptr<LineParser> MakeGlossaryParser() { return std::make_unique<GlossaryParser>(); }
