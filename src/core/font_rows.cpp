#include "core/font_rows.h"

#include "core/shared_state.h"
#include "platform/controls/controls.h"

#include <QApplication>
#include <QScrollBar>

void MakeFontSlots()
{
    Shared.FontNames.resize(kFontSlots);
    Shared.FontSizes.resize(kFontSlots);
    Shared.FontColors.resize(kFontSlots);
    for (QList<std::int16_t> *flags :
         {&Shared.FontBolds, &Shared.FontItalics, &Shared.FontStrikes, &Shared.FontUnderlines})
        flags->resize(kFontSlots);
}

FontRow FontRowOfSlot(int slot)
{
    return {Shared.FontNames[slot],     Shared.FontSizes[slot],   Shared.FontColors[slot],
            Shared.FontBolds[slot],     Shared.FontItalics[slot], Shared.FontStrikes[slot],
            Shared.FontUnderlines[slot]};
}

void SetFontRow(int slot, const FontRow &row)
{
    Shared.FontNames[slot] = row.name;
    Shared.FontSizes[slot] = row.size;
    Shared.FontColors[slot] = row.color;
    Shared.FontBolds[slot] = row.bold;
    Shared.FontItalics[slot] = row.italic;
    Shared.FontStrikes[slot] = row.strikeout;
    Shared.FontUnderlines[slot] = row.underline;
}

void ShowFont(QWidget *control, const FontRow &row, int points)
{
    control->setFont(controls::MakeFont(row.name, points, row.bold == FontRow::kYes,
                                        row.italic == FontRow::kYes, row.strikeout == FontRow::kYes,
                                        row.underline == FontRow::kYes));
    QPalette palette = control->palette();
    const QColor color = controls::MakeColor(row.color);
    palette.setColor(QPalette::Text, color);
    palette.setColor(QPalette::WindowText, color);
    palette.setColor(QPalette::ButtonText, color);
    control->setPalette(palette);
    // The colour is that of the text, not of a list's arrows. Set anew, or the bars would inherit it.
    QPalette desktop = QApplication::palette();
    for (const QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        desktop.setColor(role, desktop.color(role));
    for (QScrollBar *bar : control->findChildren<QScrollBar *>())
        bar->setPalette(desktop);
}
