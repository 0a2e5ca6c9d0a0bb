#pragma once

#include <QPlainTextEdit>

namespace controls
{

/// A text box of several lines. It hands out CR LF for every end of a line and every other character
/// as it was put in. Change comes for typing and for every different text that the program sets; text
/// that an input method still composes raises nothing.
class MultiLineBox : public QPlainTextEdit
{
    Q_OBJECT
public:
    explicit MultiLineBox(QWidget *parent = nullptr);
    QString Text() const;
    /// CR LF, LF, CR and U+2029 each end a line.
    void SetText(const QString &value);

Q_SIGNALS:
    void Change();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    QMimeData *createMimeDataFromSelection() const override;

private:
    bool m_onlyComposing = false;
};

} // namespace controls
