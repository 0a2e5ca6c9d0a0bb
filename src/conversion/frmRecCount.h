#pragma once

#include "platform/controls/form.h"

#include <memory>

class frmDataConv;
class QPushButton;
namespace Ui
{
class frmRecCountControls;
}

/// The small window that stands while the lines of a source are counted, and while the target is made
/// ready.
class frmRecCount : public controls::Form
{
    Q_OBJECT
public:
    /// With the caption and its two lines.
    frmRecCount(frmDataConv &dialog, const QString &caption, const QString &first, const QString &second);
    ~frmRecCount() override;

protected:
    void Form_Load() override;
    /// The frame cancels; the window goes when the counting has ended.
    bool Form_QueryUnload(controls::UnloadReason reason) override;

private:
    void Command1_Click();

    frmDataConv &m_dialog;
    std::unique_ptr<Ui::frmRecCountControls> m_controls;
};
