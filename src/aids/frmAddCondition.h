#pragma once

#include "platform/controls/form.h"

#include <memory>

namespace Ui
{
class frmAddCondition;
}

/// The composite builder: takes the text of the entry box apart into headword, meaning and example,
/// and writes them back as one.
class frmAddCondition : public controls::Form
{
    Q_OBJECT
public:
    frmAddCondition();
    ~frmAddCondition() override;

protected:
    void Form_Load() override;
    void Form_Unload(controls::UnloadReason reason) override;

private:
    void Command1_Click();
    void Command2_Click();

    std::unique_ptr<Ui::frmAddCondition> m_ui;
};
