#include "conversion/pure/source_format.h"
#include "conversion/pure/text_cut.h"
#include "platform/text/needle.h"
#include "platform/text/trim.h"

namespace
{

constexpr QChar kHeadMark = u'■';
constexpr QStringView kEmphaticMark = u"【発音！】";
constexpr QStringView kPronunciationMark = u"【発音】";

class EijiroParser : public LineParser
{
public:
    std::optional<SourceEntry> Parse(const QString &line) override
    {
        if (!line.startsWith(kHeadMark))
            return std::nullopt;
        SourceEntry entry;
        QStringView rest;
        if (const qsizetype brace = m_brace.Find(line)) {
            entry.Word = text::Trim(Cut(line, 2, brace - 2));
            rest = CutFrom(line, brace + 1);
        } else if (const qsizetype colon = m_colon.Find(line)) {
            entry.Word = text::Trim(Cut(line, 2, colon - 2));
            rest = CutFrom(line, colon + 3);
        } else {
            return std::nullopt;
        }
        QString replaced;
        if (rest.contains(kEmphaticMark)) {
            replaced = rest.toString().replace(kEmphaticMark.toString(), kPronunciationMark.toString());
            rest = replaced;
        }
        if (TakePronunciation(rest, entry))
            TakeExample(rest, entry);
        entry.Description = rest.toString();
        return entry;
    }

private:
    /// Takes the pronunciation and all before it out of the rest; false where nothing is left then.
    bool TakePronunciation(QStringView &rest, SourceEntry &entry) const
    {
        const qsizetype mark = m_pronunciation.Find(rest);
        if (mark == 0)
            return true;
        rest = CutFrom(rest, mark + kPronunciationMark.size());
        // The search for the end begins where the mark stood before the text was shortened.
        const qsizetype end = m_pronunciationEnd.Find(rest, mark);
        entry.Pronunciation = (end == 0 ? rest : rest.first(end - 1)).toString();
        rest = end == 0 ? QStringView(u"") : CutFrom(rest, end + 1);
        return end != 0;
    }

    /// Takes the example out of the rest: what stands one character behind the bracket of its mark.
    void TakeExample(QStringView &rest, SourceEntry &entry) const
    {
        const qsizetype mark = m_example.Find(rest);
        if (mark == 0)
            return;
        const qsizetype bracket = m_bracket.Find(rest, mark);
        entry.Example = Cut(rest, bracket + 2, rest.size() - bracket).toString();
        rest = rest.first(mark - 1);
    }

    const text::Needle m_brace{u" {"};
    const text::Needle m_colon{u" : "};
    const text::Needle m_pronunciation{kPronunciationMark};
    const text::Needle m_pronunciationEnd{u"、"};
    const text::Needle m_example{u" / 【用例"};
    const text::Needle m_bracket{u"】"};
};

} // namespace

std::unique_ptr<LineParser> MakeEijiroParser() { return std::make_unique<EijiroParser>(); }
