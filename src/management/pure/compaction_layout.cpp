#include "management/pure/compaction_layout.h"

namespace
{

constexpr int kMargin = 180;
constexpr int kWidth = 7500;
constexpr int kInnerWidth = kWidth - 2 * kMargin;
constexpr int kLabelHeight = 285;
constexpr int kBoxHeight = 375;
constexpr int kBrowseWidth = 540;
constexpr int kButtonWidth = 1500;
constexpr int kButtonHeight = 405;
constexpr int kGap = 120;

constexpr int kWorkWidth = 4800;
constexpr int kWorkHeight = 1500;

} // namespace

CompactionLayout LayoutCompaction(bool isWorking)
{
    CompactionLayout layout;
    layout.fileLabel = {kMargin, kMargin, kInnerWidth, kLabelHeight};
    layout.fileBox = {kMargin, layout.fileLabel.Bottom(), kInnerWidth, kBoxHeight};
    layout.nameLabel = {kMargin, layout.fileBox.Bottom() + kGap, kInnerWidth, 2 * kLabelHeight};
    layout.backupLabel = {kMargin, layout.nameLabel.Bottom() + kGap, kInnerWidth, kLabelHeight};
    layout.backupBox = {kMargin, layout.backupLabel.Bottom(), kInnerWidth - kBrowseWidth - kGap, kBoxHeight};
    layout.backupButton = {layout.backupBox.Right() + kGap, layout.backupBox.top, kBrowseWidth, kBoxHeight};
    layout.noBackupBox = {kMargin, layout.backupBox.Bottom() + kGap, kInnerWidth, kLabelHeight};
    const int buttonTop = layout.noBackupBox.Bottom() + kMargin;
    layout.closeButton = {kWidth - kMargin - kButtonWidth, buttonTop, kButtonWidth, kButtonHeight};
    layout.startButton = {layout.closeButton.left - kGap - kButtonWidth, buttonTop, kButtonWidth,
                          kButtonHeight};
    constexpr int workInner = kWorkWidth - 2 * kMargin;
    layout.workLabel = {kMargin, kMargin, workInner, 2 * kLabelHeight + kGap};
    layout.waitLabel = {kMargin, kWorkHeight - kMargin - kLabelHeight, workInner, kLabelHeight};
    layout.width = isWorking ? kWorkWidth : kWidth;
    layout.height = isWorking ? kWorkHeight : layout.closeButton.Bottom() + kMargin;
    return layout;
}
