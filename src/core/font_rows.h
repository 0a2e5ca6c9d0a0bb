#pragma once

#include "core/pure/settings_formats.h"

class QWidget;

/// The nine fonts as the shared state holds them, one array a field.

/// Gives every array its nine slots.
void MakeFontSlots();
/// The font of a slot, 0 to 8; the slots must be there.
FontRow FontRowOfSlot(int slot);
void SetFontRow(int slot, const FontRow &row);

/// Writes a control in a font and its colour, in a size of its own (points).
void ShowFont(QWidget *control, const FontRow &row, int points);
