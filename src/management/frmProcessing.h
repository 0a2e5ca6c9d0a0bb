#pragma once

#include "platform/controls/form.h"

/// The small window that stands while the record editor searches. Its frame does not close it.
class frmProcessing : public controls::Form
{
    Q_OBJECT
public:
    /// Stands in the middle of its owner.
    explicit frmProcessing(QWidget &owner);
    /// Shows it, and returns when it can be seen.
    void ShowPainted();

protected:
    bool AcceptsFrameClose() const override { return false; }
};
