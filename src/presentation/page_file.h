#pragma once

#include "platform/data/adodb.h"
#include "platform/files/line_file.h"
#include "presentation/pure/entry_page.h"

#include <QString>

/// The drive path of the generated page.
QString PagePath();

/// The drive path of `sscDefi.dat`, the header that every page of entries begins with.
QString StylePath();

/// Puts the header with these fonts in the place of `sscDefi.dat`; raises what writing raises.
void WritePageStyle(const PageFonts &fonts);

/// Begins a page of entries: the file is emptied and gets the header's lines.
void WritePageHeader();

/// What an entry shows of a recordset's current row.
EntryFields FieldsOfRow(ADODB::Recordset &rows);

/// The page of entries, opened again behind its header.
class EntryPage
{
public:
    EntryPage();
    void WriteLine(const QString &line);
    /// Writes the closing text and closes the file.
    void Finish();

private:
    files::LineWriter m_file;
};
