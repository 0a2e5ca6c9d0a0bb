#include "presentation/pure/marked_entry.h"

#include "core/pure/search_modes.h"
#include "platform/failure/runtime_error.h"
#include "platform/text/fold.h"
#include "platform/text/trim.h"

namespace
{

QString Span(int style, const QString &text)
{
    return QStringLiteral("<SPAN ID=sty") + QString::number(style) + u'>' + text + QStringLiteral("</SPAN>");
}

/// The first or last characters of a text, all of it when it is shorter; raises 5 for a count below 0.
QString First(const QString &text, qsizetype count)
{
    if (count < 0)
        throw RuntimeError(RuntimeError::InvalidCall);
    return text.left(count);
}

QString Last(const QString &text, qsizetype count)
{
    if (count < 0)
        throw RuntimeError(RuntimeError::InvalidCall);
    return text.right(count);
}

/// The match that ends the text, else the first one.
text::Match MatchAtEnd(const QString &word, const QString &sought)
{
    const text::Match first = text::FindMatch(word, sought);
    for (text::Match match = first; match.position > 0;
         match = text::FindMatch(word, sought, match.position + 1))
        if (match.position + match.length - 1 == word.size())
            return match;
    return first;
}

QString MarkedHeadword(const QString &word, const EntryMarks &marks)
{
    constexpr int plain = 1, matched = 5;
    const QString &sought = marks.searchText;
    const auto lengthOf = [&sought](const text::Match &match) {
        return match.position > 0 ? match.length : sought.size();
    };
    switch (marks.mode) {
    case ModePrefix: {
        const qsizetype length = lengthOf(text::FindMatch(word, sought));
        return Span(matched, sought) + Span(plain, Last(word, word.size() - length));
    }
    case ModeMiddle: {
        const text::Match match = text::FindMatch(word, sought);
        return Span(plain, First(word, match.position - 1)) + Span(matched, sought) +
               Span(plain, Last(word, word.size() - (lengthOf(match) + match.position - 1)));
    }
    case ModeSuffix: {
        const qsizetype length = lengthOf(MatchAtEnd(word, sought));
        return Span(plain, First(word, word.size() - length)) + Span(matched, sought);
    }
    default: return Span(plain, word);
    }
}

/// A field with the first occurrence of the text marked, `label` in front of all.
QString MarkedField(const QString &field, const QString &sought, int style, const QString &label)
{
    constexpr int matched = 6;
    const text::Match match = text::FindMatch(field, sought);
    const QString before = First(field, match.position - 1);
    return Span(style, label + before) + Span(matched, field.mid(match.position - 1, match.length)) +
           Span(style, Last(field, field.size() - (match.length + match.position - 1)));
}

QString MarkedDescription(const QString &description, const EntryMarks &marks)
{
    constexpr int style = 3;
    if (marks.mode == ModeMeaning)
        return MarkedField(description, marks.searchText, style, QString());
    if ((marks.compositeKind & 1) != 0)
        return MarkedField(description, marks.meaningText, style, QString());
    return Span(style, description);
}

QString MarkedExample(const QString &example, const EntryMarks &marks)
{
    constexpr int style = 4;
    const QString label = ExampleLabel(example);
    if (marks.mode == ModeExample)
        return MarkedField(example, marks.searchText, style, label);
    if ((marks.compositeKind & 2) != 0)
        return MarkedField(example, marks.exampleText, style, label);
    return Span(style, label + example);
}

} // namespace

QString MarkedEntryLine(const EntryFields &record, const EntryMarks &marks)
{
    return MarkedHeadword(text::Trim(record.word), marks) + QStringLiteral("<SPAN ID=sty2>") +
           PronunciationText(text::Trim(record.pronunciation)) +
           QStringLiteral("</SPAN><table width=\"97%\" border=\"0%\"><tr><td width=\"2%\"></td>"
                          "<td width=\"98%\">") +
           MarkedDescription(text::Trim(record.description), marks) +
           QStringLiteral("</td> </tr> <tr> <td></td> <td>") +
           MarkedExample(text::Trim(record.example), marks) + QStringLiteral("</tr></table>");
}
