#include "dictd_entry.h"

#include "core/pure/record_rules.h"

#include <QHash>
#include <QRegularExpression>
#include <algorithm>

namespace
{

using namespace Qt::StringLiterals;
using sample::Entry;
using sample::Sense;

/// The label of a part of speech, as Japanese dictionaries write it.
QString Label(const QString &partOfSpeech)
{
    static const QHash<QString, QString> labels{{u"n"_s, u"名"_s},
                                                {u"pn"_s, u"固名"_s},
                                                {u"adj"_s, u"形"_s},
                                                {u"v"_s, u"動"_s},
                                                {u"adv"_s, u"副"_s},
                                                {u"phraseologicalUnit"_s, u"句"_s},
                                                {u"interjection"_s, u"間"_s},
                                                {u"numeral"_s, u"数"_s},
                                                {u"proverb"_s, u"諺"_s},
                                                {u"preposition"_s, u"前"_s},
                                                {u"prefix"_s, u"接頭"_s},
                                                {u"pronoun"_s, u"代"_s},

                                                {u"conjunction"_s, u"接"_s},
                                                {u"determiner"_s, u"限定"_s},
                                                {u"particle"_s, u"小辞"_s},
                                                {u"symbol"_s, u"記号"_s},
                                                {u"postposition"_s, u"後置"_s},
                                                {u"idiom"_s, u"成句"_s},
                                                {u"article"_s, u"冠"_s}};
    const QString label = labels.value(partOfSpeech);
    return label.isEmpty() ? QString() : u"【"_s + label + u"】"_s;
}

/// Takes out what the dictionary's source left in: link brackets, ends of templates. Angle brackets
/// become full-width ones, since an entry page reads them as markup.
QString Clean(QString text)
{
    static const QRegularExpression link(u"\\[\\[(?:[^\\]|]*\\|)?([^\\]|]*)\\]\\]"_s);
    static const QRegularExpression emptyTemplate(u"\\s*\\{\\{[^}]*\\}\\}|\\s*\\}\\}"_s);
    return text.replace(link, u"\\1"_s)
        .remove(emptyTemplate)
        .replace(u'<', u'＜')
        .replace(u'>', u'＞')
        .simplified();
}

/// The first pronunciation that is no fragment ("-dəm"), else the first.
QString FirstPronunciation(const QString &slashed)
{
    static const QRegularExpression marks(u"[/\\[\\]]"_s);
    QStringList all;
    for (const QString &part : slashed.split(u"/ /"_s, Qt::SkipEmptyParts))
        all.append(QString(part).remove(marks).trimmed());
    all.removeAll({});
    const auto isWhole = [](const QString &p) { return !p.startsWith(u'-') && !p.endsWith(u'-'); };
    const auto whole = std::find_if(all.cbegin(), all.cend(), isWhole);
    if (whole != all.cend())
        return *whole;
    return all.value(0);
}

QStringList Translations(const QString &line)
{
    // A number at the end belongs to the definitions below.
    static const QRegularExpression numberAtEnd(u"(^|\\s)\\d+\\.$"_s);
    QStringList translations;
    for (const QString &part : Clean(QString(line).remove(numberAtEnd)).split(u", "_s))
        if (const QString text = part.trimmed(); !text.isEmpty() && text != u","_s)
            translations.append(text);
    translations.removeDuplicates();
    return translations;
}

/// The translations of a line that begins the sense of that number.
std::optional<QString> NumberedSense(const QString &line, qsizetype number)
{
    const QString mark = QString::number(number) + u'.';
    if (line != mark && !line.startsWith(mark + u' '))
        return std::nullopt;
    return line.sliced(mark.size());
}

bool IsDefinitionNumber(const QString &line)
{
    static const QRegularExpression number(u"^ ?\\d+\\.$"_s);
    return number.match(line).hasMatch();
}

QList<Sense> ParseSenses(const QStringList &lines)
{
    QList<Sense> senses;
    for (const QString &line : lines) {
        const std::optional<QString> numbered = NumberedSense(line, senses.size() + 1);
        if (numbered || senses.isEmpty())
            senses.append({Translations(numbered.value_or(line)), {}});
        else if (const QString text = Clean(line); !IsDefinitionNumber(line) && !text.isEmpty())
            senses.last().definitions.append(text);
    }
    senses.removeIf([](const Sense &sense) { return sense.translations.isEmpty(); });
    return senses;
}

QString SenseText(const Sense &sense)
{
    const QString translations = sense.translations.join(u'、');
    return sense.definitions.isEmpty() ? translations
                                       : translations + u" ("_s + sense.definitions.join(u"; "_s) + u')';
}

/// The senses of one part of speech, numbered where there are several.
QStringList EntryTexts(const Entry &entry)
{
    QStringList texts;
    for (const Sense &sense : entry.senses) {
        const QString number = entry.senses.size() > 1 ? QString::number(texts.size() + 1) + u' ' : QString();
        texts.append(number + SenseText(sense));
    }
    if (!texts.isEmpty())
        texts.first().prepend(Label(entry.partOfSpeech));
    return texts;
}

/// The dictionary's source cut the first character off whatever stands behind a hyphen: of suffixes,
/// headword and translations are broken.
bool IsDamaged(const Entry &entry) { return entry.partOfSpeech == u"suffix"; }

/// As much of the description as a record takes, in whole senses where one fits.
QString Shortened(const QString &description)
{
    if (description.size() <= kDescriptionLength)
        return description;
    const qsizetype end = description.lastIndexOf(u" / "_s, kDescriptionLength - 1);
    return description.first(end > 0 ? end : kDescriptionLength);
}

} // namespace

sample::Entry sample::ParseEntry(const QString &text)
{
    static const QRegularExpression header(u"^(.*?)((?: /.*/)?)(?: <([^>]*)>)?$"_s);
    QStringList lines = text.split(u'\n');
    const QRegularExpressionMatch match = header.match(lines.takeFirst());
    // A title that the dictionary's source could not have bears this, and is read out with it.
    static const QString untitled = u"Unsupported titles/"_s;
    QString headword = match.captured(1).trimmed();
    QString pronunciations = match.captured(2);
    if (headword.startsWith(untitled)) {
        headword.remove(0, untitled.size());
        pronunciations.clear();
    }
    while (!lines.isEmpty() && lines.last().trimmed().isEmpty())
        lines.removeLast();
    return {headword, FirstPronunciation(pronunciations), match.captured(3), ParseSenses(lines)};
}

std::optional<sample::Record> sample::MakeRecord(const QList<Entry> &entries)
{
    Record record;
    QStringList parts;
    for (const Entry &entry : entries) {
        if (entry.senses.isEmpty() || IsDamaged(entry))
            continue;
        parts.append(EntryTexts(entry).join(u" / "_s));
        record.word = entry.headword.left(kWordLength);
        if (record.pronunciation.isEmpty() && entry.pronunciation.size() <= kPronunciationLength)
            record.pronunciation = entry.pronunciation;
    }
    if (parts.isEmpty() || record.word.isEmpty())
        return std::nullopt;
    record.wordPhrase = WordPhraseRule(record.word);
    record.description = Shortened(parts.join(u' '));
    return record;
}
