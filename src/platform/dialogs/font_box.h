#pragma once

#include "platform/dialogs/dialogs.h"

#include <QDialog>

class QFontDialog;
class QPushButton;

namespace dialogs
{

/// The font box: family, style, size and effects, and the colour.
class FontBox : public QDialog
{
    Q_OBJECT
public:
    FontBox(const QString &title, const FontChoice &start, QWidget *parent);
    /// What is chosen at present. A family that the user leaves alone keeps the name that it came
    /// with, even where the desktop shows another in its place.
    FontChoice Choice() const;

private:
    void ChooseColor();
    void ShowColor();

    FontChoice m_start;
    qint32 m_color;
    QString m_shownFamily;
    QFontDialog *m_fonts;
    QPushButton *m_colorButton;
};

} // namespace dialogs
