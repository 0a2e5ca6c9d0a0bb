#pragma once

#include "platform/controls/form.h"

#include <cstdint>
#include <memory>

namespace Ui
{
class frmCreateDB;
}

/// The dialog that makes an empty dictionary file at a path of the user's.
class frmCreateDB : public controls::Form
{
    Q_OBJECT
public:
    frmCreateDB();
    ~frmCreateDB() override;

    /// Whether a dictionary may be made at the path; tells what is wrong and may, with the user's
    /// consent, rewrite the path and the box. The path is trimmed; `failed` becomes 1 where it is
    /// refused, else 0.
    void CheckNewDbPath(QString &path, std::int16_t &failed);

protected:
    void Form_Load() override;
    void Form_Unload(controls::UnloadReason reason) override;

private:
    void Command1_Click();
    void Command2_Click();
    void Command3_Click();

    std::unique_ptr<Ui::frmCreateDB> m_ui;
};
