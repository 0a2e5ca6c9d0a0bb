#include "conversion/pure/glossary_category.h"

#include <QHash>

namespace
{

struct Category {
    QStringView code;
    QStringView name;
};

constexpr Category kCategories[] = {
    {u"TXT", u"Text"},
    {u"MSG", u"Message"},
    {u"CMT", u"Comment"},
    {u"STS", u"Status Bar"},
    {u"TOL", u"Tool Tip"},
    {u"KEY", u"Key Name"},
    {u"ARG", u"Argument Name"},
    {u"FUN", u"Function Name"},
    {u"FLD", u"Folder Name"},
    {u"FNT", u"Font Name"},
    {u"TXB", u"Static Text"},
    {u"TDB", u"Dialog Title"},
    {u"TAB", u"Tab Control"},
    {u"GBT", u"Group Box Title"},
    {u"EDT", u"Edit Box"},
    {u"BUT", u"Button"},
    {u"OPT", u"Option Button"},
    {u"CHK", u"Check Box"},
    {u"CST", u"Custom Control"},
    {u"TKB", u"Slider Bar"},
    {u"PGB", u"Progress Bar"},
    {u"DRV", u"Drive Control"},
    {u"FLC", u"Folder Control"},
    {u"MNU", u"Menu Item"},
    {u"ACL", u"Accelerator"},
    {u"VER", u"Version"},
    {u"TRX", u"Translation Record"},
    {u"LBX", u"List Box"},
    {u"SLB", u"Scroll Bar"},
    {u"CBX", u"Combo Box"},
    {u"RDB", u"Radio Button"},
    {u"GRP", u"Group Box"},
    {u"GEN", u"General"},
    {u"UNK", u"Unknown"},
    {u"KWD", u"KeyWord"},
    {u"TTL", u"Topic Title"},
    {u"PTL", u"Page Title"},
    {u"COM", u"Command"},
    {u"ADR", u"Address"},
    {u"ALT", u"Alternative Text"},
    {u"HTX", u"HTML Text"},
    {u"HTT", u"HTML Title"},
    {u"JST", u"Java Text"},
    {u"NUM", u"Number"},
    {u"PGI", u"Page Information"},
    {u"STY", u"Style"},
    {u"VST", u"VB Script Text"},
    {u"PTY", u"Property"},
    {u"MAC", u"Macro Action"},
    {u"FIL", u"File Name"},
    {u"BIL", u"Billboards"},
    {u"DIA", u"Dialog Item"},
    {u"DES", u"Description"},
    {u"FTL", u"Feature Title"},
    {u"FDS", u"Feature Description"},
    {u"IFN", u"INI File Name"},
    {u"IFK", u"INI File Key"},
    {u"IFS", u"INI File Section"},
    {u"IFV", u"INI File Value"},
    {u"APD", u"AppData"},
    {u"RGV", u"Registry Value"},
    {u"RSD", u"Resource Data"},
    {u"SHD", u"Shortcut Description"},
    {u"SHN", u"Shortcut Name"},
    {u"SHH", u"Shortcut HotKey"},
    {u"SHA", u"Shortcut Argument"},
    {u"VRB", u"Verb"},
    {u"ARM", u"Argument"},
    {u"CID", u"ComponentId"},
    {u"FLS", u"File Size"},
    {u"FLV", u"File Version"},
    {u"FLL", u"File Language"},
    {u"DOC", u"Documentation"},
};

constexpr qsizetype kCodeLength = 3;

/// A code of three characters in capitals, as a number.
quint64 KeyOf(QStringView code)
{
    quint64 key = 0;
    for (const QChar character : code)
        key = key << 16 | character.toUpper().unicode();
    return key;
}

QHash<quint64, QString> NamesByKey()
{
    QHash<quint64, QString> names;
    for (const Category &category : kCategories)
        names.insert(KeyOf(category.code), category.name.toString());
    return names;
}

} // namespace

QString GlossaryCategoryName(QStringView code)
{
    static const QHash<quint64, QString> names = NamesByKey();
    static const QString unknown = QStringLiteral("Unknown");
    return code.size() == kCodeLength ? names.value(KeyOf(code), unknown) : unknown;
}
