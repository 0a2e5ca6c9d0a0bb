#include "platform/host/plain_texts.h"

#include <QApplication>
#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>
#include <QWidget>

namespace
{

QString Placeholder() { return QStringLiteral("[*]"); }

class PlainToolTips : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::ToolTip || !watched->isWidgetType())
            return false;
        auto *widget = static_cast<QWidget *>(watched);
        if (!Qt::mightBeRichText(widget->toolTip()))
            return false;
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), host::ToolTipOf(widget->toolTip()),
                           widget);
        return true;
    }
};

} // namespace

void host::SetTitle(QWidget &window, const QString &title)
{
    window.setWindowTitle(QString(title).replace(Placeholder(), Placeholder() + Placeholder()));
}

QString host::Title(const QWidget &window)
{
    return window.windowTitle().replace(Placeholder() + Placeholder(), Placeholder());
}

QString host::ToolTipOf(const QString &text)
{
    return text.isEmpty() ? QString()
                          : QStringLiteral("<p style=\"white-space:pre-wrap\">") + text.toHtmlEscaped() +
                                QStringLiteral("</p>");
}

void host::ShowPlainToolTips() { qApp->installEventFilter(new PlainToolTips(qApp)); }
