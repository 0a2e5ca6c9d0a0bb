#pragma once

#include <QByteArray>
#include <QString>
#include <array>

inline constexpr int kFontSlots = 9;
/// The name of the file that holds them, in the application folder.
QString FontFileName();

/// The window controls and page styles that have a font of their own.
enum FontSlot : int { FontCombo = 0, FontEntry = 1, FontList = 2, FontStyle1 = 3 };

/// One of the nine fonts of `FontDefi.dat`. Flags are 0 or -1; the colour is 0x00BBGGRR.
struct FontRow {
    /// What a flag that is set holds.
    static constexpr qint16 kYes = -1;

    QString name;
    qint16 size = 0; ///< points
    qint32 color = 0;
    qint16 bold = 0, italic = 0, strikeout = 0, underline = 0;

    bool operator==(const FontRow &) const = default;
};

inline constexpr int kFontRecordLength = 44;
/// A record: 30 bytes name, 16-bit size, 32-bit colour, four 16-bit flags, little-endian.
QByteArray EncodeFontRow(const FontRow &row);
FontRow DecodeFontRow(const QByteArray &record);
/// The font that a slot has when nothing was chosen.
FontRow DefaultFontRow(int slot);
/// The name of the default font of every slot and style.
QString DefaultFontName();

/// The seven numbers of `ListDefi.dat`.
struct ListSettings {
    qint16 IncListCount = 50;
    qint16 IncEntriesPerPage = 15;
    qint16 ListPageSize = 50;
    qint16 MaxListCount = 500;
    qint16 EntriesPerPage = 15;
    qint16 WordBookMax = 300;
    quint8 SearchTarget = 0;

    bool operator==(const ListSettings &) const = default;
};
/// The line written when the file is missing.
QString DefaultListLine();
/// Cuts a line of 20 characters into its fields; a line of another length counts as the default
/// one. Raises 13 for a field that is no number, 6 for one that does not fit.
ListSettings ParseListLine(const QString &line);
/// The line of the settings, each number with zeros in front to the width of its field.
QString ListLine(const ListSettings &settings);

/// The one record of `AgentDefi.dat`.
struct AgentSettings {
    quint8 enabled = 0;
    QString folder; ///< a drive path, or "default"
    QString file;   ///< empty: the first one found

    bool operator==(const AgentSettings &) const = default;
};
inline constexpr int kAgentRecordLength = 306;
AgentSettings DefaultAgentSettings();
/// A record: 8-bit flag, 255 bytes folder, 50 bytes file name.
QByteArray EncodeAgentSettings(const AgentSettings &settings);
AgentSettings DecodeAgentSettings(const QByteArray &record);
/// A character's name: its file name without what stands behind the last point.
QString CharacterIdFromFile(const QString &fileName);
