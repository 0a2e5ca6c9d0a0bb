#pragma once

#include "core/pure/settings_formats.h"
#include "platform/controls/form.h"

#include <memory>

namespace Ui
{
class frmSpeakingSetting;
}

/// Switches pronunciation on and off, and chooses the character.
class frmSpeakingSetting : public controls::Form
{
    Q_OBJECT
public:
    frmSpeakingSetting();
    ~frmSpeakingSetting() override;

protected:
    void Form_Load() override;
    bool Form_QueryUnload(controls::UnloadReason reason) override;
    void Form_Unload(controls::UnloadReason reason) override;

private:
    void Check1_Click();
    void Text1_Change();
    void Combo1_Click();
    void Command1_Click();
    void Command2_Click();
    void Command3_Click();
    /// The folder of the box without a backslash at its end.
    QString Folder() const;
    bool IsChosenFileThere() const;
    AgentSettings Chosen() const;
    void UseNewCharacter(const AgentSettings &settings);

    std::unique_ptr<Ui::frmSpeakingSetting> m_ui;
    AgentSettings m_loaded;
    bool m_closeHandled = false;
};
