#include "core/failure_handling.h"
#include "core/pure/app_files.h"
#include "core/shared_state.h"
#include "platform/files/fixed_record_file.h"
#include "platform/host/host.h"
#include "platform/text/shift_jis.h"
#include "presentation/frmFind.h"
#include "presentation/page_file.h"
#include "presentation/pure/marked_entry.h"
#include "search/view.h"

#include <algorithm>

void frmFind::WriteEntryPage(std::int32_t first, std::int32_t last)
{
    ShowRecords([&] {
        host::SetMousePointer(host::PointerHourglass);
        WritePageHeader();
        ADODB::Recordset &table = OpenViewTable();
        const std::int32_t count = std::min<std::int32_t>(last - first, Shared.EntriesPerPage - 1);
        const EntryMarks marks{Shared.SearchMode, Shared.CompositeKind, Shared.SearchText,
                               Shared.CompositeMeaningText, Shared.CompositeExampleText};
        files::FixedRecordFile store(ResultStorePath(), kResultRecordLength);
        EntryPage page;
        for (std::int32_t position = first; position <= first + count; ++position)
            if (SeekResult(table, DecodeResult(store.Read(position))))
                page.WriteLine(MarkedEntryLine(FieldsOfRow(table), marks));
        page.Finish();
        NavigateHome();
        host::SetMousePointer(host::PointerDefault);
        store.Close();
        CloseView();
        Shared.StopRequested = 0;
    });
}
