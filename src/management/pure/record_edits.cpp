#include "management/pure/record_edits.h"

#include "platform/failure/runtime_error.h"

namespace
{

ADODB::Field Column(ADODB::Recordset &table, const char16_t *name)
{
    return table.Fields().Item(QString::fromUtf16(name));
}

RecordKey Store(ADODB::Recordset &table, const RecordValues &values)
{
    Column(table, u"Word").SetValue(values.word);
    Column(table, u"Pronunciation").SetValue(values.pronunciation);
    Column(table, u"WordPhrase").SetValue(values.wordPhrase);
    Column(table, u"Description").SetValue(values.description);
    Column(table, u"Example").SetValue(values.example);
    table.Update();
    return KeyOfRow(table);
}

} // namespace

RecordKey KeyOfRow(ADODB::Recordset &table)
{
    return {Column(table, u"Word").Text(), Column(table, u"AutoID").Value().toInt()};
}

RecordValues ValuesOfRow(ADODB::Recordset &table)
{
    return {.word = Column(table, u"Word").Text(),
            .pronunciation = Column(table, u"Pronunciation").Value(),
            .wordPhrase = Column(table, u"WordPhrase").Value().toInt(),
            .description = Column(table, u"Description").Value(),
            .example = Column(table, u"Example").Value()};
}

RecordKey AddRow(ADODB::Recordset &table, const RecordValues &values)
{
    table.AddNew();
    return Store(table, values);
}

RecordKey ChangeRow(ADODB::Recordset &table, const RecordValues &values) { return Store(table, values); }

void DeleteRow(ADODB::Recordset &table, const RecordKey &key)
{
    table.Seek(key.word, key.autoID, ADODB::adSeekFirstEQ);
    table.Delete(ADODB::adAffectCurrent);
    table.Update();
}

RecordKey ReplaceRow(ADODB::Recordset &table, const RecordKey &old, const RecordValues &values)
{
    table.Seek(old.word, old.autoID, ADODB::adSeekFirstEQ);
    if (table.Eof())
        throw RuntimeError(RuntimeError::NoCurrentRow);
    RecordKey added = AddRow(table, values);
    try {
        DeleteRow(table, old);
    } catch (const RuntimeError &) {
        try {
            DeleteRow(table, added);
        } catch (const RuntimeError &) {
            // Both records stay then, and the first failure is the one to tell.
        }
        throw;
    }
    return added;
}
