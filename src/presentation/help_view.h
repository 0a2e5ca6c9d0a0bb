#pragma once

#include "presentation/pure/help_book.h"

#include <QTextBrowser>

class QPrinter;

/// Shows the topics of a help book: follows links between them, keeps the way back, marks words that
/// were sought. It loads nothing from anywhere.
class HelpView : public QTextBrowser
{
    Q_OBJECT
public:
    explicit HelpView(QWidget *parent = nullptr);

    void SetBook(const HelpBook &book);
    /// Shows a topic by its place in the book, the words marked and the first of them in sight.
    void ShowTopic(qsizetype topic, const QStringList &words = {});
    /// The place of the topic that is shown; -1 before the first.
    qsizetype Topic() const { return m_topic; }

    /// The size of the writing in percent of the usual size, within kSmallest and kLargest.
    void SetZoom(int percent);
    int Zoom() const { return m_zoom; }
    static constexpr int kUsualZoom = 100, kSmallestZoom = 60, kLargestZoom = 300, kZoomStep = 20;

    /// Prints the topic in its usual size. False when it cannot be done.
    bool PrintTopic(QPrinter &printer) const;

    QVariant loadResource(int type, const QUrl &name) override;

Q_SIGNALS:
    /// Another topic is shown, or the same one anew.
    void TopicShown();
    /// The user turned the wheel to zoom: 1 larger, -1 smaller.
    void ZoomWheel(int direction);

protected:
    void wheelEvent(QWheelEvent *event) override;

private:
    void Mark(const QStringList &words);

    qsizetype TopicAt(const QUrl &address) const;

    HelpBook m_book;
    qsizetype m_topic = -1;
    int m_zoom = kUsualZoom;
};
