#include "management/pure/dictionary_dialog_layout.h"

namespace
{

constexpr int kMargin = 120;
constexpr int kWidth = 7500;
constexpr int kInnerWidth = kWidth - 2 * kMargin;
constexpr int kButtonWidth = 1740;
constexpr int kButtonHeight = 390;
constexpr int kButtonStep = 450;
constexpr int kListHeight = 3 * kButtonStep + kButtonHeight;
constexpr int kNameHeight = 990;
constexpr int kFileHeight = 1680;
constexpr int kHintHeight = 1350;
/// How far fields and buttons move up while an entry is edited.
constexpr int kListRoom = 1920;

} // namespace

DictionaryDialogLayout LayoutDictionaryDialog(bool isEditing)
{
    DictionaryDialogLayout layout;
    layout.width = kWidth;
    const int buttonLeft = kWidth - kMargin - kButtonWidth;
    layout.list = {kMargin, kMargin, buttonLeft - 2 * kMargin, kListHeight};
    int top = kMargin;
    for (controls::TwipRect *button :
         {&layout.addButton, &layout.changeButton, &layout.deleteButton, &layout.quitButton}) {
        *button = {buttonLeft, top, kButtonWidth, kButtonHeight};
        top += kButtonStep;
    }
    const int fieldsTop = kMargin + (isEditing ? 0 : kListRoom);
    layout.nameFrame = {kMargin, fieldsTop, kInnerWidth, kNameHeight};
    layout.fileFrame = {kMargin, layout.nameFrame.Bottom() + kMargin, kInnerWidth, kFileHeight};
    layout.hint = {kMargin, layout.fileFrame.Bottom() + kMargin, kInnerWidth, kHintHeight};
    const int lastTop = layout.hint.Bottom() + kMargin;
    layout.cancelButton = {buttonLeft, lastTop, kButtonWidth, kButtonHeight};
    layout.okButton = {buttonLeft - kMargin - kButtonWidth, lastTop, kButtonWidth, kButtonHeight};
    layout.height = (isEditing ? layout.okButton : layout.fileFrame).Bottom() + kMargin;
    return layout;
}
