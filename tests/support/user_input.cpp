#include "user_input.h"

#include "control_reading.h"
#include "input_events.h"
#include "platform/controls/controls.h"
#include "platform/controls/form.h"
#include "platform/controls/list_box.h"
#include "platform/controls/twips.h"
#include "script_error.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPointer>
#include <QRadioButton>
#include <QSpinBox>
#include <QStyleOptionButton>
#include <QTextEdit>
#include <QTreeView>

namespace
{

/// Brings the control's window to the front and gives the control the focus, as a user has to
/// before he types into it.
void TakeFocus(QWidget *widget)
{
    BringToFront(widget);
    QWidget *focused = QApplication::focusWidget();
    if (focused != widget && !(focused && widget->isAncestorOf(focused)))
        widget->setFocus(Qt::MouseFocusReason);
}

/// The widget that gets the keys typed into a control.
QWidget *KeyReceiver(QWidget *widget)
{
    QWidget *focused = widget->isWindow() ? widget->focusWidget() : QApplication::focusWidget();
    if (focused && (focused == widget || widget->isAncestorOf(focused)))
        return focused;
    return widget->focusProxy() ? widget->focusProxy() : widget;
}

/// The point that a user would aim at: a check box answers on its mark and words alone.
QPoint AimAt(const QWidget *widget)
{
    const bool check = qobject_cast<const QCheckBox *>(widget) != nullptr;
    if (!check && !qobject_cast<const QRadioButton *>(widget))
        return widget->rect().center();
    const auto *button = qobject_cast<const QAbstractButton *>(widget);
    QStyleOptionButton option;
    option.initFrom(widget);
    option.text = button->text();
    option.icon = button->icon();
    return widget->style()
        ->subElementRect(check ? QStyle::SE_CheckBoxIndicator : QStyle::SE_RadioButtonIndicator, &option,
                         widget)
        .center();
}

/// The widget of a control that gets the mouse at its middle.
QWidget *MouseReceiver(QWidget *widget)
{
    const auto *area = qobject_cast<const QAbstractScrollArea *>(widget);
    return area ? area->viewport() : widget;
}

struct Spot {
    QWidget *widget;
    QPoint point;
};

/// A bare place of a form's surface, for what a user does beside the controls.
Spot BareSpot(QWidget *form)
{
    constexpr int step = 4;
    for (int y = form->height() - 1; y >= 0; y -= step)
        for (int x = 0; x < form->width(); x += step) {
            QWidget *child = form->childAt(x, y);
            if (!child)
                return {form, QPoint(x, y)};
            if (child->objectName().isEmpty() && child->focusPolicy() == Qt::NoFocus &&
                child->width() >= form->width())
                return {child, child->mapFrom(form, QPoint(x, y))};
        }
    return {form, form->rect().center()};
}

Spot SpotOfRow(QWidget *widget, int row)
{
    auto *view = qobject_cast<QAbstractItemView *>(widget);
    if (!view || row < 0 || row >= ItemsOf(view).size())
        throw ScriptError(QStringLiteral("%1 has no row %2").arg(AddressOf(widget)).arg(row));
    const auto *tree = qobject_cast<const QTreeView *>(view);
    const QModelIndex index = tree ? RowsOf(*tree).at(row) : view->model()->index(row, 0);
    view->scrollTo(index);
    const QRect shown = view->visualRect(index) & view->viewport()->rect();
    return {view->viewport(), shown.center()};
}

Spot SpotOf(const Target &target, int row)
{
    if (row >= 0)
        return SpotOfRow(target.widget, row);
    if (target.IsForm())
        return BareSpot(target.widget);
    QWidget *receiver = MouseReceiver(target.widget);
    return {receiver, AimAt(receiver)};
}

QString ClickAt(const Target &target, int row)
{
    const QString why = WhyOutOfReach(target);
    if (!why.isEmpty())
        return why;
    BringToFront(target.widget);
    const Spot spot = SpotOf(target, row);
    const QPointer<QWidget> receiver(spot.widget);
    SendMousePress(receiver, spot.point);
    // The handler of the press may have closed the window.
    if (receiver)
        SendMouseRelease(receiver, spot.point);
    return {};
}

void ReplaceDocument(QTextCursor cursor, QString text)
{
    cursor.select(QTextCursor::Document);
    cursor.insertText(text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
}

void ReplaceLine(QLineEdit *line, const QString &text)
{
    if (line->text() == text)
        return;
    line->selectAll();
    if (text.isEmpty())
        line->del();
    else
        line->insert(text);
}

QLineEdit *LineOf(QWidget *widget)
{
    if (auto *line = qobject_cast<QLineEdit *>(widget))
        return line;
    if (const auto *combo = qobject_cast<QComboBox *>(widget))
        return combo->lineEdit();
    if (const auto *spin = qobject_cast<QAbstractSpinBox *>(widget))
        return spin->findChild<QLineEdit *>();
    return nullptr;
}

} // namespace

QString TypeText(const Target &target, const QString &text)
{
    const QPointer<QWidget> widget(target.widget);
    for (const char32_t character : text.toUcs4()) {
        if (!widget)
            return QStringLiteral("it has gone");
        const QString why = WhyOutOfReach(target);
        if (!why.isEmpty())
            return why;
        TakeFocus(widget);
        SendCharacter(KeyReceiver(widget), character);
    }
    return {};
}

QString ReplaceText(const Target &target, const QString &text)
{
    const QString why = WhyOutOfReach(target);
    if (!why.isEmpty())
        return why;
    TakeFocus(target.widget);
    if (auto *line = LineOf(target.widget)) {
        if (line->isReadOnly())
            return QStringLiteral("it is read-only");
        ReplaceLine(line, text);
        if (auto *spin = qobject_cast<QAbstractSpinBox *>(target.widget))
            spin->interpretText();
    } else if (auto *plain = qobject_cast<QPlainTextEdit *>(target.widget)) {
        if (plain->isReadOnly())
            return QStringLiteral("it is read-only");
        ReplaceDocument(plain->textCursor(), text);
    } else if (auto *rich = qobject_cast<QTextEdit *>(target.widget)) {
        if (rich->isReadOnly())
            return QStringLiteral("it is read-only");
        ReplaceDocument(rich->textCursor(), text);
    } else if (qobject_cast<QComboBox *>(target.widget)) {
        return QStringLiteral("it takes no typing");
    } else {
        throw ScriptError(QStringLiteral("%1 takes no text").arg(AddressOf(target.widget)));
    }
    return {};
}

QString PressKey(const Target &target, const QString &key)
{
    const KeyStroke stroke = KeyStrokeOf(key);
    const QString why = WhyOutOfReach(target);
    if (!why.isEmpty())
        return why;
    if (target.IsForm())
        BringToFront(target.widget);
    else
        TakeFocus(target.widget);
    SendKeyStroke(KeyReceiver(target.widget), stroke);
    return {};
}

QString ClickControl(const Target &target)
{
    return target.action ? TriggerMenu(target) : ClickAt(target, -1);
}

QString PressMouse(const Target &target)
{
    const QString why = WhyOutOfReach(target);
    if (!why.isEmpty())
        return why;
    BringToFront(target.widget);
    const Spot spot = SpotOf(target, -1);
    SendMousePress(spot.widget, spot.point);
    return {};
}

QString ClickRow(const Target &target, int row)
{
    if (qobject_cast<QComboBox *>(target.widget))
        return ChooseRow(target, row);
    return ClickAt(target, row);
}

QString DoubleClickControl(const Target &target, int row)
{
    const QPointer<QWidget> widget(target.widget);
    const QString first = ClickAt(target, row);
    if (!first.isEmpty())
        return first;
    const QString why = widget ? WhyOutOfReach(target) : QStringLiteral("its click made it go");
    if (!why.isEmpty())
        return why;
    const Spot spot = SpotOf(target, row);
    const QPointer<QWidget> receiver(spot.widget);
    SendMouseDoubleClick(receiver, spot.point);
    if (receiver)
        SendMouseRelease(receiver, spot.point);
    return {};
}

QString HoverControl(const Target &target, int row)
{
    const QString why = WhyOutOfReach(target);
    if (!why.isEmpty())
        return why;
    const Spot spot = SpotOf(target, row);
    SendMouseMove(spot.widget, spot.point);
    return {};
}

QString ChooseRow(const Target &target, int row)
{
    const QString why = WhyOutOfReach(target);
    if (!why.isEmpty())
        return why;
    auto *combo = qobject_cast<QComboBox *>(target.widget);
    if (!combo)
        return ClickAt(target, row);
    if (row < 0 || row >= combo->count())
        throw ScriptError(QStringLiteral("%1 has no row %2").arg(AddressOf(combo)).arg(row));
    TakeFocus(combo);
    if (auto *own = qobject_cast<controls::ComboBox *>(combo)) {
        own->Choose(row);
        return {};
    }
    const QPointer<QComboBox> guard(combo);
    combo->setCurrentIndex(row);
    if (guard)
        Q_EMIT combo->activated(row);
    if (guard)
        Q_EMIT combo->textActivated(combo->itemText(row));
    return {};
}

QString ChooseItem(const Target &target, const QString &item)
{
    const qsizetype row = ItemsOf(target.widget).indexOf(item);
    if (row < 0)
        throw ScriptError(QStringLiteral("%1 has no item \"%2\"").arg(AddressOf(target.widget), item));
    return ChooseRow(target, static_cast<int>(row));
}

QString TriggerMenu(const Target &target)
{
    if (!target.action)
        throw ScriptError(QStringLiteral("%1 is no menu entry").arg(AddressOf(target.widget)));
    const QString why = WhyOutOfReach(target);
    if (!why.isEmpty())
        return why;
    BringToFront(target.form);
    if (QWidget *popup = QApplication::activePopupWidget())
        popup->close();
    target.action->trigger();
    return {};
}

QString FocusOn(const Target &target)
{
    const QString why = WhyOutOfReach(target);
    if (why.isEmpty())
        TakeFocus(target.widget);
    return why;
}

QString ResizeForm(const Target &target, int width, int height)
{
    target.form->resize(controls::Pixels(width), controls::Pixels(height));
    return {};
}

QString CloseByFrame(const Target &target)
{
    const QWidget *modal = QApplication::activeModalWidget();
    if (modal && modal != target.form && !modal->isAncestorOf(target.form))
        return QStringLiteral("the modal form %1 is open").arg(modal->objectName());
    target.form->close();
    return {};
}

QString DragRightEdge(const Target &target, int width)
{
    const QString why = WhyOutOfReach(target);
    if (!why.isEmpty())
        return why;
    BringToFront(target.widget);
    const QPointer<QWidget> list(target.widget);
    const QPoint edge(list->width() - 1, list->height() / 2);
    const QPoint goal(controls::Pixels(width) - 1, edge.y());
    SendMousePress(list, edge);
    // Two moves: a drag that only jumps would hide a mistake in adding up.
    for (const QPoint point : {(edge + goal) / 2, goal})
        if (list)
            SendMouseMove(list, point, Qt::LeftButton);
    if (list)
        SendMouseRelease(list, goal);
    return {};
}
