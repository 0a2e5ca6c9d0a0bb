#include "dictionary_generator.h"

#include "core/pure/dictionary_file.h"
#include "platform/files/drive_path.h"
#include "platform/files/line_file.h"
#include "platform/text/shift_jis.h"

#include <algorithm>
#include <cmath>
#include <numeric>

using namespace Qt::StringLiterals;

namespace bench
{

namespace
{

constexpr std::uint32_t kWordLength = 19;

/// Mixes the bits of a number: the only source of chance here.
std::uint64_t Mix(std::uint64_t value)
{
    value += 0x9E3779B97F4A7C15U;
    value = (value ^ (value >> 30)) * 0xBF58476D1CE4E5B9U;
    value = (value ^ (value >> 27)) * 0x94D049BB133111EBU;
    return value ^ (value >> 31);
}

/// A run of numbers drawn from a seed.
class Draw
{
public:
    explicit Draw(std::uint64_t seed) : m_state(Mix(seed)) {}

    std::uint32_t Below(std::uint32_t limit)
    {
        m_state = Mix(m_state);
        return static_cast<std::uint32_t>((m_state >> 32) * limit >> 32);
    }
    /// Small numbers often, great ones seldom, as the words of a language.
    std::uint32_t Uneven(std::uint32_t limit)
    {
        const double share = (Below(1'000'000) + 0.5) / 1e6;
        return static_cast<std::uint32_t>(std::pow(static_cast<double>(limit), share)) - 1;
    }

private:
    std::uint64_t m_state;
};

/// Letters that rise with the number, so that numbers in order give headwords in order.
QString Stem(std::uint64_t number)
{
    constexpr std::uint32_t length = 7;
    QString stem(length, u'a');
    for (std::uint32_t i = length; i > 0; --i, number /= 26)
        stem[i - 1] = QChar(static_cast<char16_t>(u'a' + number % 26));
    return stem;
}

QString EnglishWord(std::uint64_t stem, Draw &draw, bool isPhrase)
{
    QString word = Stem(stem);
    while (word.size() < kWordLength) {
        const std::uint32_t kind = draw.Below(24);
        if (isPhrase && word.size() == 9)
            word += u' ';
        else if (kind == 0)
            word += u'-';
        else if (kind == 1)
            word += u'\'';
        else
            word += QChar(static_cast<char16_t>(u'a' + draw.Below(26)));
    }
    const std::uint32_t letterCase = draw.Below(10);
    if (letterCase == 0)
        return word.toUpper();
    if (letterCase < 3)
        word[0] = word[0].toUpper();
    return word;
}

QString JapaneseWord(Draw &draw)
{
    QString word;
    const char16_t first = draw.Below(2) == 0 ? u'ァ' : u'一';
    const std::uint32_t range = first == u'一' ? 2000 : 80;
    while (word.size() < kWordLength)
        word += QChar(static_cast<char16_t>(first + draw.Below(range)));
    return word;
}

QString Meaning(Draw &draw)
{
    QString meaning;
    while (meaning.size() < 60) {
        Draw word(draw.Uneven(40'000));
        const std::uint32_t length = 1 + word.Below(4);
        for (std::uint32_t i = 0; i < length; ++i)
            meaning += QChar(static_cast<char16_t>(word.Below(3) == 0 ? u'一' + word.Below(2000)
                                                                      : u'ぁ' + word.Below(80)));
        if (draw.Below(6) == 0)
            meaning += u'、';
    }
    return meaning.first(60);
}

} // namespace

GeneratedRow DictionaryGenerator::Row(std::uint32_t number) const
{
    const std::uint32_t place = Place(number);
    Draw draw(place);
    GeneratedRow row;
    row.wordPhrase = draw.Below(4) == 0 ? 2 : 1;
    // Kana and kanji follow the letters, as they do in the order of headwords.
    const bool isJapanese = place >= m_count - m_count / 20;
    const std::uint64_t stems = 26ULL * 26 * 26 * 26 * 26 * 26 * 26;
    row.word =
        isJapanese ? JapaneseWord(draw) : EnglishWord(stems / m_count * place, draw, row.wordPhrase == 2);
    if (draw.Below(3) == 0)
        row.pronunciation = u"pr%1"_s.arg(draw.Below(100'000));
    row.description = Meaning(draw);
    if (draw.Below(10) == 0)
        row.example = u"This is the %1 of it. "_s.arg(row.word) + Meaning(draw).first(20);
    return row;
}

std::uint32_t DictionaryGenerator::Place(std::uint32_t number) const
{
    if (m_order == RowOrder::Sorted)
        return number;
    // A stride without a common divisor visits every place once, near no place it just visited.
    std::uint64_t stride = static_cast<std::uint64_t>(0.6180339887 * m_count) | 1U;
    while (std::gcd(stride, static_cast<std::uint64_t>(m_count)) != 1)
        stride += 2;
    return static_cast<std::uint32_t>((number * stride + 12'345) % m_count);
}

QString ConnectionTo(const QString &hostPath) { return ViewConnectionString(files::DrivePath(hostPath)); }

DictionaryWriter::DictionaryWriter(const QString &hostPath)
{
    CreateDictionaryFile(files::DrivePath(hostPath));
    m_connection.Open(ConnectionTo(hostPath));
    m_rows.Open(u"Dictionary"_s, m_connection, ADODB::adOpenDynamic, ADODB::adLockOptimistic,
                ADODB::adCmdTable);
}

void DictionaryWriter::Add(const GeneratedRow &row)
{
    const ADODB::Fields fields = m_rows.Fields();
    m_rows.AddNew();
    fields.Item(u"Word"_s).SetValue(row.word);
    fields.Item(u"Pronunciation"_s).SetValue(row.pronunciation);
    fields.Item(u"WordPhrase"_s).SetValue(row.wordPhrase);
    fields.Item(u"Description"_s).SetValue(row.description);
    fields.Item(u"Example"_s).SetValue(row.example);
    m_rows.Update();
}

void DictionaryWriter::Close()
{
    m_rows.Close();
    m_connection.Close();
}

void WriteEijiroSource(const QString &hostPath, std::uint32_t count, RowOrder order)
{
    files::LineWriter source(files::DrivePath(hostPath), files::LineWriter::Mode::Output);
    const DictionaryGenerator generator(count, order);
    for (std::uint32_t number = 0; number < count; ++number) {
        const GeneratedRow row = generator.Row(number);
        QString line = u"■"_s + row.word + u" : "_s;
        if (!row.pronunciation.isEmpty())
            line += u"【発音】"_s + row.pronunciation + u"、"_s;
        line += row.description;
        if (!row.example.isEmpty())
            line += u" / 【用例】 "_s + row.example;
        source.WriteLine(text::EncodePlain(line));
    }
    source.Close();
}

void MakeDictionary(const QString &hostPath, std::uint32_t count, RowOrder order)
{
    const DictionaryGenerator generator(count, order);
    DictionaryWriter writer(hostPath);
    for (std::uint32_t number = 0; number < count; ++number)
        writer.Add(generator.Row(number));
    writer.Close();
}

} // namespace bench
