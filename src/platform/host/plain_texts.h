#pragma once

#include <QString>

class QWidget;

namespace host
{

// What the toolkit would take for markup in a text of the user's is a text like any other.

/// Gives a window its title, and tells it: "[*]" in a title is no mark of a changed document.
void SetTitle(QWidget &window, const QString &title);
QString Title(const QWidget &window);

/// The markup that shows a text as it stands in a tool tip, a long one in several lines; empty for none.
QString ToolTipOf(const QString &text);
/// Makes all tool tips of the application show their texts as they stand.
void ShowPlainToolTips();

} // namespace host
