#pragma once

#include "platform/controls/twips.h"

/// The dialog that edits the catalogue: either the list with its buttons and below it what the selected
/// entry holds, or the fields of one entry alone.
struct DictionaryDialogLayout {
    int width = 0, height = 0;
    controls::TwipRect list;
    controls::TwipRect addButton, changeButton, deleteButton, quitButton;
    controls::TwipRect nameFrame, fileFrame, hint;
    controls::TwipRect okButton, cancelButton;
};

/// Where everything stands, in twips. While an entry is edited, the fields stand higher by what the list
/// gives up, and the form is larger, for the hints and the two buttons below the fields.
DictionaryDialogLayout LayoutDictionaryDialog(bool isEditing);
