#pragma once

#include "platform/dialogs/dialogs.h"

#include <QDialog>

class QCheckBox;
class QLabel;
class QListWidget;
class QPushButton;
class QSpinBox;

namespace dialogs
{

/// The font box: family, size, effects and colour, with a sample. Bold and italic are offered for
/// every family: Japanese ones seldom have styles of their own, and the desktop makes them up. A
/// family that the desktop lacks is listed all the same, so that it stays unless another is chosen.
class FontBox : public QDialog
{
    Q_OBJECT
public:
    FontBox(const QString &title, const FontChoice &start, QWidget *parent);
    /// What is chosen at present.
    FontChoice Choice() const;

private:
    QLayout *MakeFamilyColumn(const QString &name);
    QLayout *MakeEffectsColumn(const FontChoice &start);
    QLayout *MakeButtonRow();
    QCheckBox *MakeEffect(const QString &caption, bool on);
    void ChooseColor();
    void ShowSample();

    qint32 m_color;
    QListWidget *m_families = nullptr;
    QSpinBox *m_size = nullptr;
    QCheckBox *m_bold = nullptr, *m_italic = nullptr, *m_strikeout = nullptr, *m_underline = nullptr;
    QPushButton *m_colorButton = nullptr;
    QLabel *m_sample = nullptr;
};

} // namespace dialogs
