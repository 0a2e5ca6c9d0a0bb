#include "conversion/conversion_run.h"
#include "conversion/frmDataConv.h"
#include "conversion/pure/format_table.h"
#include "conversion/pure/source_format.h"

#include <limits>

// How each format's run departs from the frame that all share.

void frmDataConv::ConvertEijiro()
{
    Format format;
    format.makeParser = MakeEijiroParser;
    format.disablesDialog = true;
    Run(format);
}

void frmDataConv::ConvertOneLine()
{
    Format format;
    format.makeParser = MakeOneLineParser;
    format.mostBadRecords = std::numeric_limits<std::int16_t>::max();
    Run(format);
}

void frmDataConv::ConvertPdicText()
{
    Format format;
    format.isPairs = true;
    Run(format);
}

void frmDataConv::ConvertCsv()
{
    Format format;
    format.makeParser = MakeCsvParser;
    format.showsPreparation = false;
    format.logsTrimmed = true;
    Run(format);
}

void frmDataConv::ConvertGlossary()
{
    Format format;
    format.makeParser = MakeGlossaryParser;
    format.headerLines = 2;
    format.logsTrimmed = true;
    Run(format);
}
