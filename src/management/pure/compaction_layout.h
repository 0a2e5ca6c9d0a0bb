#pragma once

#include "platform/controls/twips.h"

/// The places of the dialog that compacts a dictionary, in twips.
struct CompactionLayout {
    int width = 0, height = 0;
    controls::TwipRect fileLabel, fileBox, nameLabel;
    controls::TwipRect backupLabel, backupBox, backupButton, noBackupBox;
    controls::TwipRect startButton, closeButton;
    controls::TwipRect workLabel, waitLabel; ///< the two lines that tell of the work
};

/// Where everything stands: the whole dialog, or the small form with two lines of text that stands while
/// the work goes on.
CompactionLayout LayoutCompaction(bool isWorking);
