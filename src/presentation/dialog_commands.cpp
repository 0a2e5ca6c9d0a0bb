#include "presentation/frmColorSelect.h"
#include "presentation/frmFind.h"

void frmFind::mnuColorSel_Click() { (new frmColorSelect)->ShowModal(); }
