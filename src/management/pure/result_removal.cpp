#include "management/pure/result_removal.h"

#include "platform/files/fixed_record_file.h"
#include "search/pure/result_record.h"

ResultRemoval WithoutResult(const QByteArray &content, std::int32_t autoID)
{
    ResultRemoval removal;
    removal.content.reserve(content.size());
    const qint64 count = files::RecordCount(content.size(), kResultRecordLength);
    for (qint64 i = 0; i < count; ++i) {
        // The last record may lack its tail.
        const QByteArray record = content.mid(i * kResultRecordLength, kResultRecordLength)
                                      .leftJustified(kResultRecordLength, '\0');
        if (ResultNumber(record) == autoID)
            removal.position = static_cast<std::int32_t>(i);
        else
            removal.content += record;
    }
    return removal;
}
