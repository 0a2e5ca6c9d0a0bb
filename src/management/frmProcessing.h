#pragma once

#include "platform/controls/form.h"

/// The small window that stands while the record editor searches. Its frame does not close it.
class frmProcessing : public controls::Form
{
    Q_OBJECT
public:
    frmProcessing();
    /// Shows it over the middle of its owner, and returns when it can be seen.
    void ShowPainted(const Form &owner);

protected:
    bool AcceptsFrameClose() const override { return false; }
};
