#pragma once

#include "platform/controls/form.h"

#include <memory>

namespace Ui
{
class frmSpeaking;
}

/// Reads a pasted or typed English text aloud. The main window stays usable.
class frmSpeaking : public controls::Form
{
    Q_OBJECT
public:
    frmSpeaking();
    ~frmSpeaking() override;

private:
    void Command1_Click();
    void Command2_Click();
    void Command3_Click();
    void Command4_Click();

    std::unique_ptr<Ui::frmSpeaking> m_ui;
};
