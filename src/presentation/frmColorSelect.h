#pragma once

#include "core/pure/settings_formats.h"
#include "platform/controls/form.h"

#include <array>
#include <memory>

class QLabel;
class QPushButton;
namespace Ui
{
class frmColorSelect;
}

/// Fonts and colours of nine parts of the display. What is saved shows at the program's next start.
class frmColorSelect : public controls::Form
{
    Q_OBJECT
public:
    frmColorSelect();
    ~frmColorSelect() override;

protected:
    void Form_Load() override;
    bool Form_QueryUnload(controls::UnloadReason reason) override;
    void Form_Unload(controls::UnloadReason reason) override;

private:
    using Rows = std::array<FontRow, kFontSlots>;

    static Rows PresentRows();
    /// Whether a row differs from what was there at opening or at the last save.
    bool IsChanged() const;
    void MakeRow(int row);
    void ShowSample(int row);
    /// Command0 to Command8.
    void CommandRow_Click(int row);
    void Label1_Click();
    void Command9_Click();

    std::unique_ptr<Ui::frmColorSelect> m_ui;
    std::array<QLabel *, kFontSlots> m_samples{};
    std::array<QPushButton *, kFontSlots> m_buttons{};
    Rows m_saved;
};
