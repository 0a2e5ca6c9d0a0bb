#include "platform/host/plain_texts.h"

#include "input.h"

#include <QHelpEvent>
#include <QLabel>
#include <QToolTip>
#include <QWindow>
#include <gtest/gtest.h>

namespace
{

TEST(PlainTexts, ATitleIsShownAsItStands)
{
    for (const QString &title :
         {QStringLiteral("甲[*]乙"), QStringLiteral("[*]"), QStringLiteral("甲"), QString()}) {
        QWidget window;
        host::SetTitle(window, title);
        window.show();
        EXPECT_EQ(host::Title(window), title);
        EXPECT_EQ(window.windowHandle()->title(), title);
    }
}

TEST(PlainTexts, AToolTipIsShownAsItStands)
{
    host::ShowPlainToolTips();
    QLabel label;
    label.resize(100, 20);
    label.show();
    const auto shownFor = [&label](const QString &toolTip) {
        label.setToolTip(toolTip);
        QHelpEvent help(QEvent::ToolTip, {5, 5}, label.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&label, &help);
        return QToolTip::text();
    };
    EXPECT_EQ(shownFor(QStringLiteral("Z:\\a.mdb")), QStringLiteral("Z:\\a.mdb"));
    EXPECT_EQ(shownFor(QStringLiteral("Z:\\<b>x</b>\\a.mdb")),
              QStringLiteral("<p style=\"white-space:pre-wrap\">Z:\\&lt;b&gt;x&lt;/b&gt;\\a.mdb</p>"));
    EXPECT_EQ(host::ToolTipOf(QString()), QString());
    QToolTip::hideText();
}

} // namespace
