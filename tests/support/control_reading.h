#pragma once

#include "control_lookup.h"
#include "platform/controls/twips.h"
#include "platform/dialogs/dialogs.h"

#include <QModelIndex>
#include <QStringList>

class QTreeView;

/// What a control shows. Each raises ScriptError for a control that has nothing of the kind.

/// A box's content, a label's or button's words, the selected row of a list. The line ends of a
/// box of several lines are CR LF.
QString ShownTextOf(const Target &target);
QString SelectedTextOf(const QWidget *widget);
QString CaptionOf(const Target &target);
QStringList ItemsOf(const QWidget *widget);
int SelectedRowOf(const QWidget *widget);
/// The rows of a tree that can be scrolled to, top to bottom: those beneath an open one count on.
QModelIndexList RowsOf(const QTreeView &tree);
bool IsChecked(const Target &target);
/// The control's own flag; of a form, whether it takes input.
bool IsEnabled(const Target &target);
bool IsVisible(const Target &target);
QString ToolTipOf(const Target &target);
dialogs::FontChoice FontOf(const QWidget *widget);
/// The colour of the writing, 0x00BBGGRR.
qint32 ColorOf(const QWidget *widget);
/// In twips; a control's relative to what it lies on, a form's on the screen.
controls::TwipRect BoundsOf(const QWidget *widget);
