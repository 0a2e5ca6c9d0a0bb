#pragma once

#include "platform/controls/list_box.h"
#include "platform/data/adodb.h"
#include "search/pure/result_record.h"

#include <cstdint>

/// What the procedures that show records share: the view connection and recordset.

/// Opens the view connection with a recordset that waits to be opened.
void OpenView();
/// The same, and the table by its index.
ADODB::Recordset &OpenViewTable();
/// Closes both and forgets them.
void CloseView();

QString TextOf(ADODB::Recordset &rows, const char16_t *column);
std::int32_t AutoIDOf(ADODB::Recordset &rows);

/// Puts the view table on the row of a hit; false when the row has gone.
bool SeekResult(ADODB::Recordset &table, const ResultKey &key);

/// Keeps a list from being painted while it is filled, however the filling ends.
class ListFill
{
public:
    explicit ListFill(controls::ListBox &list) : m_list(list) { m_list.BeginFill(); }
    ~ListFill() { m_list.EndFill(); }
    ListFill(const ListFill &) = delete;
    ListFill &operator=(const ListFill &) = delete;

private:
    controls::ListBox &m_list;
};
