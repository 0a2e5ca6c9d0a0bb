#include "conversion/frmDataConv.h"
#include "presentation/frmFind.h"

// The commands that open dialogs. No other file of the main window includes them.

void frmFind::mnuCnv_Click() { (new frmDataConv)->ShowForm(); }
