#pragma once

#include "core/pure/catalogue_record.h"

#include <QList>
#include <QStringList>
#include <cstdint>
#include <optional>

/// The catalogue as the program holds it: slots in the file's order with a spare one at the end; none
/// until it held an entry. Names are compared as text, without regard to case, kana type and width.
using LexiconArray = std::optional<QList<Lexicon>>;

/// A name for a new entry that no entry bears.
QString MakeNewDicName(const LexiconArray &lexicons);

/// The first free slot; -1 for none.
qsizetype FindFreeSlot(const LexiconArray &lexicons);

/// The slot of the entry with this name; -1 for none.
qsizetype FindDicName(const LexiconArray &lexicons, const QString &name);

/// -1 when an entry bears the name, else 0.
std::int16_t DicNameExists(const LexiconArray &lexicons, const QString &name);

/// The names of the entries in the order of their slots.
QStringList DicNames(const LexiconArray &lexicons);

/// Stores a new entry: in a free slot, else in the spare one, behind which a new spare slot comes.
void AddLexicon(LexiconArray &lexicons, const QString &name, const QString &path);

/// Gives the entry with the name `oldName` another name and path; false when there is none. Which entry
/// is in use does not change.
bool ChangeLexicon(LexiconArray &lexicons, const QString &oldName, const QString &name, const QString &path);

/// Frees the slot of the entry with the name; nothing where there is none.
void DeleteLexicon(LexiconArray &lexicons, const QString &name);
