#include "platform/dialogs/font_box.h"

#include "platform/host/looks.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace dialogs
{

FontBox::FontBox(const QString &title, const FontChoice &start, QWidget *parent)
    : QDialog(parent), m_color(start.color)
{
    setWindowTitle(title);
    m_sample = new QLabel(QStringLiteral("Aaあぁアァ亜宇"), this);
    m_sample->setTextFormat(Qt::PlainText);
    m_sample->setAlignment(Qt::AlignCenter);
    m_sample->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    m_sample->setMinimumSize(320, 80);
    m_sample->setAutoFillBackground(true);
    m_sample->setAccessibleName(QStringLiteral("サンプル"));

    auto *columns = new QHBoxLayout;
    columns->addLayout(MakeFamilyColumn(start.name), 1);
    columns->addLayout(MakeEffectsColumn(start));
    auto *rows = new QVBoxLayout(this);
    rows->addLayout(columns);
    rows->addWidget(m_sample);
    rows->addLayout(MakeButtonRow());
    ShowSample();
}

QLayout *FontBox::MakeFamilyColumn(const QString &name)
{
    auto *label = new QLabel(QStringLiteral("フォント名(&F):"), this);
    m_families = new QListWidget(this);
    m_families->setAccessibleName(QStringLiteral("フォント名"));
    label->setBuddy(m_families);
    QStringList families = QFontDatabase::families();
    if (!families.contains(name))
        families.prepend(name);
    m_families->addItems(families);
    m_families->setCurrentRow(static_cast<int>(families.indexOf(name)));
    connect(m_families, &QListWidget::currentRowChanged, this, &FontBox::ShowSample);
    auto *column = new QVBoxLayout;
    column->addWidget(label);
    column->addWidget(m_families);
    return column;
}

QLayout *FontBox::MakeEffectsColumn(const FontChoice &start)
{
    constexpr int smallest = 1, largest = 1638;
    auto *sizeLabel = new QLabel(QStringLiteral("サイズ(&S):"), this);
    m_size = new QSpinBox(this);
    m_size->setRange(smallest, largest);
    m_size->setValue(start.size);
    m_size->setAccessibleName(QStringLiteral("サイズ"));
    sizeLabel->setBuddy(m_size);
    connect(m_size, &QSpinBox::valueChanged, this, &FontBox::ShowSample);

    m_bold = MakeEffect(QStringLiteral("太字(&B)"), start.bold);
    m_italic = MakeEffect(QStringLiteral("斜体(&I)"), start.italic);
    m_strikeout = MakeEffect(QStringLiteral("取り消し線(&K)"), start.strikeout);
    m_underline = MakeEffect(QStringLiteral("下線(&U)"), start.underline);

    m_colorButton = new QPushButton(QStringLiteral("色(&C)..."), this);
    m_colorButton->setAutoDefault(false);
    connect(m_colorButton, &QPushButton::clicked, this, &FontBox::ChooseColor);

    auto *column = new QVBoxLayout;
    for (QWidget *widget : std::initializer_list<QWidget *>{sizeLabel, m_size, m_bold, m_italic, m_strikeout,
                                                            m_underline, m_colorButton})
        column->addWidget(widget);
    column->addStretch();
    return column;
}

QCheckBox *FontBox::MakeEffect(const QString &caption, bool on)
{
    auto *effect = new QCheckBox(caption, this);
    effect->setChecked(on);
    connect(effect, &QCheckBox::toggled, this, &FontBox::ShowSample);
    return effect;
}

QLayout *FontBox::MakeButtonRow()
{
    auto *buttons = new QDialogButtonBox(this);
    buttons->addButton(ButtonWord(OK), QDialogButtonBox::AcceptRole)->setDefault(true);
    buttons->addButton(ButtonWord(Cancel), QDialogButtonBox::RejectRole)->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *row = new QHBoxLayout;
    row->addWidget(buttons);
    return row;
}

FontChoice FontBox::Choice() const
{
    FontChoice choice;
    if (const QListWidgetItem *family = m_families->currentItem())
        choice.name = family->text();
    choice.size = m_size->value();
    choice.color = m_color;
    choice.bold = m_bold->isChecked();
    choice.italic = m_italic->isChecked();
    choice.strikeout = m_strikeout->isChecked();
    choice.underline = m_underline->isChecked();
    return choice;
}

void FontBox::ChooseColor()
{
    const QColor chosen = QColorDialog::getColor(host::ColorOf(m_color), this, QStringLiteral("色の設定"),
                                                 QColorDialog::DontUseNativeDialog);
    if (!chosen.isValid())
        return;
    m_color = host::BgrOf(chosen);
    ShowSample();
}

void FontBox::ShowSample()
{
    // Signals of the controls come while the box is still being put together.
    if (!m_colorButton)
        return;
    const FontChoice choice = Choice();
    m_sample->setFont(host::FontOf(choice.name, choice.size, choice.bold, choice.italic, choice.strikeout,
                                   choice.underline));
    QPalette palette = m_sample->palette();
    palette.setColor(QPalette::Window, Qt::white);
    palette.setColor(QPalette::WindowText, host::ColorOf(choice.color));
    m_sample->setPalette(palette);
}

} // namespace dialogs
