#include "platform/controls/progress_bar.h"

#include <algorithm>

namespace controls
{

ProgressBar::ProgressBar(QWidget *parent) : QProgressBar(parent) { setTextVisible(false); }

void ProgressBar::SetRange(int least, int greatest)
{
    setRange(least, greatest);
    SetValue(least);
}

void ProgressBar::SetValue(int value)
{
    m_value = std::clamp(value, minimum(), std::max(minimum(), maximum()));
    if (m_isStale)
        return;
    m_isStale = true;
    QMetaObject::invokeMethod(this, &ProgressBar::ShowValue, Qt::QueuedConnection);
}

void ProgressBar::ShowValue()
{
    m_isStale = false;
    setValue(m_value);
}

} // namespace controls
