#include "platform/dialogs/font_box.h"

#include "platform/host/looks.h"

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QFontDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

dialogs::FontBox::FontBox(const QString &title, const FontChoice &start, QWidget *parent)
    : QDialog(parent), m_start(start), m_color(start.color), m_fonts(new QFontDialog(this)),
      m_colorButton(new QPushButton(this))
{
    setWindowTitle(title);
    m_fonts->setWindowFlags(Qt::Widget);
    m_fonts->setOptions(QFontDialog::NoButtons | QFontDialog::DontUseNativeDialog);
    m_fonts->setCurrentFont(
        host::FontOf(start.name, start.size, start.bold, start.italic, start.strikeout, start.underline));
    m_shownFamily = m_fonts->currentFont().family();

    auto *colorRow = new QHBoxLayout;
    auto *colorLabel = new QLabel(QStringLiteral("色(&C):"), this);
    colorLabel->setBuddy(m_colorButton);
    m_colorButton->setAutoDefault(false);
    m_colorButton->setAccessibleName(QStringLiteral("色"));
    m_colorButton->setIconSize({48, 16});
    colorRow->addWidget(colorLabel);
    colorRow->addWidget(m_colorButton);
    colorRow->addStretch();

    auto *buttons = new QDialogButtonBox(this);
    buttons->addButton(ButtonWord(OK), QDialogButtonBox::AcceptRole)->setDefault(true);
    buttons->addButton(ButtonWord(Cancel), QDialogButtonBox::RejectRole);

    auto *rows = new QVBoxLayout(this);
    rows->addWidget(m_fonts);
    rows->addLayout(colorRow);
    rows->addWidget(buttons);

    connect(m_colorButton, &QPushButton::clicked, this, &FontBox::ChooseColor);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    ShowColor();
}

dialogs::FontChoice dialogs::FontBox::Choice() const
{
    const QFont font = m_fonts->currentFont();
    FontChoice choice;
    choice.name = font.family() == m_shownFamily ? m_start.name : font.family();
    choice.size = qMax(1, qRound(font.pointSizeF()));
    choice.color = m_color;
    choice.bold = font.bold();
    choice.italic = font.italic();
    choice.strikeout = font.strikeOut();
    choice.underline = font.underline();
    return choice;
}

void dialogs::FontBox::ChooseColor()
{
    const QColor chosen = QColorDialog::getColor(host::ColorOf(m_color), this, QStringLiteral("色の設定"),
                                                 QColorDialog::DontUseNativeDialog);
    if (chosen.isValid())
        m_color = host::BgrOf(chosen);
    ShowColor();
}

void dialogs::FontBox::ShowColor()
{
    QPixmap swatch(m_colorButton->iconSize());
    swatch.fill(host::ColorOf(m_color));
    m_colorButton->setIcon(swatch);
}
