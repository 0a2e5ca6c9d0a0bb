#include "management/pure/catalogue_entries.h"

#include "platform/text/fold.h"
#include "platform/text/trim.h"

namespace
{

/// How many slots are in use or free: all but the spare one.
qsizetype SlotCount(const LexiconArray &lexicons) { return lexicons ? lexicons->size() - 1 : 0; }

Lexicon Entry(const QString &name, const QString &path)
{
    Lexicon entry;
    entry.DicName = name;
    entry.DicPath = path;
    return entry;
}

} // namespace

QString MakeNewDicName(const LexiconArray &lexicons)
{
    const QString stem = QStringLiteral("新しい辞書");
    QString name = stem;
    for (int number = 1; DicNameExists(lexicons, name) != 0; ++number)
        name = stem + QString::number(number);
    return name;
}

qsizetype FindFreeSlot(const LexiconArray &lexicons)
{
    for (qsizetype slot = 0; slot < SlotCount(lexicons); ++slot)
        if (lexicons->at(slot).IsDeleted == -1)
            return slot;
    return -1;
}

qsizetype FindDicName(const LexiconArray &lexicons, const QString &name)
{
    return lexicons ? SlotNamed(*lexicons, name) : -1;
}

std::int16_t DicNameExists(const LexiconArray &lexicons, const QString &name)
{
    return FindDicName(lexicons, name) >= 0 ? std::int16_t{-1} : std::int16_t{0};
}

QStringList DicNames(const LexiconArray &lexicons)
{
    QStringList names;
    for (qsizetype slot = 0; slot < SlotCount(lexicons); ++slot)
        if (lexicons->at(slot).IsDeleted == 0)
            names.append(text::Trim(lexicons->at(slot).DicName));
    return names;
}

void AddLexicon(LexiconArray &lexicons, const QString &name, const QString &path)
{
    if (!lexicons)
        lexicons = QList<Lexicon>(1);
    qsizetype slot = FindFreeSlot(lexicons);
    if (slot < 0) {
        slot = SlotCount(lexicons);
        lexicons->append(Lexicon{});
    }
    (*lexicons)[slot] = Entry(name, path);
}

bool ChangeLexicon(LexiconArray &lexicons, const QString &oldName, const QString &name, const QString &path)
{
    const qsizetype slot = FindDicName(lexicons, oldName);
    if (slot < 0)
        return false;
    Lexicon &entry = (*lexicons)[slot];
    entry.DicName = name;
    entry.DicPath = path;
    return true;
}

void DeleteLexicon(LexiconArray &lexicons, const QString &name)
{
    const qsizetype slot = FindDicName(lexicons, name);
    if (slot < 0)
        return;
    (*lexicons)[slot] = Lexicon{};
    (*lexicons)[slot].IsDeleted = -1;
}
