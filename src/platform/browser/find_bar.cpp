#include "platform/browser/find_bar.h"

#include "platform/controls/controls.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

namespace browser
{

FindBar::FindBar(QWidget *parent)
    : QWidget(parent), m_text(new controls::TextBox(this)),
      m_previous(MakeButton(QStringLiteral("FindPrevious"), QStringLiteral("前へ"),
                            QStringLiteral("前の一致箇所 (Shift+Enter)"))),
      m_next(MakeButton(QStringLiteral("FindNext"), QStringLiteral("次へ"),
                        QStringLiteral("次の一致箇所 (Enter)"))),
      m_count(new QLabel(this))
{
    setObjectName(QStringLiteral("FindBar"));
    m_text->setObjectName(QStringLiteral("FindText"));
    m_count->setObjectName(QStringLiteral("FindCount"));
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Window);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    auto *label = new QLabel(QStringLiteral("検索:"), this);
    QToolButton *close =
        MakeButton(QStringLiteral("FindClose"), QStringLiteral("×"), QStringLiteral("閉じる (Esc)"));
    close->setAccessibleName(QStringLiteral("閉じる"));
    label->setBuddy(m_text);
    m_text->setAccessibleName(QStringLiteral("表示内容中の検索文字列"));
    m_text->setMaximumWidth(260);
    m_count->setTextFormat(Qt::PlainText);

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(6, 2, 4, 2);
    row->setSpacing(4);
    row->addWidget(label);
    row->addWidget(m_text, 1);
    row->addWidget(m_previous);
    row->addWidget(m_next);
    row->addWidget(m_count);
    row->addStretch();
    row->addWidget(close);

    connect(m_text, &controls::TextBox::Change, this, [this] { Request(false); });
    connect(m_text, &controls::TextBox::KeyPress, this, &FindBar::HandleKey);
    connect(m_previous, &QToolButton::clicked, this, [this] { Request(true); });
    connect(m_next, &QToolButton::clicked, this, [this] { Request(false); });
    connect(close, &QToolButton::clicked, this, &FindBar::CloseRequested);
    ShowCount(0, 0);
}

QToolButton *FindBar::MakeButton(const QString &name, const QString &text, const QString &toolTip)
{
    auto *button = new QToolButton(this);
    button->setObjectName(name);
    button->setText(text);
    button->setToolTip(toolTip);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

void FindBar::Open()
{
    show();
    m_text->setFocus(Qt::ShortcutFocusReason);
    m_text->selectAll();
    if (!m_text->text().isEmpty())
        Request(false);
}

void FindBar::ShowCount(int active, int total)
{
    const bool isFound = total > 0;
    m_previous->setEnabled(isFound);
    m_next->setEnabled(isFound);
    if (isFound)
        m_count->setText(QStringLiteral("%1 / %2 件").arg(active).arg(total));
    else
        m_count->setText(m_text->text().isEmpty() ? QString() : QStringLiteral("見つかりません"));
}

void FindBar::Request(bool backward) { Q_EMIT FindRequested(m_text->text(), backward); }

void FindBar::HandleKey(int character, bool *swallow)
{
    constexpr int enter = 13, escape = 27;
    *swallow = character == enter || character == escape;
    if (character == enter)
        Request(QApplication::keyboardModifiers().testFlag(Qt::ShiftModifier));
    else if (character == escape)
        Q_EMIT CloseRequested();
}

} // namespace browser
