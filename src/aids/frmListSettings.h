#pragma once

#include "aids/pure/list_sizes.h"
#include "platform/controls/form.h"

#include <memory>

class QLineEdit;
namespace Ui
{
class frmListSettings;
}

/// The sizes of the lists, and what is searched after the start.
class frmListSettings : public controls::Form
{
    Q_OBJECT
    Q_PROPERTY(int CloseHandled READ CloseHandled)
public:
    frmListSettings();
    ~frmListSettings() override;

    /// 1 if a control differs from what was last loaded or saved, else 0. Raises 13 for an empty field,
    /// 6 for a number beyond 16 bits.
    int IsThisDirty() const;
    /// 0 if all values are allowed; else 1, after the message. Raises as IsThisDirty.
    int MaxListValueCheck();
    /// Writes the file and takes the values into use.
    void SaveListData();
    /// 1 once the close button has dealt with the closing.
    quint8 CloseHandled() const { return m_closeHandled; }

protected:
    void Form_Load() override;
    bool Form_QueryUnload(controls::UnloadReason reason) override;
    void Form_Unload(controls::UnloadReason reason) override;

private:
    void Command1_Click();
    void Command2_Click();
    SizeTexts Texts() const;
    void ShowTexts(const SizeTexts &texts);
    QLineEdit *FieldOf(SizeField field) const;
    /// Puts the focus into a field, its number selected.
    void GoTo(SizeField field);

    std::unique_ptr<Ui::frmListSettings> m_ui;
    ListSettings m_snapshot;
    quint8 m_closeHandled = 0;
};
