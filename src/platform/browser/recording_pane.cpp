#include "platform/browser/recording_pane.h"

#include "platform/controls/white_base.h"
#include "platform/text/shift_jis.h"

#include <QFile>
#include <QTextBrowser>
#include <QTextCursor>
#include <QTextDocumentFragment>
#include <utility>

namespace browser
{

namespace
{

/// A text view that fetches nothing, neither pictures nor the targets of links.
class TextView : public QTextBrowser
{
public:
    explicit TextView(QWidget *parent) : QTextBrowser(parent)
    {
        setOpenLinks(false);
        setContextMenuPolicy(Qt::NoContextMenu);
        controls::UseWhiteBase(*this);
    }
    QVariant loadResource(int, const QUrl &) override { return {}; }
};

} // namespace

RecordingPane::RecordingPane(QWidget *parent) : m_view(new TextView(parent)) {}

QWidget *RecordingPane::View() { return m_view; }

void RecordingPane::Open(const QUrl &url)
{
    if (url != Url()) {
        m_history.resize(m_place + 1);
        m_history.append(url);
        ++m_place;
    }
    GoTo(m_place);
}

void RecordingPane::GoTo(qsizetype place)
{
    if (place < 0 || place >= m_history.size())
        return;
    m_place = place;
    QFile file(Url().toLocalFile());
    if (Url().isLocalFile() && file.open(QIODevice::ReadOnly))
        m_view->setHtml(text::Decode(file.readAll()));
    else
        m_view->clear();
    Q_EMIT TitleChanged(Title());
    Q_EMIT StatusChanged(QString());
}

void RecordingPane::Back() { GoTo(m_place - 1); }

void RecordingPane::Forward() { GoTo(m_place + 1); }

void RecordingPane::Reload() { GoTo(m_place); }

QUrl RecordingPane::Url() const { return m_history.value(m_place); }

QString RecordingPane::Title() const
{
    const QString title = m_view->documentTitle();
    return title.isEmpty() ? Url().fileName() : title;
}

QString RecordingPane::SelectedText() const { return m_view->textCursor().selection().toPlainText(); }

void RecordingPane::SelectAll() { m_view->selectAll(); }

QString RecordingPane::ShownText() const { return m_view->toPlainText(); }

void RecordingPane::TakeFocus() { m_view->setFocus(); }

void RecordingPane::Find(const QString &text, bool backward, const std::function<void(int, int)> &found)
{
    QList<QTextCursor> matches;
    const QTextDocument *document = m_view->document();
    for (QTextCursor match = document->find(text); !text.isEmpty() && !match.isNull();
         match = document->find(text, match))
        matches.append(match);
    // A text that grows letter by letter is looked for from where its beginning was found.
    const bool isSameText = std::exchange(m_foundText, text) == text;
    if (matches.isEmpty()) {
        found(0, 0);
        return;
    }
    const int from = m_view->textCursor().selectionStart();
    qsizetype active = 0;
    if (backward) {
        active = matches.size() - 1;
        while (active > 0 && matches[active].selectionStart() >= from)
            --active;
        if (matches[active].selectionStart() >= from)
            active = matches.size() - 1;
    } else {
        const bool stands = isSameText && m_view->textCursor().hasSelection();
        while (active < matches.size() &&
               (stands ? matches[active].selectionStart() <= from : matches[active].selectionStart() < from))
            ++active;
        active %= matches.size();
    }
    m_view->setTextCursor(matches[active]);
    found(static_cast<int>(active) + 1, static_cast<int>(matches.size()));
}

} // namespace browser
