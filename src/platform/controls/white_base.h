#pragma once

class QWidget;

namespace controls
{

/// Gives a box a white base and black text on every desktop theme, for users choose their colours
/// against white; what is selected stays as visible without the focus as with it.
void UseWhiteBase(QWidget &box);

/// A light ground for pictures and coloured words, which are drawn for one, on the window of a dark
/// theme. On a light one nothing is drawn.
void PaintLightGround(QWidget &control);

} // namespace controls
