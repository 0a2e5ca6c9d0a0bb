#pragma once

#include "presentation/frmFind.h"

/// Blocks the main window's input while a dialog is open, or gives it back; nothing where the window
/// has gone.
inline void SetMainWindowInput(bool takes)
{
    if (frmFind *window = MainWindow())
        window->SetTakesInput(takes);
}
