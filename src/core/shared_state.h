#pragma once

#include "core/pure/catalogue_record.h"
#include "core/pure/search_modes.h"
#include "core/pure/settings_formats.h"
#include "platform/data/adodb.h"

#include <QList>
#include <QStringList>
#include <cstdint>
#include <memory>
#include <optional>

namespace agent
{
class Character;
}

/// All state that more than one form needs, at its initial values.
struct SharedState {
    std::uint8_t SearchMode = ModeIncremental;
    std::uint8_t SearchTarget = TargetAll;
    std::int16_t StopRequested = 0;
    /// 1 while no conversion runs, and as soon as one is asked to stop.
    std::int16_t ConvStopFlag = 1;

    std::uint8_t CompositeKind = 0;
    QString SearchText, CompositeMeaningText, CompositeExampleText;
    QString WordPattern, MeaningPattern, ExamplePattern;

    std::int16_t IncListCount = 50;
    std::int16_t IncEntriesPerPage = 15;
    std::int16_t ListPageSize = 50;
    std::int16_t MaxListCount = 500;
    std::int16_t EntriesPerPage = 15;
    std::int16_t WordBookMax = 300;

    std::int32_t HitCount = 0;
    std::int32_t ListFirstPos = 0, ListLastPos = 0, ListPageNo = 0;
    std::int32_t EntryFirstPos = 0, EntryLastPos = 0;

    std::shared_ptr<ADODB::Connection> SearchConnection, ViewConnection;
    std::shared_ptr<ADODB::Recordset> SearchRecordset, ViewRecordset;

    /// The rows of the list in incremental mode, with a spare element at the end.
    QStringList IncWords;
    QList<std::int32_t> IncAutoIDs;

    /// The lines of `sscDefi.dat`, with a spare element at the end.
    QStringList HtmlHeaderLines;

    /// The catalogue with its spare top slot; none until it held an entry.
    std::optional<QList<Lexicon>> Lexicons;
    QString CurrentDicName, CurrentDicPath;
    std::int16_t CatalogueFlag1 = 0, CatalogueFlag2 = 0;

    QStringList FontNames;
    QList<std::int16_t> FontSizes;
    QList<std::int32_t> FontColors;
    QList<std::int16_t> FontBolds, FontItalics, FontStrikes, FontUnderlines;

    std::int16_t ListHidden = 0;
    std::int16_t SavedPicture17Left = 0, SavedPicture18Left = 0;

    QString CurrentWord;
    std::int32_t CurrentAutoID = 0;
    QString SavedIncSearchText;
    std::uint8_t EditOpenMode = 0;

    std::uint8_t SpeechEnabled = 0;
    QString CharacterFolder, CharacterFile, CharacterPath, CharacterID;
    std::uint8_t CharacterMoved = 0;
    bool NoCharacterFile = false;
    /// The loaded character; none while speech is off.
    agent::Character *Character = nullptr;
};

/// The one instance.
extern SharedState Shared;
