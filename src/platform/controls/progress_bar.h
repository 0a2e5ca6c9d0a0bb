#pragma once

#include <QProgressBar>

namespace controls
{

/// A progress bar for loops: its value may be set at every row, and is painted at the next turn of the
/// event loop.
class ProgressBar : public QProgressBar
{
    Q_OBJECT
public:
    explicit ProgressBar(QWidget *parent = nullptr);
    /// The least and the greatest value; the value becomes the least.
    void SetRange(int least, int greatest);
    /// A value beyond the range counts as its end.
    void SetValue(int value);
    int Value() const { return m_value; }

private:
    void ShowValue();

    int m_value = 0;
    bool m_isStale = false;
};

} // namespace controls
