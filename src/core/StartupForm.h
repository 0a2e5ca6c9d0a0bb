#pragma once

#include "platform/controls/form.h"

class Program;

/// The splash: refuses a second instance, stands for its time, and hands over to the main window.
class StartupForm : public controls::Form
{
    Q_OBJECT
public:
    explicit StartupForm(Program &program);

protected:
    void Form_Load() override;
    void Form_Unload(controls::UnloadReason reason) override;
    void paintEvent(QPaintEvent *event) override;
    bool AcceptsFrameClose() const override { return false; }

private:
    Program &m_program;
};
