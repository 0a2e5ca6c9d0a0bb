#include "search/view.h"

#include "core/failure_handling.h"
#include "core/pure/dictionary_file.h"
#include "core/shared_state.h"
#include "platform/text/trim.h"

QString TextOf(ADODB::Recordset &rows, const char16_t *column)
{
    return rows.Fields().Item(QString::fromUtf16(column)).Text();
}

std::int32_t AutoIDOf(ADODB::Recordset &rows)
{
    return rows.Fields().Item(QStringLiteral("AutoID")).Value().toInt();
}

void OpenView()
{
    Shared.ViewRecordset.reset();
    // Its own hold: opening may build an index, and what happens meanwhile may release the shared one.
    const auto connection = std::make_shared<ADODB::Connection>();
    Shared.ViewConnection = connection;
    connection->Open(ViewConnectionString(Shared.CurrentDicPath));
    Shared.ViewConnection = connection;
    Shared.ViewRecordset = std::make_shared<ADODB::Recordset>();
}

ADODB::Recordset &OpenViewTable()
{
    OpenView();
    OpenTableByIndex(*Shared.ViewConnection, *Shared.ViewRecordset);
    return *Shared.ViewRecordset;
}

void CloseView()
{
    Shared.ViewRecordset->Close();
    Shared.ViewConnection->Close();
    ReleaseView();
}

bool SeekResult(ADODB::Recordset &table, const ResultKey &key)
{
    table.Seek(key.word, key.autoID, ADODB::adSeekFirstEQ);
    if (!table.Eof())
        return true;
    // The hit has its word trimmed, and a very long one cut.
    const auto row = Shared.ViewConnection->Execute(
        QStringLiteral("SELECT TOP 1 * FROM Dictionary WHERE AutoID = ") + QString::number(key.autoID));
    if (row->Eof())
        return false;
    const QString word = TextOf(*row, u"Word");
    row->Close();
    const QString trimmed = text::FieldText(word);
    if (key.wordMayBeCut ? !trimmed.startsWith(key.word) : trimmed != key.word)
        return false;
    table.Seek(word, key.autoID, ADODB::adSeekFirstEQ);
    return !table.Eof();
}
