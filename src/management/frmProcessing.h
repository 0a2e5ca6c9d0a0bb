#pragma once

#include "platform/controls/form.h"

/// The small window that stands while the record editor searches. Its frame does not close it.
class frmProcessing : public controls::Form
{
    Q_OBJECT
public:
    /// Stands in the middle of its owner.
    explicit frmProcessing(QWidget &owner);

protected:
    bool AcceptsFrameClose() const override { return false; }
};
