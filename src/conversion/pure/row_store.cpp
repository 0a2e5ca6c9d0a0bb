#include "conversion/pure/row_store.h"

#include "conversion/pure/stored_row.h"

#include <QScopeGuard>

void RowStore::Open(const QString &path)
{
    m_connection.SetConnectionString(QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=") + path +
                                     u';');
    m_connection.Open();
    m_rows.SetCursorType(ADODB::adOpenDynamic);
    m_rows.SetLockType(ADODB::adLockOptimistic);
    m_rows.Open(QStringLiteral("Dictionary"), m_connection, -1, -1, ADODB::adCmdTable);
}

void RowStore::StoreRecord(const SourceEntry &entry)
{
    static const QString word = QStringLiteral("Word"), pronunciation = QStringLiteral("Pronunciation"),
                         wordPhrase = QStringLiteral("WordPhrase"),
                         description = QStringLiteral("Description"), example = QStringLiteral("Example");
    const StoredRow row = RowOf(entry);
    const ADODB::Fields fields = m_rows.Fields();
    m_rows.AddNew();
    fields.Item(word).SetValue(row.Word);
    fields.Item(pronunciation).SetValue(row.Pronunciation);
    fields.Item(wordPhrase).SetValue(row.WordPhrase);
    fields.Item(description).SetValue(row.Description);
    fields.Item(example).SetValue(row.Example);
    m_rows.Update();
}

void RowStore::Close()
{
    const auto disconnect = qScopeGuard([this] { Disconnect(); });
    if (m_rows.State() == ADODB::adStateOpen)
        m_rows.Close();
}

void RowStore::Disconnect() noexcept
{
    try {
        if (m_connection.State() == ADODB::adStateOpen)
            m_connection.Close();
    } catch (const RuntimeError &) {
        // The rows have been committed by the recordset or have failed with it, which has been told.
        return;
    }
}
