#pragma once

#include "platform/data/adodb.h"

#include <QString>
#include <array>
#include <cstdint>

/// A dictionary of made-up rows, the same ones at every run: 19-character headwords in mixed case,
/// phrases, hyphens, apostrophes, kana and kanji, 60-character Japanese meanings drawn as unevenly as
/// words are, an example in one row of ten.
namespace bench
{

enum class RowOrder { Sorted, Random };

struct GeneratedRow {
    QString word;
    QString pronunciation;
    int wordPhrase = 1;
    QString description;
    QString example; ///< empty in nine of ten rows
};

/// Row `number` of `count`, from 0. Sorted, the headwords rise with the number, roughly as in a
/// printed source; in random order each stands anywhere.
class DictionaryGenerator
{
public:
    DictionaryGenerator(std::uint32_t count, RowOrder order) : m_count(count), m_order(order) {}

    GeneratedRow Row(std::uint32_t number) const;

private:
    std::uint32_t Place(std::uint32_t number) const;

    std::uint32_t m_count;
    RowOrder m_order;
};

/// A new dictionary file that is filled through the engine. Its calls raise what the engine raises.
class DictionaryWriter
{
public:
    /// Creates the file at a host path.
    explicit DictionaryWriter(const QString &hostPath);

    void Add(const GeneratedRow &row);
    /// Builds the index.
    void Close();

private:
    ADODB::Connection m_connection;
    ADODB::Recordset m_rows;
};

/// Makes a dictionary file at a host path; raises what the engine raises.
void MakeDictionary(const QString &hostPath, std::uint32_t count, RowOrder order);

/// The connection string to a file at a host path.
QString ConnectionTo(const QString &hostPath);

/// Writes the same rows as a source text of the form "■headword : 【発音】...、meaning / 【用例】 example",
/// in code page 932, at a host path.
void WriteEijiroSource(const QString &hostPath, std::uint32_t count, RowOrder order);

} // namespace bench
