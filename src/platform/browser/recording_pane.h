#pragma once

#include "platform/browser/pane.h"

#include <QList>

class QTextBrowser;

namespace browser
{

/// A pane that shows the text of local pages, loads nothing else, and prints nothing.
class RecordingPane : public Pane
{
    Q_OBJECT
public:
    explicit RecordingPane(QWidget *parent);

    QWidget *View() override;
    void Open(const QUrl &url) override;
    void SetHome(const QUrl &) override {}
    void KeepCookies(const QString &) override {}
    void Back() override;
    void Forward() override;
    void Stop() override {}
    void Reload() override;
    QUrl Url() const override;
    QString Title() const override;
    bool IsLoading() const override { return false; }
    QString SelectedText() const override;
    void SelectAll() override;
    QString ShownText() const override;
    void TakeFocus() override;
    void Print() override {}
    void PreviewPrint() override {}
    void SetUpPage() override {}
    void Find(const QString &text, bool backward, const std::function<void(int, int)> &found) override;

private:
    void GoTo(qsizetype place);

    QTextBrowser *m_view;
    QList<QUrl> m_history;
    qsizetype m_place = -1;
    QString m_foundText;
};

} // namespace browser
