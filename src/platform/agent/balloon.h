#pragma once

#include <QTextDocument>
#include <QTimer>
#include <QWidget>

namespace agent
{

/// The balloon beside a figure. Its words appear as they are said, a page at a time.
class Balloon : public QWidget
{
    Q_OBJECT
public:
    Balloon();

    /// A new text, of which nothing has been said. The balloon comes with the first word.
    void Begin(const QString &text);
    /// The word that is being said; the balloon shows its page up to it.
    void ShowWord(qsizetype position, qsizetype length);
    /// All has been said: the balloon goes after a moment.
    void End();
    /// What can be read in it at present.
    QString ShownText() const { return m_shown; }
    /// Stands above the figure's place, or below where there is no room.
    void StandBy(const QRect &figure);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void LayOutPage();

    QString m_text;
    QString m_shown;
    qsizetype m_pageBegin = 0, m_pageEnd = 0;
    QTextDocument m_page;
    QTimer m_end;
    QRect m_figure;
};

} // namespace agent
