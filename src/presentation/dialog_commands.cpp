#include "conversion/frmCreateDB.h"
#include "conversion/frmDataConv.h"
#include "presentation/frmFind.h"

// The menu entries that open dialogs.

void frmFind::mnuFileCreate_Click() { (new frmCreateDB)->ShowModal(); }

void frmFind::mnuCnv_Click() { (new frmDataConv)->ShowForm(); }
