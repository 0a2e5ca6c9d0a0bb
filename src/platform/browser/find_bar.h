#pragma once

#include <QWidget>

class QLabel;
class QToolButton;
namespace controls
{
class TextBox;
}

namespace browser
{

/// The slim bar below the pane that looks for a text in the page: FindText, FindPrevious, FindNext,
/// FindCount, FindClose.
class FindBar : public QWidget
{
    Q_OBJECT
public:
    explicit FindBar(QWidget *parent = nullptr);
    /// Shows the bar with its text selected.
    void Open();
    /// Tells which match is reached, and of how many.
    void ShowCount(int active, int total);

Q_SIGNALS:
    void FindRequested(const QString &text, bool backward);
    void CloseRequested();

private:
    void Request(bool backward);
    void HandleKey(int character, bool *swallow);
    QToolButton *MakeButton(const QString &name, const QString &text, const QString &toolTip);

    controls::TextBox *m_text;
    QToolButton *m_previous;
    QToolButton *m_next;
    QLabel *m_count;
};

} // namespace browser
