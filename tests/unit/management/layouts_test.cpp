#include "management/pure/compaction_layout.h"
#include "management/pure/dictionary_dialog_layout.h"

#include <gtest/gtest.h>
#include <vector>

using controls::TwipRect;

namespace
{

void ExpectApartAndInside(const std::vector<TwipRect> &places, int width, int height)
{
    for (std::size_t i = 0; i < places.size(); ++i) {
        EXPECT_GE(places[i].left, 0);
        EXPECT_GE(places[i].top, 0);
        EXPECT_LE(places[i].Right(), width) << i;
        EXPECT_LE(places[i].Bottom(), height) << i;
        for (std::size_t j = i + 1; j < places.size(); ++j)
            EXPECT_TRUE(places[i].Right() <= places[j].left || places[j].Right() <= places[i].left ||
                        places[i].Bottom() <= places[j].top || places[j].Bottom() <= places[i].top)
                << i << " and " << j;
    }
}

} // namespace

TEST(DictionaryDialogLayout, FieldsMoveUpWhereTheListWas)
{
    const DictionaryDialogLayout browsing = LayoutDictionaryDialog(false);
    const DictionaryDialogLayout editing = LayoutDictionaryDialog(true);
    for (const auto place : {&DictionaryDialogLayout::nameFrame, &DictionaryDialogLayout::fileFrame,
                             &DictionaryDialogLayout::okButton, &DictionaryDialogLayout::cancelButton}) {
        EXPECT_EQ((browsing.*place).top - (editing.*place).top, 1920);
        EXPECT_EQ((browsing.*place).left, (editing.*place).left);
    }
    EXPECT_GE(editing.width, browsing.width);
    EXPECT_GT(editing.height, browsing.height);
}

TEST(DictionaryDialogLayout, WhatIsShownStandsApart)
{
    const DictionaryDialogLayout browsing = LayoutDictionaryDialog(false);
    ExpectApartAndInside({browsing.list, browsing.addButton, browsing.changeButton, browsing.deleteButton,
                          browsing.quitButton, browsing.nameFrame, browsing.fileFrame},
                         browsing.width, browsing.height);
    EXPECT_GE(browsing.okButton.top, browsing.height);
    const DictionaryDialogLayout editing = LayoutDictionaryDialog(true);
    ExpectApartAndInside(
        {editing.nameFrame, editing.fileFrame, editing.hint, editing.okButton, editing.cancelButton},
        editing.width, editing.height);
}

TEST(CompactionLayout, WhatIsShownStandsApart)
{
    const CompactionLayout normal = LayoutCompaction(false);
    ExpectApartAndInside({normal.fileLabel, normal.fileBox, normal.nameLabel, normal.backupLabel,
                          normal.backupBox, normal.backupButton, normal.noBackupBox, normal.startButton,
                          normal.closeButton},
                         normal.width, normal.height);
    const CompactionLayout working = LayoutCompaction(true);
    EXPECT_EQ(working.width, 4800);
    EXPECT_EQ(working.height, 1500);
    ExpectApartAndInside({working.workLabel, working.waitLabel}, working.width, working.height);
}
