#pragma once

#include "conversion/pure/row_store.h"
#include "conversion/pure/source_format.h"
#include "platform/failure/runtime_error.h"
#include "platform/files/line_file.h"

#include <cstdint>
#include <functional>
#include <limits>
#include <memory>
#include <optional>

class frmDataConv;

/// How the run of a source format departs from the frame that all share.
struct Format {
    /// None for a source of pairs.
    std::function<std::unique_ptr<LineParser>()> makeParser;
    /// Two lines an entry: no bad records and no log, a question on an odd number of lines, an end of its
    /// own, and a percentage that fails below 100 lines.
    bool isPairs = false;
    /// The whole dialog is disabled while lines are counted, and stays so where there is none.
    bool disablesDialog = false;
    /// The window of the counting comes again while the target is made ready.
    bool showsPreparation = true;
    /// Bad records are logged without the blanks at their ends.
    bool logsTrimmed = false;
    /// Lines in front of the first entry, which do not count.
    int headerLines = 0;
    /// One bad record more is an overflow.
    std::int32_t mostBadRecords = std::numeric_limits<std::int32_t>::max();
};

/// One conversion, from the checks of the files to the report.
class ConversionRun
{
public:
    /// Whether the dialog stays as it was, or has done its work and goes.
    enum class Outcome { Idle, Ended };

    ConversionRun(frmDataConv &dialog, const Format &format);
    ~ConversionRun();
    ConversionRun(const ConversionRun &) = delete;
    ConversionRun &operator=(const ConversionRun &) = delete;

    Outcome Run();

private:
    bool IsReady();
    void TakeFiles();
    void CountLines();
    bool HasLinesToConvert();
    bool HasPairs();
    void BecomeIdle();
    void ShowPreparation();
    void Open();
    void CreateLog();
    void ReadFirstHeadword();
    void ConvertLines();
    void ConvertPairs();
    void CountRecord();
    void BadRecord(const QString &line);
    void ShowPercentage();
    void TellFailure(const RuntimeError &failure);
    void Close();
    void Report();

    frmDataConv &m_dialog;
    const Format &m_format;
    RowStore m_store;
    std::unique_ptr<files::LineReader> m_source;
    QString m_lastHeadword;
    std::int32_t m_recordNo = 0;
    std::int32_t m_badCount = 0;
    std::int16_t m_progressStep = 0;
    bool m_hadBadRecords = false;
    bool m_keepsGoing = false;
    bool m_isStopped = false;
};
