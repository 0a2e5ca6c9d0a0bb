#pragma once

class QWidget;

namespace controls
{

/// Gives a box a white base and black text on every desktop theme, for users choose their colours
/// against white; what is selected stays as visible without the focus as with it.
void UseWhiteBase(QWidget &box);

} // namespace controls
