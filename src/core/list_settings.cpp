#include "core/list_settings.h"

#include "core/pure/app_files.h"
#include "core/shared_state.h"
#include "platform/files/file_operations.h"
#include "platform/files/line_file.h"

namespace
{

QString ListFilePath() { return AppFilePath(QStringLiteral("ListDefi.dat")); }

void WriteListLine(const QString &line) { files::Replace(ListFilePath(), line.toLatin1() + "\r\n"); }

} // namespace

ListSettings ReadListSettings()
{
    if (!files::Exists(ListFilePath()))
        WriteListLine(DefaultListLine());
    files::LineReader reader(ListFilePath());
    return ParseListLine(reader.AtEnd() ? QString() : reader.ReadLine());
}

void WriteListSettings(const ListSettings &settings) { WriteListLine(ListLine(settings)); }

void UseListSizes(const ListSettings &settings)
{
    Shared.IncListCount = settings.IncListCount;
    Shared.IncEntriesPerPage = settings.IncEntriesPerPage;
    Shared.ListPageSize = settings.ListPageSize;
    Shared.MaxListCount = settings.MaxListCount;
    Shared.EntriesPerPage = settings.EntriesPerPage;
    Shared.WordBookMax = settings.WordBookMax;
}

ListSettings ListSizesInUse()
{
    ListSettings sizes;
    sizes.IncListCount = Shared.IncListCount;
    sizes.IncEntriesPerPage = Shared.IncEntriesPerPage;
    sizes.ListPageSize = Shared.ListPageSize;
    sizes.MaxListCount = Shared.MaxListCount;
    sizes.EntriesPerPage = Shared.EntriesPerPage;
    sizes.WordBookMax = Shared.WordBookMax;
    return sizes;
}
