#pragma once

#include "platform/controls/form.h"

#include <memory>

namespace Ui
{
class frmAbout;
}

/// The version dialog: name, version and licence, or a short report on the machine in its place.
class frmAbout : public controls::Form
{
    Q_OBJECT
public:
    frmAbout();
    ~frmAbout() override;

    void Command1_Click();
    /// Shows the report in the place of the licence, or the licence again.
    void Command2_Click();

protected:
    void Form_Load() override;
    void Form_Unload(controls::UnloadReason reason) override;

private:
    void FixTextSize();

    std::unique_ptr<Ui::frmAbout> m_ui;
    QString m_firstHeading, m_firstText;
    bool m_showsReport = false;
};
